// SPDX-License-Identifier: MIT
#pragma once

#include "usage/PlanUse.h"

#include <QDialog>

#include <cstdint>
#include <vector>

class QComboBox;
class QLabel;
class QTableWidget;

namespace refdialer
{

class PlanWatch;

/// What was used of a plan in each of its periods, the present one first. It is read when it
/// is asked for.
class PastPeriodsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Begins with the plan of that key. The plans must live longer.
    PastPeriodsDialog(PlanWatch &plans, std::int64_t planKey, QWidget *parent);

private:
    void addPlans(std::int64_t chosen);
    void read();
    void showUses(const history::Result<std::vector<usage::PeriodUse>> &uses);
    void addRow(const usage::PeriodUse &use);
    void copy() const;

    PlanWatch &m_plans;
    std::vector<history::DataPlan> m_choice; ///< in the order of the box
    int m_request = 0;                       ///< the latest one; answers to others are late
    QComboBox *m_plan;
    QTableWidget *m_table;
    QLabel *m_message; ///< shown if there is one
};

/// Opens it over `parent`; it goes when it is closed.
void openPastPeriods(PlanWatch &plans, std::int64_t planKey, QWidget *parent);

} // namespace refdialer
