// SPDX-License-Identifier: MIT
#pragma once

#include "usage/StandingPlan.h"

#include <QDialog>
#include <QStringList>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace refdialer
{

class PlanWatch;

/// The data plans, to be made, changed and removed.
class PlanDialog : public QDialog
{
    Q_OBJECT

public:
    /// The plans must live longer.
    PlanDialog(PlanWatch &plans, QWidget *parent);

private:
    /// Key and texts of each plan.
    using Rows = std::vector<std::pair<std::int64_t, QStringList>>;

    QWidget *buttons();
    void showPlans();
    void fillList();
    void fitColumns();
    void showWhatCanBeDone();
    void showStanding();
    /// The one that is chosen, if there is one.
    const usage::StandingPlan *chosen() const;
    void addPlan();
    void editPlan();
    void openEditor(const history::DataPlan &plan);
    void askToRemovePlan();
    void removePlan(const std::string &name);
    void showPastPeriods();

    PlanWatch &m_plans;
    Rows m_rows;               ///< of the list
    std::int64_t m_chosen = 0; ///< the plan's key
    QTreeWidget *m_list;
    QLabel *m_standing; ///< how the chosen plan stands
    QLabel *m_message;  ///< shown if there is one
    QPushButton *m_edit;
    QPushButton *m_remove;
    QPushButton *m_past;
};

/// Opens it over `parent`; it goes when it is closed.
void openPlans(PlanWatch &plans, QWidget *parent);

} // namespace refdialer
