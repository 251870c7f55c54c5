// SPDX-License-Identifier: MIT
#include "HistoryArea.h"

#include "PluginHandle.h"
#include "RowSelection.h"
#include "TrueValues.h"

#include <QTableWidget>

#include <optional>

namespace refhost
{

HistoryArea::HistoryArea(PluginHandle &plugin, const QString &storeFile, QWidget *parent)
    : QWidget(parent)
    , m_plugin(plugin)
    , m_storePath(storeFile.toStdString())
{
}

void HistoryArea::showHistory()
{
    m_plugin.showIn(this);
    m_hasHistory = true;
}

void HistoryArea::hideHistory()
{
    m_plugin.hide();
}

void HistoryArea::sort(const HistoryOrder &order)
{
    m_order = order;
    sortTable();
}

void HistoryArea::showFinishedConnection()
{
    std::optional<RowSelection> selection;
    if (table())
        selection.emplace(*table());
    m_plugin.tellDisconnected();
    sortTable();
    if (selection && table())
        selection->restore();
}

void HistoryArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_hasHistory)
        m_plugin.fitTo(rect());
}

QTableWidget *HistoryArea::table() const
{
    return findChild<QTableWidget *>();
}

void HistoryArea::sortTable()
{
    if (table())
        sortRows(*table(), m_order, TrueValues::readFrom(m_storePath));
}

} // namespace refhost
