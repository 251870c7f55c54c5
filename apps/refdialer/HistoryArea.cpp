// SPDX-License-Identifier: MIT
#include "HistoryArea.h"

#include "PluginHandle.h"
#include "TableViewState.h"
#include "TrueValues.h"
#include "refhost/libcore/Host.h"

#include <QApplication>
#include <QTableWidget>

#include <chrono>

namespace refdialer
{

namespace
{

/// Half of what a change of the store may take to be seen.
constexpr std::chrono::seconds watchInterval(1);

/// Whether the user is about to decide on what the history shows.
bool isUserDeciding()
{
    return refhost::isQuestionOpen() || QApplication::activePopupWidget() ||
           QApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

HistoryArea::HistoryArea(PluginHandle &plugin, const QString &storeFile, QWidget *parent)
    : QWidget(parent)
    , m_plugin(plugin)
    , m_storePath(storeFile.toStdString())
    , m_watch(m_storePath, this)
    , m_watchTimer(this)
{
    connect(&m_watchTimer, &QTimer::timeout, this, &HistoryArea::keepUpToDate);
    connect(&m_watch, &HistoryWatch::seen, this, &HistoryArea::compareWith);
    m_watchTimer.start(watchInterval);
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
    m_isFinishedConnectionDue = isUserDeciding();
    if (!m_isFinishedConnectionDue)
        load([this] { m_plugin.tellDisconnected(); });
}

void HistoryArea::refresh()
{
    load([this] { m_plugin.reload(); });
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
    if (!table())
        return;
    m_shown = ShownConnections(sortRows(*table(), m_order, TrueValues::readFrom(m_storePath)));
    connect(table()->model(), &QAbstractItemModel::rowsRemoved, this, &HistoryArea::forgetRows,
            Qt::UniqueConnection);
}

/// Apart from loading, rows go only because the user has deleted them.
void HistoryArea::forgetRows(const QModelIndex & /*parent*/, int first, int last)
{
    m_shown.remove(first, last);
}

void HistoryArea::load(const std::function<void()> &loadRows)
{
    m_loadedFor.reset();
    if (!table()) {
        loadRows();
        return;
    }
    const TableViewState state(*table(), m_shown);
    setUpdatesEnabled(false);
    loadRows();
    sortTable();
    if (table())
        state.restore(*table(), m_shown);
    setUpdatesEnabled(true);
}

void HistoryArea::keepUpToDate()
{
    if (isUserDeciding())
        return;
    if (m_isFinishedConnectionDue)
        showFinishedConnection();
    m_shownWhenAsked = m_shown.fingerprint();
    m_watch.look();
}

void HistoryArea::compareWith(quint64 storeFingerprint)
{
    // What the user has deleted since may be in the answer or not.
    const bool isAnswerOld = m_shown.fingerprint() != m_shownWhenAsked;
    // A plug-in may show something else than the store has; loading that again and
    // again would change nothing.
    const bool isLoaded =
        storeFingerprint == m_shown.fingerprint() || storeFingerprint == m_loadedFor;
    if (isAnswerOld || isLoaded || isUserDeciding())
        return;
    refresh();
    m_loadedFor = storeFingerprint;
}

} // namespace refdialer
