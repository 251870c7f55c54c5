// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace refdialer
{

/// The settings. Each takes effect and is stored as soon as it is changed.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SettingsDialog(QWidget *parent = nullptr);

signals:
    void languageChosen(const QString &language);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addLanguages();
    void retranslate();
    void chooseLanguage(int index);
    void tellUnlessStored(bool isStored);

    QCheckBox *m_summaryBox;
    QLabel *m_languageLabel;
    QComboBox *m_languageBox;
    QLabel *m_problem; ///< shown only when a setting cannot be stored
    QDialogButtonBox *m_buttons;
    QPushButton *m_closeButton; ///< not Qt's own, whose text comes in its languages only
};

} // namespace refdialer
