// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QDialog>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace refdialer
{

class CoverageEdit;
class PercentagesEdit;
class PeriodEdit;
class PlanWatch;
class SizeEdit;

/// Asks for all that makes a data plan. Nothing is stored before OK, and the dialog stays
/// open, with all that has been put in, until that has succeeded.
class PlanEditor : public QDialog
{
    Q_OBJECT

public:
    /// For a plan of the history that `plans`, which must live longer, watches, or for a new
    /// one, which has no key.
    PlanEditor(PlanWatch &plans, const history::DataPlan &plan, QWidget *parent);

    /// Of the plan that has been stored.
    std::int64_t planKey() const { return m_plan.key; }

    void accept() override;
    /// Not while the plan is being stored.
    void reject() override;

private:
    /// What is wrong with what stands in a field, a sentence for the user; empty if nothing is
    /// and the plan has it.
    using Take = QString (PlanEditor::*)();
    struct Field {
        QWidget *edit;
        QLabel *error;
        Take take;
    };

    QLayout *fields();
    void showPlan();
    void offerKnownNames();
    std::optional<std::int64_t> shownElsewhere() const;
    bool isOfThisPeriod(const history::DataPlan &plan) const;

    QString takeName();
    QString takeCoverage();
    QString takeNetwork();
    QString takeCounts();
    QString takeAmount();
    QString takePeriod();
    QString takeUsedElsewhere();
    QString takeWarnings();
    bool takeAll();
    void finish(const history::Result<history::PlanOutcome> &outcome);
    void fail(const history::StoreError &error);
    void setStoring(bool isStoring);

    PlanWatch &m_plans;
    const history::DataPlan m_former; ///< as it was shown first
    history::DataPlan m_replaced;     ///< what the user knows to be stored
    history::DataPlan m_plan;
    bool m_isStoring = false;
    QLineEdit *m_name;
    CoverageEdit *m_coverage;
    QComboBox *m_network;
    QComboBox *m_counts;
    SizeEdit *m_amount;
    PeriodEdit *m_period;
    SizeEdit *m_usedElsewhere;
    PercentagesEdit *m_warnings;
    std::vector<Field> m_fields; ///< from top to bottom
    QLabel *m_problem;           ///< shown if the plan cannot be stored
    QWidget *m_form;
    QDialogButtonBox *m_buttons;
};

/// Opens it over `parent`; it goes when it is closed.
PlanEditor *openPlanEditor(PlanWatch &plans, const history::DataPlan &plan, QWidget *parent);

} // namespace refdialer
