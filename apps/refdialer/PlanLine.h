// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <array>
#include <vector>

class QGridLayout;
class QLabel;
class QProgressBar;
class QPushButton;

namespace usage
{
struct StandingPlan;
}

namespace refdialer
{

class ElidedLabel;
class PlanOffer;
class PlanWatch;

/// What is left of the data plans, a line for each: first those that are spent, then those
/// that are nearly so, all of them, and then as many others as there is room for. Without a plan it
/// offers to make one, once there is a history and unless the user does not want that; else it
/// takes no room.
class PlanLine : public QWidget
{
    Q_OBJECT

public:
    /// The plans must outlive the line.
    explicit PlanLine(const PlanWatch &plans, QWidget *parent = nullptr);

signals:
    void plansWanted();
    /// The user wants to make one.
    void planWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Row {
        ElidedLabel *name;
        QProgressBar *bar; ///< shown for plans with an amount
        QLabel *percent;   ///< too; beside the bar, over which no colour is readable everywhere
        QLabel *alarm;     ///< shown if there is one
        ElidedLabel *figures;
    };

    void showPlans();
    void addRow();
    void showPlan(const Row &row, const usage::StandingPlan &plan) const;
    static std::array<QWidget *, 5> widgetsOf(const Row &row);
    static void hideRow(const Row &row);

    const PlanWatch &m_plans;
    QGridLayout *m_lines;
    std::vector<Row> m_rows; ///< some may be hidden
    QPushButton *m_all;      ///< shown if there are more plans than lines
    PlanOffer *m_offer;
    ElidedLabel *m_problem;
};

} // namespace refdialer
