// SPDX-License-Identifier: MIT
#include "PlanDialog.h"

#include "MessageBox.h"
#include "PastPeriodsDialog.h"
#include "PlanEditor.h"
#include "PlanText.h"
#include "PlanWatch.h"
#include "SizeDelegate.h"
#include "apps/common/StoreErrorText.h"
#include "usage/SizeText.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace refdialer
{

using history::DataPlan;
using history::Result;
using history::Store;

namespace
{

constexpr int keyRole = Qt::UserRole;
constexpr int mostCharactersInList = 100;

std::int64_t keyOf(const QTreeWidgetItem &item)
{
    return item.data(0, keyRole).toLongLong();
}

QStringList cellsOf(const DataPlan &plan, const QLocale &locale)
{
    return {QString::fromStdString(plan.name),
            plan.amount ? usage::sizeText(*plan.amount, usage::Rounding::Down) : QString(),
            PlanText::period(plan.period, locale)};
}

QTreeWidgetItem *newItem(std::int64_t key, const QStringList &cells)
{
    auto *const item = new QTreeWidgetItem(cells);
    item->setData(0, keyRole, qlonglong(key));
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

/// For the keyboard as well.
QLabel *newFigures()
{
    auto *const label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::StrongFocus);
    return label;
}

} // namespace

PlanDialog::PlanDialog(PlanWatch &plans, QWidget *parent)
    : QDialog(parent)
    , m_plans(plans)
    , m_list(new QTreeWidget)
    , m_standing(newFigures())
    , m_message(new QLabel)
    , m_edit(new QPushButton(tr("&Edit…")))
    , m_remove(new QPushButton(tr("&Remove…")))
    , m_past(new QPushButton(tr("&Past periods…")))
{
    setLocale(parent->locale());
    setWindowTitle(tr("Data plans"));
    m_list->setAccessibleName(tr("Data plans"));
    m_list->setHeaderLabels({tr("Plan"), tr("Amount"), tr("Period")});
    m_list->setRootIsDecorated(false);
    SizeDelegate::showSizesIn(*m_list, 1, 2);
    m_list->setAllColumnsShowFocus(true);
    m_list->setUniformRowHeights(true);
    m_list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_standing->setAccessibleName(tr("How the plan stands"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);

    auto *const content = new QHBoxLayout;
    content->addWidget(m_list, 1);
    content->addWidget(buttons());
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(content);
    layout->addWidget(m_standing);
    layout->addWidget(m_message);
    setTabOrder(m_list, m_standing);

    auto *const removal = new QShortcut(QKeySequence::Delete, m_list);
    removal->setContext(Qt::WidgetShortcut);
    connect(removal, &QShortcut::activated, this, &PlanDialog::askToRemovePlan);
    connect(m_list, &QTreeWidget::itemActivated, this, &PlanDialog::editPlan);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &PlanDialog::showWhatCanBeDone);
    connect(&m_plans, &PlanWatch::changed, this, &PlanDialog::showPlans);
    fitColumns();
    showPlans();
}

QWidget *PlanDialog::buttons()
{
    auto *const place = new QWidget;
    auto *const layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [this, layout](QPushButton *button, auto action) {
        // Enter is for the list.
        button->setAutoDefault(false);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
    };
    add(new QPushButton(tr("&Add…")), &PlanDialog::addPlan);
    add(m_edit, &PlanDialog::editPlan);
    add(m_remove, &PlanDialog::askToRemovePlan);
    add(m_past, &PlanDialog::showPastPeriods);
    layout->addStretch();
    add(new QPushButton(tr("&Close")), &QDialog::accept);
    return place;
}

void PlanDialog::showPlans()
{
    Rows rows;
    for (const usage::StandingPlan &each : m_plans.plans())
        rows.emplace_back(each.plan.key, cellsOf(each.plan, locale()));
    if (std::exchange(m_rows, rows) != rows)
        fillList();
    showWhatCanBeDone();
    const bool isEmpty = m_plans.isRead() && rows.empty();
    m_message->setText(isEmpty ? tr("There is no data plan yet. With one, the window shows how "
                                    "much is left of it, and warns before it is used up.")
                               : m_plans.problem());
    m_message->setVisible(!m_message->text().isEmpty());
}

void PlanDialog::fillList()
{
    const std::int64_t chosen = m_chosen;
    m_list->clear();
    for (const auto &[key, cells] : m_rows) {
        QTreeWidgetItem *const item = newItem(key, cells);
        m_list->addTopLevelItem(item);
        if (key == chosen || !m_list->currentItem())
            m_list->setCurrentItem(item);
    }
    fitColumns();
}

void PlanDialog::fitColumns()
{
    for (int column = 0; column < m_list->columnCount(); ++column)
        m_list->resizeColumnToContents(column);
    // Without a name that makes it too wide, all columns are seen at once.
    const int columns = m_list->header()->length() + 2 * m_list->frameWidth();
    m_list->setMinimumWidth(
        std::min(columns, mostCharactersInList * m_list->fontMetrics().averageCharWidth()));
}

void PlanDialog::showWhatCanBeDone()
{
    const auto *const item = m_list->currentItem();
    if (item)
        m_chosen = keyOf(*item);
    for (QPushButton *const button : {m_edit, m_remove, m_past})
        button->setEnabled(item != nullptr);
    showStanding();
}

void PlanDialog::showStanding()
{
    const usage::StandingPlan *const plan = chosen();
    const QString text = plan ? QStringList({PlanText::figures(*plan, m_plans.today(), locale()),
                                             PlanText::details(*plan, locale())})
                                    .join(QLatin1Char('\n'))
                                    .trimmed()
                              : QString();
    m_standing->setVisible(!text.isEmpty());
    if (text == m_standing->text())
        return; // what is selected of it stays so
    m_standing->setText(text);
    m_standing->setAccessibleDescription(text);
}

const usage::StandingPlan *PlanDialog::chosen() const
{
    const auto *const item = m_list->currentItem();
    for (const usage::StandingPlan &each : m_plans.plans()) {
        if (item && each.plan.key == keyOf(*item))
            return &each;
    }
    return nullptr;
}

void PlanDialog::addPlan()
{
    openEditor(DataPlan());
}

void PlanDialog::editPlan()
{
    if (const auto *const standing = chosen())
        openEditor(standing->plan);
}

void PlanDialog::openEditor(const DataPlan &plan)
{
    const PlanEditor *const editor = openPlanEditor(m_plans, plan, this);
    connect(editor, &QDialog::accepted, this, [this, editor] { m_chosen = editor->planKey(); });
}

void PlanDialog::askToRemovePlan()
{
    const auto *const standing = chosen();
    if (!standing)
        return;
    const std::string name = standing->plan.name;
    auto *const box =
        new QMessageBox(QMessageBox::Question, windowTitle(),
                        tr("Remove the data plan \"%1\"?").arg(QString::fromStdString(name)),
                        QMessageBox::NoButton, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(tr("The history stays as it is."));
    QPushButton *const remove = box->addButton(tr("&Remove"), QMessageBox::DestructiveRole);
    QPushButton *const cancel = box->addButton(tr("&Cancel"), QMessageBox::RejectRole);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    connect(remove, &QPushButton::clicked, this, [this, name] { removePlan(name); });
    box->open();
}

void PlanDialog::removePlan(const std::string &name)
{
    m_plans.store().write(
        this, [name](Store &store) { return store.removePlan(name); },
        [this](const Result<bool> &removed) {
            m_plans.look();
            if (!removed)
                MessageBox(QMessageBox::Warning, windowTitle(),
                           common::storeErrorText(removed.error()), this)
                    .exec();
        });
}

void PlanDialog::showPastPeriods()
{
    openPastPeriods(m_plans, m_chosen, this);
}

void openPlans(PlanWatch &plans, QWidget *parent)
{
    auto *const dialog = new PlanDialog(plans, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace refdialer
