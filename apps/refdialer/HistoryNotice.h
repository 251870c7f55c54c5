// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace refdialer
{

/// Says why the history lists nothing, and what can be done about that.
class HistoryNotice : public QWidget
{
    Q_OBJECT

public:
    enum class Reason { None, NoConnections, NothingFound, AllTooShort };

    explicit HistoryNotice(QWidget *parent = nullptr);

    /// With Reason::None it is hidden.
    void setReason(Reason reason);
    /// Whether it offers to record in the background; not at first.
    void offerBackground(bool isOffered);

signals:
    void importWanted();
    void backgroundWanted();
    void allWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    QString text() const;
    void showButtons();
    void retranslate();

    Reason m_reason = Reason::None;
    bool m_isBackgroundOffered = false;
    QLabel *m_label;
    QPushButton *m_importButton;
    QPushButton *m_backgroundButton;
    QPushButton *m_allButton;
};

} // namespace refdialer
