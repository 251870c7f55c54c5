// SPDX-License-Identifier: MIT
#include "PlanMenu.h"

#include "PastPeriodsDialog.h"
#include "PlanDialog.h"
#include "PlanEditor.h"
#include "PlanWatch.h"

#include <QEvent>

namespace refdialer
{

PlanMenu::PlanMenu(PlanWatch &plans, QWidget *window)
    : QMenu(window)
    , m_plans(plans)
    , m_plansAction(addAction(QString()))
    , m_pastAction(addAction(QString()))
{
    m_plansAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+D")));
    connect(m_plansAction, &QAction::triggered, this, &PlanMenu::showPlans);
    connect(m_pastAction, &QAction::triggered, this, &PlanMenu::showPastPeriods);
    const auto offerPeriods = [this] { m_pastAction->setEnabled(!m_plans.plans().empty()); };
    connect(&m_plans, &PlanWatch::changed, this, offerPeriods);
    offerPeriods();
    retranslate();
}

void PlanMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMenu::changeEvent(event);
}

void PlanMenu::retranslate()
{
    setTitle(tr("&Plans"));
    m_plansAction->setText(tr("&Data plans…"));
    m_pastAction->setText(tr("&Past periods…"));
}

void PlanMenu::showPlans()
{
    openPlans(m_plans, parentWidget());
}

void PlanMenu::addPlan()
{
    openPlanEditor(m_plans, history::DataPlan(), parentWidget());
}

void PlanMenu::showPastPeriods()
{
    openPastPeriods(m_plans, m_plans.plans().front().plan.key, parentWidget());
}

} // namespace refdialer
