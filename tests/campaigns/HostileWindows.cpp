// SPDX-License-Identifier: MIT
// What a hostile host does to its own windows, and to the plug-in's.
#include "HostileHost.h"

#include <QCoreApplication>

void HostileHost::destroy(QPointer<QWidget> &widget)
{
    const bool holdsContainer = widget && m_expected.hasTable() && widget->isAncestorOf(table());
    const QWidget *const statisticsFrame = statistics();
    const bool holdsStatistics =
        widget && statisticsFrame &&
        (widget == statisticsFrame || widget->isAncestorOf(statisticsFrame));
    const bool holdsSummary = widget && summary() && summary()->parentWidget() == widget;
    if (holdsContainer)
        m_expected.destroyTable();
    if (holdsSummary)
        m_expected.closeSummary();
    if (holdsStatistics)
        m_expected.destroyStatistics();
    delete widget;
}

void HostileHost::destroyArea()
{
    destroy(m_area);
}

void HostileHost::destroyMainWindow()
{
    destroy(m_mainWindow);
}

void HostileHost::destroyContainer()
{
    QPointer<QWidget> container = m_expected.hasTable() ? table()->parentWidget() : nullptr;
    destroy(container);
}

void HostileHost::sortRows()
{
    if (m_expected.hasTable())
        table()->sortItems(m_random.below(6),
                           m_random.once(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void HostileHost::hideRow()
{
    if (m_expected.hasTable() && table()->rowCount() > 0)
        table()->setRowHidden(m_random.below(table()->rowCount()), m_random.once(2));
}

void HostileHost::handleEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void HostileHost::paint()
{
    if (m_expected.hasTable())
        table()->window()->grab();
}
