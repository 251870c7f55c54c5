// SPDX-License-Identifier: MIT
#pragma once

#include "history/DataPlan.h"

#include <QDate>
#include <QWidget>

class QComboBox;
class QDateEdit;
class QSpinBox;
class QStackedWidget;

namespace refdialer
{

/// The rule that a plan's periods follow, to be chosen.
class PeriodEdit : public QWidget
{
    Q_OBJECT

public:
    /// Days that nobody has chosen yet are near this one.
    explicit PeriodEdit(const QDate &today, QWidget *parent = nullptr);

    void setRule(const history::PeriodRule &rule);
    history::PeriodRule rule() const;
    /// Whether the last day, where there is one, is not before the first.
    bool isInOrder() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Setter;
    enum Kind { Monthly, Cycle, Once };

    void showDaysAsInRegion();
    QWidget *monthlyPage();
    QWidget *cyclePage();
    QWidget *oncePage();

    QComboBox *m_kind;
    QStackedWidget *m_pages;
    QSpinBox *m_dayOfMonth;
    QSpinBox *m_days;
    QDateEdit *m_from;
    QDateEdit *m_first;
    QDateEdit *m_last;
};

} // namespace refdialer
