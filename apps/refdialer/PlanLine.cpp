// SPDX-License-Identifier: MIT
#include "PlanLine.h"

#include "ElidedLabel.h"
#include "PlanOffer.h"
#include "PlanText.h"
#include "PlanWatch.h"

#include <QEvent>
#include <QGridLayout>
#include <QLocale>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace refdialer
{

using usage::StandingPlan;

namespace
{

/// More would leave the history too little room; the others are in the dialog.
constexpr std::size_t mostLines = 3;
constexpr int charactersInName = 24;
constexpr int charactersInBar = 16;

/// All that have reached a warning: nothing else in the window tells of it.
std::size_t linesFor(const std::vector<StandingPlan> &plans)
{
    const auto reached = std::count_if(plans.begin(), plans.end(), [](const auto &plan) {
        return usage::stateOf(plan) >= usage::PlanState::Warned;
    });
    return std::max(std::min(plans.size(), mostLines), std::size_t(reached));
}

std::vector<StandingPlan> worstFirst(std::vector<StandingPlan> plans)
{
    std::stable_sort(plans.begin(), plans.end(), [](const auto &a, const auto &b) {
        return usage::stateOf(a) > usage::stateOf(b);
    });
    return plans;
}

ElidedLabel *newName()
{
    auto *const label = new ElidedLabel(Qt::ElideRight);
    label->setMaximumWidth(charactersInName * label->fontMetrics().averageCharWidth());
    return label;
}

/// With a frame that is seen whatever the palette: a style may derive its own from black alone.
class FramedBar : public QProgressBar
{
protected:
    void paintEvent(QPaintEvent *event) override
    {
        QProgressBar::paintEvent(event);
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

QProgressBar *newBar()
{
    auto *const bar = new FramedBar;
    bar->setRange(0, 100);
    bar->setTextVisible(false);
    bar->setFixedWidth(charactersInBar * bar->fontMetrics().averageCharWidth());
    return bar;
}

QLabel *newPercent()
{
    auto *const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel *newAlarm()
{
    auto *const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

PlanLine::PlanLine(const PlanWatch &plans, QWidget *parent)
    : QWidget(parent)
    , m_plans(plans)
    , m_lines(new QGridLayout)
    , m_all(new QPushButton)
    , m_offer(new PlanOffer)
    , m_problem(new ElidedLabel(Qt::ElideRight))
{
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    m_lines->setHorizontalSpacing(margin);
    m_lines->setVerticalSpacing(margin / 4);
    m_lines->setColumnStretch(4, 1);
    m_problem->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin / 2, margin, 0);
    layout->setSpacing(margin / 4);
    layout->addLayout(m_lines);
    layout->addWidget(m_all, 0, Qt::AlignLeft);
    layout->addWidget(m_offer);
    layout->addWidget(m_problem);
    connect(m_all, &QPushButton::clicked, this, &PlanLine::plansWanted);
    connect(m_offer, &PlanOffer::accepted, this, &PlanLine::planWanted);
    connect(m_offer, &PlanOffer::declined, this, &PlanLine::showPlans);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(&m_plans, &PlanWatch::changed, this, &PlanLine::showPlans);
    showPlans();
}

void PlanLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        showPlans();
    QWidget::changeEvent(event);
}

void PlanLine::showPlans()
{
    setAccessibleName(tr("Data plans"));
    const std::vector<StandingPlan> plans = worstFirst(m_plans.plans());
    const std::size_t shown = linesFor(plans);
    while (m_rows.size() < shown)
        addRow();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (i < shown)
            showPlan(m_rows[i], plans[i]);
        else
            hideRow(m_rows[i]);
    }
    m_all->setText(tr("All data plans…"));
    m_all->setVisible(shown < plans.size());
    m_problem->setText(m_plans.problem());
    m_problem->setVisible(!m_plans.problem().isEmpty());
    const bool isOffering = plans.empty() && m_plans.hasHistory() && m_offer->isWelcome();
    m_offer->setVisible(isOffering);
    setVisible(shown > 0 || isOffering || !m_plans.problem().isEmpty());
}

void PlanLine::addRow()
{
    const Row row{newName(), newBar(), newPercent(), newAlarm(), new ElidedLabel(Qt::ElideRight)};
    const int line = int(m_rows.size());
    int column = 0;
    for (QWidget *const widget : widgetsOf(row))
        m_lines->addWidget(widget, line, column++);
    m_rows.push_back(row);
}

std::array<QWidget *, 5> PlanLine::widgetsOf(const Row &row)
{
    return {row.name, row.bar, row.percent, row.alarm, row.figures};
}

void PlanLine::hideRow(const Row &row)
{
    for (QWidget *const widget : widgetsOf(row))
        widget->hide();
}

void PlanLine::showPlan(const Row &row, const StandingPlan &plan) const
{
    const QString name = QString::fromStdString(plan.plan.name);
    const QString figures = PlanText::figures(plan, m_plans.today(), locale());
    const QString alarm = PlanText::alarm(plan);
    const QString details = PlanText::details(plan, locale());
    const auto percent = percentUsed(plan);
    for (QWidget *const widget : widgetsOf(row))
        widget->setToolTip(details);
    row.name->setText(name);
    row.name->show();
    row.bar->setValue(std::min(percent.value_or(0), row.bar->maximum()));
    row.bar->setAccessibleName(tr("Used of the data plan \"%1\"").arg(name));
    row.bar->setAccessibleDescription(details);
    row.bar->setVisible(percent.has_value());
    row.percent->setText(tr("%1 %").arg(percent.value_or(0)));
    row.percent->setVisible(percent.has_value());
    row.alarm->setText(alarm);
    row.alarm->setVisible(!alarm.isEmpty());
    row.figures->setText(figures);
    row.figures->show();
}

} // namespace refdialer
