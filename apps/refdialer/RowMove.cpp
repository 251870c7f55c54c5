// SPDX-License-Identifier: MIT
#include "RowMove.h"

#include "UpdatesOff.h"

#include <QSignalBlocker>
#include <QTableWidget>

namespace refdialer
{

namespace
{

/// Does to a table's model what Qt lets only a class derived from it do.
class ModelAccess : public QAbstractItemModel
{
public:
    static QModelIndexList persistentIndexes(const QAbstractItemModel &model)
    {
        const auto list = &ModelAccess::persistentIndexList;
        return (model.*list)();
    }
    static void changePersistentIndexes(QAbstractItemModel &model, const QModelIndexList &from,
                                        const QModelIndexList &to)
    {
        const auto change = &ModelAccess::changePersistentIndexList;
        (model.*change)(from, to);
    }
};

/// While it lives, the rows of a model move; then what refers to them has moved, too.
class LayoutChange
{
public:
    /// The row at each place moves to `places` of it.
    LayoutChange(QAbstractItemModel &model, const std::vector<int> &places)
        : m_model(model)
        , m_places(places)
    {
        announce("layoutAboutToBeChanged");
    }
    ~LayoutChange()
    {
        moveReferences();
        announce("layoutChanged");
    }
    Q_DISABLE_COPY(LayoutChange)

private:
    /// The model's own signals, by which it tells of a sort.
    void announce(const char *signal)
    {
        QMetaObject::invokeMethod(
            &m_model, signal, Q_ARG(QList<QPersistentModelIndex>, QList<QPersistentModelIndex>()),
            Q_ARG(QAbstractItemModel::LayoutChangeHint, QAbstractItemModel::VerticalSortHint));
    }
    void moveReferences()
    {
        const QModelIndexList former = ModelAccess::persistentIndexes(m_model);
        QModelIndexList moved;
        moved.reserve(former.size());
        for (const QModelIndex &index : former)
            moved.append(m_model.index(m_places[std::size_t(index.row())], index.column()));
        ModelAccess::changePersistentIndexes(m_model, former, moved);
    }

    QAbstractItemModel &m_model;
    const std::vector<int> &m_places;
};

/// Row by row from the top, each from the left.
std::vector<QTableWidgetItem *> takeCells(QTableWidget &table)
{
    std::vector<QTableWidgetItem *> cells;
    cells.reserve(std::size_t(table.rowCount()) * std::size_t(table.columnCount()));
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column)
            cells.push_back(table.takeItem(row, column));
    }
    return cells;
}

/// In the order in which they stood: a table that has just been filled has them in the
/// memory like that, and to jump from one to another there takes longer than all else.
void moveCells(QTableWidget &table, const std::vector<int> &places)
{
    const std::vector<QTableWidgetItem *> cells = takeCells(table);
    auto cell = cells.begin();
    for (const int place : places) {
        for (int column = 0; column < table.columnCount(); ++column)
            table.setItem(place, column, *cell++);
    }
}

} // namespace

void moveRows(QTableWidget &table, const std::vector<int> &order)
{
    std::vector<int> places(order.size());
    for (std::size_t place = 0; place < order.size(); ++place)
        places[std::size_t(order[place])] = int(place);
    const UpdatesOff off(table);
    const LayoutChange change(*table.model(), places);
    // Each cell on its own costs more to announce than to move.
    const QSignalBlocker unheard(table.model());
    moveCells(table, places);
}

} // namespace refdialer
