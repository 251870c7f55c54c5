// SPDX-License-Identifier: MIT
#include "HistoryArea.h"

#include "PluginHandle.h"

#include <QTableWidget>

namespace refhost
{

namespace
{

constexpr int startTimeColumn = 1;

} // namespace

HistoryArea::HistoryArea(PluginHandle &plugin, QWidget *parent)
    : QWidget(parent)
    , m_plugin(plugin)
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

void HistoryArea::sortNewestFirst()
{
    if (auto *const table = findChild<QTableWidget *>())
        table->sortItems(startTimeColumn, Qt::DescendingOrder);
}

void HistoryArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_hasHistory)
        m_plugin.fitTo(rect());
}

} // namespace refhost
