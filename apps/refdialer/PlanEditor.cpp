// SPDX-License-Identifier: MIT
#include "PlanEditor.h"

#include "CoverageEdit.h"
#include "PercentagesEdit.h"
#include "PeriodEdit.h"
#include "PlanWatch.h"
#include "SizeEdit.h"
#include "apps/common/StoreErrorText.h"
#include "usage/BillingPeriod.h"
#include "usage/PlanChange.h"
#include "usage/PlanWarnings.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>

namespace refdialer
{

using history::DataPlan;
using history::PlanOutcome;
using history::Result;
using history::Store;
using history::StoreError;

namespace
{

QLabel *newMessage()
{
    auto *const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
    return label;
}

void tell(QLabel &label, const QString &message)
{
    label.setText(message);
    label.setVisible(!message.isEmpty());
}

QComboBox *newChoice(const QStringList &texts)
{
    auto *const box = new QComboBox;
    box->addItems(texts);
    return box;
}

/// In the place of the former one, if it has a key.
Result<PlanOutcome> setPlan(Store &store, const DataPlan &plan, const DataPlan &former,
                            std::int64_t utc)
{
    if (plan.key != 0)
        return usage::replacePlan(store, plan, former, utc);
    const auto key = store.setPlan(plan);
    return key ? Result<PlanOutcome>(key.value()) : key.error();
}

} // namespace

PlanEditor::PlanEditor(PlanWatch &plans, const DataPlan &plan, QWidget *parent)
    : QDialog(parent)
    , m_plans(plans)
    , m_former(plan)
    , m_replaced(plan)
    , m_plan(plan)
    , m_name(new QLineEdit)
    , m_coverage(new CoverageEdit)
    , m_network(newChoice({tr("At home"), tr("Roaming"), tr("At home and roaming")}))
    , m_counts(newChoice({tr("Sent and received"), tr("Received"), tr("Sent")}))
    , m_amount(new SizeEdit(tr("not limited")))
    , m_period(new PeriodEdit(plans.today()))
    , m_usedElsewhere(new SizeEdit(tr("nothing")))
    , m_warnings(new PercentagesEdit)
    , m_problem(newMessage())
    , m_form(new QWidget)
    , m_buttons(new QDialogButtonBox)
{
    setLocale(parent->locale());
    setWindowTitle(plan.key == 0 ? tr("New data plan") : tr("Data plan"));
    m_form->setLayout(fields());
    auto *const layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    for (QWidget *const each :
         {m_form, static_cast<QWidget *>(m_problem), static_cast<QWidget *>(m_buttons)})
        layout->addWidget(each);
    QPushButton *const ok = m_buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    m_buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &PlanEditor::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &PlanEditor::reject);
    showPlan();
    offerKnownNames();
}

QLayout *PlanEditor::fields()
{
    auto *const form = new QFormLayout;
    form->setContentsMargins(0, 0, 0, 0);
    const auto add = [this, form](const QString &label, QWidget *edit, Take take) {
        auto *const error = newMessage();
        auto *const place = new QVBoxLayout;
        place->addWidget(edit);
        place->addWidget(error);
        auto *const buddy = new QLabel(label);
        buddy->setBuddy(edit);
        form->addRow(buddy, place);
        m_fields.push_back({edit, error, take});
    };
    add(tr("&Name:"), m_name, &PlanEditor::takeName);
    add(tr("&For:"), m_coverage, &PlanEditor::takeCoverage);
    add(tr("&Where:"), m_network, &PlanEditor::takeNetwork);
    add(tr("W&hat counts:"), m_counts, &PlanEditor::takeCounts);
    add(tr("&Amount in a period:"), m_amount, &PlanEditor::takeAmount);
    add(tr("&Period:"), m_period, &PlanEditor::takePeriod);
    add(tr("&Used elsewhere in this period:"), m_usedElsewhere, &PlanEditor::takeUsedElsewhere);
    add(tr("Warn a&t percent:"), m_warnings, &PlanEditor::takeWarnings);
    m_amount->setNames(tr("Amount in a period"), tr("Unit of the amount"));
    m_usedElsewhere->setNames(tr("Used elsewhere in this period"),
                              tr("Unit of what was used elsewhere"));
    m_usedElsewhere->setToolTip(tr("What the provider counts and the history does not know of, "
                                   "such as before it began; less than 0 takes off."));
    m_warnings->setPlaceholderText(tr("never"));
    return form;
}

void PlanEditor::showPlan()
{
    m_name->setText(QString::fromStdString(m_former.name));
    m_coverage->setCoverage(m_former.covers, m_former.covered);
    m_network->setCurrentIndex(static_cast<int>(m_former.network));
    m_counts->setCurrentIndex(static_cast<int>(m_former.counts));
    m_amount->setBytes(m_former.amount);
    m_period->setRule(m_former.period);
    m_usedElsewhere->setBytes(shownElsewhere());
    m_warnings->setPercentages(m_former.warnAtPercent);
}

/// Not the correction of a period that is over.
std::optional<std::int64_t> PlanEditor::shownElsewhere() const
{
    return isOfThisPeriod(m_former) ? std::optional(m_former.usedElsewhere->bytes) : std::nullopt;
}

/// What was used elsewhere of the plan.
bool PlanEditor::isOfThisPeriod(const DataPlan &plan) const
{
    const auto period = usage::periodOf(plan.period, m_plans.today());
    return plan.usedElsewhere && period &&
           period->contains(QDate::fromJulianDay(plan.usedElsewhere->day));
}

