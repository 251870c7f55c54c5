// SPDX-License-Identifier: MIT
#include "BareTable.h"
#include "Benchmarks.h"
#include "ConnectionHistoryDlg.h"
#include "NetInfoRecordLogic.h"
#include "PluginWindow.h"

#include <QApplication>
#include <QItemSelection>

namespace
{

/// Which rows are deleted, ascending.
struct Deletion {
    int tableRows;
    QVector<int> rows;
};

/// `count` rows of a table, evenly spread.
Deletion scattered(int tableRows, int count)
{
    Deletion deletion{tableRows, {}};
    for (int i = 0; i < count; ++i)
        deletion.rows.append(static_cast<int>(qint64(tableRows) * i / count));
    return deletion;
}

/// `count` rows one below the other, in the middle of a table.
Deletion block(int tableRows, int count)
{
    Deletion deletion{tableRows, {}};
    for (int i = 0; i < count; ++i)
        deletion.rows.append((tableRows - count) / 2 + i);
    return deletion;
}

/// As by mouse and keyboard: rows one below the other are one range.
void select(QTableWidget &table, const QVector<int> &rows)
{
    QItemSelection selection;
    int first = 0;
    for (int i = 0; i < rows.size(); ++i) {
        const bool goesOn = i + 1 < rows.size() && rows.at(i + 1) == rows.at(i) + 1;
        if (goesOn)
            continue;
        selection.append(QItemSelectionRange(table.model()->index(rows.at(first), 0),
                                             table.model()->index(rows.at(i), 5)));
        first = i + 1;
    }
    table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

/// Makes the allocator merge at once what was freed. It would else do so at some
/// later allocation, inside the one measurement and after the other.
void settleHeap()
{
    benchmark::DoNotOptimize(QByteArray(100000, Qt::Uninitialized));
}

void deleteFromPlugin(benchmark::State &state, const Deletion &deletion)
{
    for ([[maybe_unused]] auto iteration : state) {
        PluginWindow window(deletion.tableRows);
        window.init();
        window.show();
        select(*window.table(), deletion.rows);
        QApplication::processEvents();
        measure(state, [] {
            ConnectionHistoryDlg::Instance()->onDelete();
            settleHeap();
        });
    }
}

void deleteFromBare(benchmark::State &state, const Deletion &deletion)
{
    for ([[maybe_unused]] auto iteration : state) {
        PluginWindow window(deletion.tableRows);
        window.init();
        BareTable table;
        table.fill(NetInfoRecordLogic::Instance()->m_records);
        table.show();
        measure(state, [&] {
            table.removeRows(deletion.rows);
            settleHeap();
        });
    }
}

void registerDeletion(const std::string &name, const Deletion &deletion,
                      void (*work)(benchmark::State &, const Deletion &))
{
    registerOnce("deletion/" + name + '/' + std::to_string(deletion.rows.size()),
                 [deletion, work](benchmark::State &state) { work(state, deletion); });
}

void registerComparison(const std::string &name, const Deletion &deletion)
{
    registerDeletion(name + "/plug-in", deletion, deleteFromPlugin);
    registerDeletion(name + "/bare", deletion, deleteFromBare);
}

} // namespace

void registerDeletionBenchmarks(const Sizes &sizes)
{
    registerComparison("scattered", scattered(sizes.deletionRows, sizes.scatteredRows));
    // Ten times the ranges of a selection, not only ten times the rows.
    registerDeletion("scattered/plug-in", scattered(sizes.deletionRows, 10 * sizes.scatteredRows),
                     deleteFromPlugin);
    for (const int rows : sizes.blockRows)
        registerComparison("block", block(sizes.deletionRows, rows));
    const int all = sizes.blockRows.back();
    registerComparison("all", block(all, all));
}
