// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace refdialer
{

class PlanWatch;

/// What can be done with data plans.
class PlanMenu : public QMenu
{
    Q_OBJECT

public:
    /// The plans must live longer; dialogs open over `window`, its parent.
    PlanMenu(PlanWatch &plans, QWidget *window);

    void showPlans();
    /// Opens an empty form.
    void addPlan();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void showPastPeriods();

    PlanWatch &m_plans;
    QAction *m_plansAction;
    QAction *m_pastAction;
};

} // namespace refdialer