/// One that is missing can still be written.
void PlanEditor::offerKnownNames()
{
    m_plans.store().read(
        this, [](const Store &store) { return store.overview(); },
        [this](const Result<history::Overview> &overview) {
            if (overview)
                m_coverage->addNamesOf(overview.value());
        });
}

QString PlanEditor::takeName()
{
    m_plan.name = m_name->text().trimmed().toStdString();
    if (m_plan.name.empty())
        return tr("Give the plan a name.");
    if (m_plan.name.size() > history::longestPlanName)
        return tr("Give the plan a shorter name.");
    const auto &plans = m_plans.plans();
    const bool isTaken = std::any_of(plans.begin(), plans.end(), [this](const auto &other) {
        return other.plan.name == m_plan.name && other.plan.key != m_former.key;
    });
    return isTaken ? tr("Another plan has this name already.") : QString();
}

QString PlanEditor::takeCoverage()
{
    m_plan.covers = m_coverage->covers();
    const auto covered = m_coverage->covered();
    m_plan.covered = covered.value_or(std::string());
    const bool isSim = m_plan.covers == DataPlan::Covers::Sim;
    if (!covered)
        return isSim ? tr("Write the SIM's number, or the end of it.") : tr("Name the profile.");
    if (isSim && m_plan.covered.size() > history::longestShortText)
        return tr("No SIM has so long a number.");
    return {};
}

QString PlanEditor::takeNetwork()
{
    m_plan.network = static_cast<DataPlan::Network>(m_network->currentIndex());
    return {};
}

QString PlanEditor::takeCounts()
{
    m_plan.counts = static_cast<DataPlan::Counts>(m_counts->currentIndex());
    return {};
}

QString PlanEditor::takeAmount()
{
    m_plan.amount.reset();
    if (m_amount->isEmpty())
        return {};
    const auto bytes = m_amount->bytes();
    if (!bytes)
        return m_amount->problem();
    if (*bytes < 0)
        return tr("There is no plan of less than nothing.");
    m_plan.amount = bytes;
    return {};
}

QString PlanEditor::takePeriod()
{
    m_plan.period = m_period->rule();
    return m_period->isInOrder() ? QString() : tr("The last day is before the first one.");
}

/// What has not been changed keeps its day, unless the day is in another period now; one that
/// was not shown, because its period is over, does not come into the present one.
QString PlanEditor::takeUsedElsewhere()
{
    const auto bytes =
        m_usedElsewhere->isEmpty() ? std::optional<std::int64_t>(0) : m_usedElsewhere->bytes();
    if (!bytes)
        return m_usedElsewhere->problem();
    m_plan.usedElsewhere = m_former.usedElsewhere;
    const auto shown = shownElsewhere();
    if (*bytes == shown.value_or(0) && shown.has_value() == isOfThisPeriod(m_plan))
        return {};
    const bool isTaken = usage::setUsedElsewhere(m_plan, *bytes, m_plans.today());
    return isTaken ? QString() : tr("Today is in no period of this plan.");
}

QString PlanEditor::takeWarnings()
{
    const auto percentages = m_warnings->percentages();
    if (!percentages)
        return tr("Write percentages from 1 to %1, such as 80, 100.")
            .arg(history::highestPercentage);
    usage::setWarnings(m_plan, *percentages);
    return {};
}

/// Tells all that is wrong at once, each beside its field.
bool PlanEditor::takeAll()
{
    QWidget *firstWrong = nullptr;
    for (const Field &field : m_fields) {
        const QString error = (this->*field.take)();
        tell(*field.error, error);
        field.edit->setAccessibleDescription(error);
        if (!error.isEmpty() && !firstWrong)
            firstWrong = field.edit;
    }
    if (firstWrong)
        firstWrong->setFocus();
    return !firstWrong;
}

void PlanEditor::accept()
{
    if (m_isStoring || !takeAll())
        return;
    setStoring(true);
    m_plans.store().write(
        this,
        [plan = m_plan, former = m_replaced, utc = m_plans.utc()](Store &store) {
            return setPlan(store, plan, former, utc);
        },
        [this](const Result<PlanOutcome> &outcome) { finish(outcome); });
}

void PlanEditor::reject()
{
    if (!m_isStoring)
        QDialog::reject();
}

void PlanEditor::finish(const Result<PlanOutcome> &outcome)
{
    setStoring(false);
    if (!outcome)
        return fail(outcome.error());
    m_plans.look();
    if (const auto *const changed = std::get_if<DataPlan>(&outcome.value())) {
        m_replaced = *changed;
        return tell(*m_problem, tr("Another program has changed this plan meanwhile. OK stores it "
                                   "as it stands here, Cancel keeps what the other has made."));
    }
    m_plan.key = std::get<std::int64_t>(outcome.value());
    QDialog::accept();
}

void PlanEditor::fail(const StoreError &error)
{
    // Another program has removed it, so the next OK makes it again.
    if (error.kind == StoreError::Kind::NoSuchRecord)
        m_plan.key = 0;
    tell(*m_problem, common::storeErrorText(error));
}

void PlanEditor::setStoring(bool isStoring)
{
    m_isStoring = isStoring;
    m_form->setEnabled(!isStoring);
    m_buttons->setEnabled(!isStoring);
}

PlanEditor *openPlanEditor(PlanWatch &plans, const DataPlan &plan, QWidget *parent)
{
    auto *const editor = new PlanEditor(plans, plan, parent);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
    return editor;
}

} // namespace refdialer
