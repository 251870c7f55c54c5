// SPDX-License-Identifier: MIT
#include "PeriodEdit.h"

#include "DayFormat.h"

#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QFormLayout>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace refdialer
{

using history::EveryDays;
using history::JulianDay;
using history::MonthlyFrom;
using history::OnceBetween;
using history::PeriodRule;

namespace
{

constexpr int usualDaysOfPrepaid = 30;

QSpinBox *newNumber(int largest)
{
    auto *const box = new QSpinBox;
    box->setRange(1, largest);
    return box;
}

QDateEdit *newDay(const QDate &day)
{
    auto *const edit = new QDateEdit(day);
    edit->setDateRange(QDate::fromJulianDay(history::firstPlanDay),
                       QDate::fromJulianDay(history::lastPlanDay));
    edit->setCalendarPopup(true);
    return edit;
}

JulianDay dayIn(const QDateEdit &edit)
{
    return edit.date().toJulianDay();
}

QFormLayout *newPage()
{
    auto *const layout = new QFormLayout(new QWidget);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

/// Shows a rule in the fields of its kind.
struct PeriodEdit::Setter {
    PeriodEdit &edit;

    Kind operator()(const MonthlyFrom &rule) const
    {
        edit.m_dayOfMonth->setValue(static_cast<int>(rule.day));
        return Monthly;
    }
    Kind operator()(const EveryDays &rule) const
    {
        edit.m_days->setValue(static_cast<int>(rule.days));
        edit.m_from->setDate(QDate::fromJulianDay(rule.from));
        return Cycle;
    }
    Kind operator()(const OnceBetween &rule) const
    {
        edit.m_first->setDate(QDate::fromJulianDay(rule.first));
        edit.m_last->setDate(QDate::fromJulianDay(rule.last));
        return Once;
    }
};

PeriodEdit::PeriodEdit(const QDate &today, QWidget *parent)
    : QWidget(parent)
    , m_kind(new QComboBox)
    , m_pages(new QStackedWidget)
    , m_dayOfMonth(newNumber(31))
    , m_days(newNumber(static_cast<int>(history::longestCycle)))
    , m_from(newDay(today))
    , m_first(newDay(today))
    , m_last(newDay(today.addDays(usualDaysOfPrepaid - 1)))
{
    m_days->setValue(static_cast<int>(EveryDays().days));
    m_kind->addItems({tr("Every month"), tr("Every so many days"), tr("Once (prepaid)")});
    m_kind->setAccessibleName(tr("Kind of period"));
    for (QWidget *const page : {monthlyPage(), cyclePage(), oncePage()})
        m_pages->addWidget(page);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_kind);
    layout->addWidget(m_pages);
    setFocusProxy(m_kind);
    connect(m_kind, QOverload<int>::of(&QComboBox::currentIndexChanged), m_pages,
            &QStackedWidget::setCurrentIndex);
    showDaysAsInRegion();
}

void PeriodEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LocaleChange)
        showDaysAsInRegion();
    QWidget::changeEvent(event);
}

void PeriodEdit::showDaysAsInRegion()
{
    for (QDateEdit *const day : {m_from, m_first, m_last})
        showAsInRegion(*day);
}

QWidget *PeriodEdit::monthlyPage()
{
    QFormLayout *const page = newPage();
    page->addRow(tr("From &day of the month:"), m_dayOfMonth);
    m_dayOfMonth->setToolTip(tr("A month without this day begins with its last one."));
    return page->parentWidget();
}

QWidget *PeriodEdit::cyclePage()
{
    QFormLayout *const page = newPage();
    page->addRow(tr("&Days:"), m_days);
    page->addRow(tr("F&irst day of a period:"), m_from);
    return page->parentWidget();
}

QWidget *PeriodEdit::oncePage()
{
    QFormLayout *const page = newPage();
    page->addRow(tr("F&irst day:"), m_first);
    page->addRow(tr("&Last day:"), m_last);
    return page->parentWidget();
}

void PeriodEdit::setRule(const PeriodRule &rule)
{
    m_kind->setCurrentIndex(std::visit(Setter{*this}, rule));
}

PeriodRule PeriodEdit::rule() const
{
    switch (m_kind->currentIndex()) {
    case Cycle:
        return EveryDays{m_days->value(), dayIn(*m_from)};
    case Once:
        return OnceBetween{dayIn(*m_first), dayIn(*m_last)};
    default:
        return MonthlyFrom{m_dayOfMonth->value()};
    }
}

bool PeriodEdit::isInOrder() const
{
    return m_kind->currentIndex() != Once || m_first->date() <= m_last->date();
}

} // namespace refdialer
