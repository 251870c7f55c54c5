// SPDX-License-Identifier: MIT
#include "HistorySearch.h"

#include "DayFormat.h"
#include "UserDecision.h"
#include "usage/LocalDays.h"

#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QStyle>

#include <chrono>
#include <utility>

namespace refdialer
{

namespace
{

constexpr std::chrono::seconds clockInterval(1);

// As the box lists them.
enum Days { AllDays, ThisMonth, LastMonth, ThisYear, ChosenDays };

QDate firstOfMonth(const QDate &day)
{
    return {day.year(), day.month(), 1};
}

QDate lastOfMonth(const QDate &day)
{
    return {day.year(), day.month(), day.daysInMonth()};
}

} // namespace

HistorySearch::HistorySearch(std::unique_ptr<recorder::SystemClock> clock, QWidget *parent)
    : QWidget(parent)
    , m_clock(std::move(clock))
    , m_profile(new QLineEdit)
    , m_daysLabel(new QLabel)
    , m_days(new QComboBox)
    , m_first(makeDayEdit())
    , m_toLabel(new QLabel)
    , m_last(makeDayEdit())
{
    addToLayout();
    addChoices();
    m_profile->setClearButtonEnabled(true);
    m_daysLabel->setBuddy(m_days);
    m_toLabel->setBuddy(m_last);
    const QDate today = usage::localDay(m_clock->utcSeconds());
    m_first->setDate(firstOfMonth(today));
    m_last->setDate(today);
    showDayEdits();
    retranslate();
    connect(m_profile, &QLineEdit::textChanged, this, &HistorySearch::tell);
    connect(m_days, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        showDayEdits();
        tell();
    });
    for (const QDateEdit *const day : {m_first, m_last})
        connect(day, &QDateEdit::dateChanged, this, &HistorySearch::tell);
    connect(&m_timer, &QTimer::timeout, this, &HistorySearch::look);
    m_timer.start(clockInterval);
    auto *const escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &HistorySearch::end);
}

HistoryFilter HistorySearch::filter() const
{
    HistoryFilter filter;
    filter.profile = m_profile->text();
    const QDate today = usage::localDay(m_clock->utcSeconds());
    switch (m_days->currentIndex()) {
    case ThisMonth:
        filter.firstDay = firstOfMonth(today);
        filter.lastDay = lastOfMonth(today);
        break;
    case LastMonth:
        filter.firstDay = firstOfMonth(today.addMonths(-1));
        filter.lastDay = lastOfMonth(today.addMonths(-1));
        break;
    case ThisYear:
        filter.firstDay = QDate(today.year(), 1, 1);
        filter.lastDay = QDate(today.year(), 12, 31);
        break;
    case ChosenDays:
        filter.firstDay = m_first->date();
        filter.lastDay = m_last->date();
        break;
    default:
        break;
    }
    return filter;
}

void HistorySearch::look()
{
    if (!isUserDeciding() && !(filter() == m_told))
        tell();
}

void HistorySearch::tell()
{
    m_told = filter();
    emit changed();
}

void HistorySearch::clear()
{
    m_profile->clear();
    m_days->setCurrentIndex(AllDays);
}

void HistorySearch::begin()
{
    m_profile->setFocus(Qt::ShortcutFocusReason);
    m_profile->selectAll();
}

void HistorySearch::end()
{
    if (filter().isSearch())
        clear();
    else
        emit left();
}

void HistorySearch::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        retranslate();
    QWidget::changeEvent(event);
}

QDateEdit *HistorySearch::makeDayEdit()
{
    auto *const edit = new QDateEdit(this);
    edit->setCalendarPopup(true);
    return edit;
}

void HistorySearch::addToLayout()
{
    auto *const layout = new QHBoxLayout(this);
    // As much as the history below takes by itself.
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    layout->setContentsMargins(margin, margin, margin, 0);
    layout->addWidget(m_profile, 1);
    for (QWidget *const widget :
         {static_cast<QWidget *>(m_daysLabel), static_cast<QWidget *>(m_days),
          static_cast<QWidget *>(m_first), static_cast<QWidget *>(m_toLabel),
          static_cast<QWidget *>(m_last)})
        layout->addWidget(widget);
}

void HistorySearch::addChoices()
{
    for (int choice = AllDays; choice <= ChosenDays; ++choice)
        m_days->addItem(QString());
}

void HistorySearch::showDayEdits()
{
    const bool areChosen = m_days->currentIndex() == ChosenDays;
    m_first->setVisible(areChosen);
    m_toLabel->setVisible(areChosen);
    m_last->setVisible(areChosen);
}

void HistorySearch::retranslate()
{
    m_profile->setPlaceholderText(tr("Search for a profile"));
    m_profile->setAccessibleName(tr("Search for a profile"));
    m_daysLabel->setText(tr("&Days:"));
    const QString choices[] = {tr("All"), tr("This month"), tr("Last month"), tr("This year"),
                               tr("From … to …")};
    for (int choice = AllDays; choice <= ChosenDays; ++choice)
        m_days->setItemText(choice, choices[choice]);
    m_days->setAccessibleName(tr("Days on which connections began"));
    m_first->setAccessibleName(tr("First day"));
    m_toLabel->setText(tr("t&o"));
    m_last->setAccessibleName(tr("Last day"));
    for (QDateEdit *const day : {m_first, m_last})
        showAsInRegion(*day);
}

} // namespace refdialer
