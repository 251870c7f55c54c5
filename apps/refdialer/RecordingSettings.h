// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace refdialer
{

/// The settings of what is recorded and warned of, whichever program does that. Each is
/// stored as soon as it is changed.
class RecordingSettings : public QWidget
{
    Q_OBJECT

public:
    explicit RecordingSettings(QWidget *parent = nullptr);

    /// Takes what has been typed as chosen.
    void chooseInterfaces();

signals:
    void interfacesChosen(const QStringList &names);
    /// Whether a choice could be stored.
    void stored(bool isStored);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QStringList m_interfaces;
    QString m_refused; ///< a name that no interface can have; empty if there is none
    QCheckBox *m_warningsBox;
    QLabel *m_interfacesLabel;
    QLineEdit *m_interfacesEdit;
    QLabel *m_interfacesNote;
};

} // namespace refdialer
