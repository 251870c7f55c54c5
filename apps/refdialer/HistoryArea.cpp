// SPDX-License-Identifier: MIT
#include "HistoryArea.h"

#include "DeleteAllGuard.h"
#include "PluginHandle.h"
#include "TableKeys.h"
#include "TableViewState.h"
#include "TrueValues.h"
#include "UpdatesOff.h"
#include "UserDecision.h"
#include "VisibleSelection.h"
#include "refhost/libcore/Host.h"

#include <QApplication>
#include <QClipboard>
#include <QTableWidget>
#include <QTimeZone>

#include <chrono>

namespace refdialer
{

namespace
{

/// Half of what a change of the store may take to be seen.
constexpr std::chrono::seconds watchInterval(1);

/// Fewer are deleted sooner than one could read that they are.
constexpr int manyConnections = 1000;

} // namespace

HistoryArea::HistoryArea(PluginHandle &plugin, const QString &storeFile, QWidget *parent)
    : QWidget(parent)
    , m_plugin(plugin)
    , m_storePath(storeFile.toStdString())
    , m_changeTimer(this)
    , m_watch(m_storePath, this)
    , m_watchTimer(this)
    , m_loadedZone(QTimeZone::systemTimeZoneId())
{
    connect(&m_watchTimer, &QTimer::timeout, this, &HistoryArea::keepUpToDate);
    connect(&m_watch, &HistoryWatch::seen, this, &HistoryArea::compareWith);
    m_watchTimer.start(watchInterval);
    m_changeTimer.setSingleShot(true);
    connect(&m_changeTimer, &QTimer::timeout, this, &HistoryArea::changed);
    // All that the plug-in asks is whether to delete.
    refhost::setConfirmationHandler([this] { announceDeletion(); });
}

HistoryArea::~HistoryArea()
{
    refhost::setConfirmationHandler({});
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

void HistoryArea::takeRows(TrueValues values)
{
    if (!table())
        return;
    adopt(*table());
    m_isReadable = values.areAll();
    m_shown = shownIn(*table(), std::move(values));
    arrangeRows();
}

void HistoryArea::sort(const HistoryOrder &order)
{
    m_order = order;
    if (!table())
        return;
    // Not if a plug-in has loaded rows on its own.
    if (m_shown.count() == table()->rowCount())
        arrangeRows();
    else
        takeRows(TrueValues::readFrom(m_storePath));
}

void HistoryArea::setFilter(const HistoryFilter &filter)
{
    if (filter == m_filter)
        return;
    m_filter = filter;
    if (!m_selection)
        return;
    applyFilter();
    if (!m_selection->isAtWork())
        endFiltering();
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

HistorySum HistoryArea::sum() const
{
    return table() ? sumOf(*table(), m_shown) : HistorySum();
}

void HistoryArea::copySelection()
{
    const QString text = table() ? selectedText(*table()) : QString();
    // What was copied before stays there if nothing is selected.
    if (!text.isEmpty())
        QApplication::clipboard()->setText(text);
}

void HistoryArea::openContextMenu()
{
    if (table())
        refdialer::openContextMenu(*table());
}

void HistoryArea::takeFocus()
{
    if (table())
        table()->setFocus(Qt::ShortcutFocusReason);
}

void HistoryArea::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
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

/// Once for each table.
void HistoryArea::adopt(QTableWidget &table)
{
    if (m_selection)
        return;
    const QPointer<QItemSelectionModel> former = table.selectionModel();
    m_selection = new VisibleSelection(table);
    table.setSelectionModel(m_selection);
    delete former;
    new DeleteAllGuard(table, *m_selection);
    // The arrow keys go from cell to cell, and Tab to what stands around the table.
    table.setTabKeyNavigation(false);
    connect(m_selection, &QItemSelectionModel::selectionChanged, &table,
            &QTableWidget::itemSelectionChanged);
    connect(m_selection, &QItemSelectionModel::selectionChanged, &m_changeTimer,
            QOverload<>::of(&QTimer::start));
    connect(m_selection, &VisibleSelection::finished, this, &HistoryArea::endFiltering);
    connect(table.model(), &QAbstractItemModel::rowsRemoved, this, &HistoryArea::forgetRows);
    retranslate();
}

void HistoryArea::retranslate()
{
    if (table())
        table()->setAccessibleName(tr("Connections"));
}

void HistoryArea::arrangeRows()
{
    // What hides a row is what it shows, not its place.
    m_selection->showAll();
    m_selection->finish();
    sortRows(*table(), m_order, m_shown);
    applyFilter();
    m_selection->finish();
    emit changed();
}

void HistoryArea::applyFilter()
{
    if (m_filter.isEverything())
        m_selection->showAll();
    else
        m_selection->showOnly(rowFilter(*table(), m_shown, m_filter));
}

/// At the top if no row is current.
void HistoryArea::endFiltering()
{
    emit changed();
    if (table()->currentIndex().isValid())
        table()->scrollTo(table()->currentIndex());
    else
        table()->scrollToTop();
}

/// The plug-in deletes in one go, after which timers come to their turn.
void HistoryArea::announceDeletion()
{
    if (connectionCount() < manyConnections)
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    emit deletionBegins();
    QTimer::singleShot(0, this, [this] {
        QApplication::restoreOverrideCursor();
        emit deletionEnded();
    });
}

/// Apart from loading, rows go only because the user has deleted them.
void HistoryArea::forgetRows(const QModelIndex & /*parent*/, int first, int last)
{
    m_shown.remove(first, last);
    if (!m_changeTimer.isActive())
        m_changeTimer.start();
}

void HistoryArea::load(const std::function<void()> &loadRows)
{
    m_loadedFor.reset();
    m_loadedZone = QTimeZone::systemTimeZoneId();
    if (!table()) {
        loadRows();
        return;
    }
    const TableViewState state(*table(), m_shown);
    auto values = TrueValues::beginReading(m_storePath);
    setUpdatesEnabled(false);
    loadRows();
    takeRows(values.get());
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
    // Rows show the times of the zone that they were loaded in.
    if (m_loadedZone != QTimeZone::systemTimeZoneId())
        refresh();
    m_shownWhenAsked = m_shown.fingerprint();
    m_watch.look();
}

void HistoryArea::compareWith(quint64 storeFingerprint)
{
    // What the user has deleted since may be in the answer or not.
    const bool isAnswerOld = m_shown.fingerprint() != m_shownWhenAsked;
    // A plug-in may show something else than the store has; loading that again and
    // again would change nothing.
    const bool isLoaded = (m_isReadable && storeFingerprint == m_shown.fingerprint()) ||
                          storeFingerprint == m_loadedFor;
    if (isAnswerOld || isLoaded || isUserDeciding())
        return;
    refresh();
    m_loadedFor = storeFingerprint;
}

} // namespace refdialer
