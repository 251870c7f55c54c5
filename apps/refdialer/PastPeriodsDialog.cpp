// SPDX-License-Identifier: MIT
#include "PastPeriodsDialog.h"

#include "PlanWatch.h"
#include "SizeDelegate.h"
#include "apps/common/StoreErrorText.h"
#include "usage/SizeText.h"

#include <QClipboard>
#include <QComboBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace refdialer
{

using history::DataPlan;
using history::Result;
using history::Store;
using usage::PeriodUse;
using usage::Rounding;

namespace
{

QString rowText(const QTableWidget &table, int row)
{
    QStringList cells;
    for (int column = 0; column < table.columnCount(); ++column)
        cells.append(table.item(row, column)->text());
    return cells.join(QLatin1Char('\t'));
}

QString headerText(const QTableWidget &table)
{
    QStringList cells;
    for (int column = 0; column < table.columnCount(); ++column)
        cells.append(table.horizontalHeaderItem(column)->text());
    return cells.join(QLatin1Char('\t'));
}

/// The least at which columns of one width cut nothing.
int leastWidth(const QTableWidget &table)
{
    const QAbstractItemView &view = table;
    int column = 0;
    for (int i = 0; i < table.columnCount(); ++i)
        column = std::max(
            {column, view.sizeHintForColumn(i), table.horizontalHeader()->sectionSizeHint(i)});
    return table.columnCount() * column + table.verticalHeader()->sizeHint().width() +
           table.verticalScrollBar()->sizeHint().width() + 2 * table.frameWidth();
}

} // namespace

PastPeriodsDialog::PastPeriodsDialog(PlanWatch &plans, std::int64_t planKey, QWidget *parent)
    : QDialog(parent)
    , m_plans(plans)
    , m_plan(new QComboBox)
    , m_table(new QTableWidget(0, 4))
    , m_message(new QLabel)
{
    setLocale(parent->locale());
    setWindowTitle(tr("Periods of a data plan"));
    m_table->setAccessibleName(tr("Periods, the present one first"));
    m_table->setHorizontalHeaderLabels({tr("First day"), tr("Last day"), tr("Used"), tr("Left")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    SizeDelegate::showSizesIn(*m_table, 2, 4);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->setMinimumWidth(leastWidth(*m_table));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);

    auto *const choice = new QFormLayout;
    choice->addRow(tr("&Plan:"), m_plan);
    auto *const copyButton = new QPushButton(tr("C&opy"));
    copyButton->setAutoDefault(false);
    auto *const closeButton = new QPushButton(tr("&Close"));
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(copyButton);
    buttons->addStretch();
    buttons->addWidget(closeButton);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_message);
    layout->addLayout(buttons);

    // Wide enough for the heads of the columns in every language.
    resize(90 * fontMetrics().averageCharWidth(), 20 * fontMetrics().height());
    addPlans(planKey);
    connect(m_plan, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &PastPeriodsDialog::read);
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this,
            &PastPeriodsDialog::copy);
    connect(copyButton, &QPushButton::clicked, this, &PastPeriodsDialog::copy);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::accept);
    read();
}

void PastPeriodsDialog::addPlans(std::int64_t chosen)
{
    for (const usage::StandingPlan &each : m_plans.plans()) {
        m_choice.push_back(each.plan);
        m_plan->addItem(QString::fromStdString(each.plan.name));
        if (each.plan.key == chosen)
            m_plan->setCurrentIndex(m_plan->count() - 1);
    }
}

void PastPeriodsDialog::read()
{
    if (m_choice.empty())
        return;
    m_table->setRowCount(0);
    m_message->setText(tr("Reading the history…"));
    m_message->show();
    const DataPlan plan = m_choice[std::size_t(m_plan->currentIndex())];
    m_plans.store().read(
        this,
        [plan, utc = m_plans.utc()](const Store &store) {
            return usage::allUses(store, plan, utc);
        },
        [this, request = ++m_request](const Result<std::vector<PeriodUse>> &uses) {
            if (request == m_request)
                showUses(uses);
        });
}

void PastPeriodsDialog::showUses(const Result<std::vector<PeriodUse>> &uses)
{
    if (!uses)
        m_message->setText(common::storeErrorText(uses.error()));
    else if (uses.value().empty())
        m_message->setText(tr("No period of this plan has begun."));
    else
        m_message->hide();
    if (!uses)
        return;
    for (const PeriodUse &use : uses.value())
        addRow(use);
    m_table->setMinimumWidth(leastWidth(*m_table));
    m_table->setCurrentCell(0, 0);
}

void PastPeriodsDialog::addRow(const PeriodUse &use)
{
    const auto day = [this](const QDate &date) {
        return locale().toString(date, QLocale::ShortFormat);
    };
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    const bool isPresent = use.period.endUtc() > m_plans.utc();
    m_table->setVerticalHeaderItem(row,
                                   new QTableWidgetItem(isPresent ? tr("Present") : QString()));
    int column = 0;
    for (const QString &text :
         {day(use.period.first), day(use.period.last()), usage::sizeText(use.used, Rounding::Down),
          use.left ? usage::sizeText(*use.left, Rounding::Down) : QString()}) {
        auto *const item = new QTableWidgetItem(text);
        item->setTextAlignment(Qt::AlignVCenter | Qt::AlignRight);
        m_table->setItem(row, column++, item);
    }
}

/// The rows that are chosen, or all, under the heads of their columns.
void PastPeriodsDialog::copy() const
{
    QStringList lines{headerText(*m_table)};
    const auto chosen = m_table->selectionModel()->selectedRows();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (chosen.isEmpty() || m_table->selectionModel()->isRowSelected(row, QModelIndex()))
            lines.append(rowText(*m_table, row));
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

void openPastPeriods(PlanWatch &plans, std::int64_t planKey, QWidget *parent)
{
    auto *const dialog = new PastPeriodsDialog(plans, planKey, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace refdialer
