// SPDX-License-Identifier: MIT
#include "HistoryPage.h"

#include "ColumnRoom.h"
#include "HistoryArea.h"
#include "HistorySearch.h"

#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace refdialer
{

HistoryPage::HistoryPage(PluginHandle &plugin, const QString &storeFile, QWidget *parent)
    : QWidget(parent)
    , m_search(new HistorySearch)
    , m_notice(new HistoryNotice)
    , m_area(new HistoryArea(plugin, storeFile))
{
    auto *const layout = new QVBoxLayout(this);
    // Each part brings margins of its own.
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_search);
    layout->addWidget(m_notice);
    layout->addWidget(m_area, 1);
    addKeys();
    connect(m_search, &HistorySearch::changed, this, &HistoryPage::applyFilter);
    connect(m_search, &HistorySearch::left, m_area, &HistoryArea::takeFocus);
    connect(m_notice, &HistoryNotice::allWanted, m_search, &HistorySearch::clear);
    connect(m_area, &HistoryArea::changed, this, &HistoryPage::showReason);
    connect(m_area, &HistoryArea::changed, this, &HistoryPage::giveColumnsRoom);
}

void HistoryPage::beginSearch()
{
    m_search->begin();
}

void HistoryPage::setShortest(qint64 seconds)
{
    m_shortestSeconds = seconds;
    applyFilter();
}

void HistoryPage::addKeys()
{
    const auto add = [this](const QKeySequence &key, void (HistoryArea::*function)()) {
        auto *const shortcut = new QShortcut(key, m_area);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, m_area, function);
    };
    for (const QKeySequence &key : QKeySequence::keyBindings(QKeySequence::Copy))
        add(key, &HistoryArea::copySelection);
    add(QKeySequence(Qt::Key_Menu), &HistoryArea::openContextMenu);
    add(QKeySequence(Qt::SHIFT | Qt::Key_F10), &HistoryArea::openContextMenu);
}

void HistoryPage::applyFilter()
{
    HistoryFilter filter = m_search->filter();
    filter.shortestSeconds = m_shortestSeconds;
    m_area->setFilter(filter);
}

/// The plug-in shows its table as soon as it is to, and may make another one.
void HistoryPage::giveColumnsRoom()
{
    auto *const table = m_area->findChild<QTableWidget *>();
    if (!table)
        return;
    if (!m_columns)
        m_columns = new ColumnRoom(*table);
    m_columns->widen();
}

void HistoryPage::showReason()
{
    using Reason = HistoryNotice::Reason;
    if (m_area->sum().count > 0 || !m_area->isReadable())
        m_notice->setReason(Reason::None);
    else if (m_area->connectionCount() == 0)
        m_notice->setReason(Reason::NoConnections);
    else
        m_notice->setReason(m_area->filter().isSearch() ? Reason::NothingFound
                                                        : Reason::AllTooShort);
}

} // namespace refdialer
