// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryFilter.h"
#include "recorder/SystemClock.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;

namespace refdialer
{

/// The line above the history that says which connections it lists: those of a profile,
/// those that began on certain days.
class HistorySearch : public QWidget
{
    Q_OBJECT

public:
    explicit HistorySearch(
        std::unique_ptr<recorder::SystemClock> clock = std::make_unique<recorder::SystemClock>(),
        QWidget *parent = nullptr);

    /// What the line says, as of today.
    HistoryFilter filter() const;
    /// Looks whether that is something else now: another month has begun, or the clock or the
    /// time zone has been changed. It does so each second.
    void look();
    /// Lists all connections again.
    void clear();
    /// Takes the keyboard, to type a profile.
    void begin();

signals:
    void changed();
    /// The user wants to be back in the history.
    void left();

protected:
    void changeEvent(QEvent *event) override;

private:
    QDateEdit *makeDayEdit();
    void addToLayout();
    void addChoices();
    void showDayEdits();
    void retranslate();
    void end();
    void tell();

    const std::unique_ptr<recorder::SystemClock> m_clock;
    QTimer m_timer;
    HistoryFilter m_told; ///< of the last changed()
    QLineEdit *m_profile;
    QLabel *m_daysLabel;
    QComboBox *m_days;
    QDateEdit *m_first; ///< shown only where the days are chosen one by one
    QLabel *m_toLabel;  ///< too
    QDateEdit *m_last;  ///< too
};

} // namespace refdialer
