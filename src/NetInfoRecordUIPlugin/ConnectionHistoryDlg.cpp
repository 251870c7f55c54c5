// SPDX-License-Identifier: MIT
#include "ConnectionHistoryDlg.h"

#ifdef NETINFORECORD_WIRE_STATISTICS
#    include "AccumulateDlg.h"
#endif
#include "Change.h"
#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "Log.h"
#include "NetInfoRecordLogic.h"
#include "TimeText.h"

#include <QAction>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelection>
#include <QLabel>
#include <QMenu>
#include <QMetaMethod>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <utility>

using Log::now;

namespace
{

const char sourcePath[] = "../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg";

constexpr int columnCount = 6;
constexpr int rowHeight = 14;
constexpr int confirmed = 1024;

struct Column {
    const char *headerId;
    int width; // pixels
};

constexpr Column columns[columnCount] = {
    {"IDS_LIST_APN", 110},           {"IDS_LIST_STARTTIME", 135}, {"IDS_LIST_ENDTIME", 135},
    {"IDS_LIST_CONNECTEDTIME", 110}, {"IDS_LIST_UPLOADED", 110},  {"IDS_LIST_DOWNLOADED", 110},
};

QVariant cellData(const ConnectionRecord &record, int column)
{
    switch (column) {
    case 0:
        return record.m_strProfileName;
    case 1:
        return TimeText::parsed(record.m_strStartTime);
    case 2:
        return TimeText::parsed(record.m_strEndTime);
    case 3:
        return record.m_strConnectedTime;
    case 4:
        return record.m_strUploaded;
    default:
        return record.m_strDownloaded;
    }
}

/// The row's link to its record, 0 in every column but the first.
QVariant recordLink(const ConnectionRecord *record)
{
    return QVariant::fromValue<qulonglong>(reinterpret_cast<quintptr>(record));
}

/// A cell as every one begins.
QTableWidgetItem commonCell()
{
    QTableWidgetItem cell;
    cell.setData(Qt::TextAlignmentRole, int(Qt::AlignLeft | Qt::AlignBottom));
    cell.setData(Qt::UserRole, 0);
    cell.setData(Qt::DisplayRole, QVariant()); // keeps a place for the cell's own
    // Replaces the alignment above; both assignments and their order are meant.
    cell.setData(Qt::TextAlignmentRole, int(Qt::AlignLeft));
    cell.setFlags(cell.flags() & ~Qt::ItemIsEditable);
    return cell;
}

/// Asks a table what the toolkit lets only a class derived from it ask.
class TableQuestions : public QTableWidget
{
public:
    static bool hasCellListeners(const QTableWidget &table)
    {
        const auto isConnected = &TableQuestions::isSignalConnected;
        return (table.*isConnected)(QMetaMethod::fromSignal(&QTableWidget::cellChanged)) ||
               (table.*isConnected)(QMetaMethod::fromSignal(&QTableWidget::itemChanged));
    }
    /// Hidden by the host, or under a cell that spans over it.
    static bool isHidden(const QTableWidget &table, int row, int column)
    {
        const auto isIndexHidden = &TableQuestions::isIndexHidden;
        return (table.*isIndexHidden)(table.model()->index(row, column));
    }
};

/// While it lives, a table's views hear nothing; then, of one change of it all.
/// Each cell on its own costs more to announce than to put there, so that is done
/// only where somebody listens to the table's own signals about single cells.
class ChangedAsOne
{
public:
    explicit ChangedAsOne(QTableWidget &table)
        : m_model(*table.model())
    {
        if (!TableQuestions::hasCellListeners(table))
            m_blocker.emplace(m_model);
    }
    ~ChangedAsOne()
    {
        if (!m_blocker)
            return;
        m_blocker->unblock();
        const QModelIndex last = m_model.index(m_model.rowCount() - 1, m_model.columnCount() - 1);
        if (last.isValid())
            Q_EMIT m_model.dataChanged(m_model.index(0, 0), last);
    }
    Q_DISABLE_COPY(ChangedAsOne)

private:
    QAbstractItemModel &m_model;
    std::optional<QSignalBlocker> m_blocker;
};

ConnectionRecord *linkedRecord(const QTableWidgetItem &item)
{
    return reinterpret_cast<ConnectionRecord *>(
        static_cast<quintptr>(item.data(Qt::UserRole).toULongLong()));
}

/// Keeps a table's menus while a question is open, even if a host destroys the
/// table meanwhile: the question may have come out of a menu's own handling of a
/// click, which goes on with the menu afterwards. Of questions within questions
/// the outermost one keeps them, having been there first.
class MenuKeeper
{
public:
    explicit MenuKeeper(const QTableWidget *table)
        : m_connection(QObject::connect(table, &QObject::destroyed,
                                        [this](const QObject *dying) { keepMenusOf(dying); }))
    {
    }
    ~MenuKeeper()
    {
        QObject::disconnect(m_connection);
        // Not at once, and not while the question is open: the event loop of
        // another menu would delete them too early.
        for (QMenu *menu : std::as_const(m_menus))
            menu->deleteLater();
    }
    Q_DISABLE_COPY(MenuKeeper)

private:
    void keepMenusOf(const QObject *table)
    {
        m_menus = table->findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
        for (QMenu *menu : std::as_const(m_menus))
            menu->setParent(nullptr, menu->windowFlags());
    }

    QList<QMenu *> m_menus;
    QMetaObject::Connection m_connection;
};

} // namespace

GridDelegateLayout::~GridDelegateLayout() = default;

void GridDelegateLayout::drawFocus(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QRect &) const
{
    // The base class, which would draw the rectangle, is deliberately not asked.
    if (option.state & QStyle::State_HasFocus)
        painter->setPen(QPen(Qt::white, 0));
}

ConnectionHistoryDlg *ConnectionHistoryDlg::m_pConnectionHistoryInst = nullptr;

void ConnectionHistoryDlg::Destroy()
{
    Log::line("Start: %s %s: %d: %s:", sourcePath, __func__, 56, now);
    delete m_pConnectionHistoryInst;
    m_pConnectionHistoryInst = nullptr;
    Log::line("End: %s %s: %d: %s:", sourcePath, __func__, 58, now);
}

ConnectionHistoryDlg *ConnectionHistoryDlg::Instance()
{
    Log::line("Start: %s %s: %d: %s:", sourcePath, __func__, 75, now);
    if (!m_pConnectionHistoryInst)
        m_pConnectionHistoryInst = new ConnectionHistoryDlg;
    Log::line("End: %s %s: %d: %s:", sourcePath, __func__, 81, now);
    return m_pConnectionHistoryInst;
}

ConnectionHistoryDlg::ConnectionHistoryDlg()
    : m_pContainerWidget(new QWidget)
    , m_pConnectionTblTreeWidget(new QTableWidget(m_pContainerWidget))
    , m_pGridDelegate(new GridDelegateLayout)
    , m_pTableDeleteShortcut(new QShortcut(m_pConnectionTblTreeWidget))
    , m_pNoteLabel(new QLabel)
    , m_commonCell(commonCell())
{
    // Styles ask for more than a row has; without this the view would round the
    // row height up.
    m_pConnectionTblTreeWidget->verticalHeader()->setMinimumSectionSize(rowHeight);
    // An event may fill the table before Init: rows without columns would take no
    // cells, and nothing would lead to the records that they show.
    m_pConnectionTblTreeWidget->setColumnCount(columnCount);
    // Each row's height is set again as it is filled. That costs a walk over all
    // rows, unless the row has this height already.
    m_pConnectionTblTreeWidget->verticalHeader()->setDefaultSectionSize(rowHeight);

    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 125, now);
    m_pRecordLogic = NetInfoRecordLogic::Instance();
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 127, now);
}

ConnectionHistoryDlg::~ConnectionHistoryDlg()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 147, now);
    ReleaseTable();
    deleteHeaderItemsAndDelegate();
    delete m_pLastRecordDlg;
    delete m_pConnectionTblTreeWidget;
    delete m_pContainerWidget;
    delete m_pNoteLabel; // still without a parent when Init has not run
    NetInfoRecordLogic::Destroy();
    m_pRecordLogic = nullptr;
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 193, now);
}

void ConnectionHistoryDlg::deleteHeaderItemsAndDelegate()
{
    if (m_pConnectionTblTreeWidget) {
        for (int column = 0; column < columnCount; ++column)
            delete m_pConnectionTblTreeWidget->takeHorizontalHeaderItem(column);
        delete m_pConnectionTblTreeWidget->itemDelegate();
    }
    delete m_pGridDelegate; // when the table never had it, or is gone
}

void ConnectionHistoryDlg::FitSize(QRect &rect)
{
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 255);
    if (m_pContainerWidget) {
        m_pContainerWidget->move(rect.topLeft());
        m_pContainerWidget->resize(rect.size());
    }
    Log::line("End of %s: %s: %d: ", sourcePath, __func__, 264);
}

void ConnectionHistoryDlg::Hide()
{
    Log::line("Start: %s %s: %d: %s:", sourcePath, __func__, 281, now);
    if (m_pContainerWidget)
        m_pContainerWidget->setVisible(false);
    Log::line("End: %s %s: %d: %s:", sourcePath, __func__, 286, now);
}

QString ConnectionHistoryDlg::tr(QString id)
{
    Log::line("Start: %s %s: %d: %s:", sourcePath, __func__, 304, now);
    return Change::tr(id, QLatin1String("NetInfoRecordUIPlugin"));
}

void ConnectionHistoryDlg::uiSetText()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 323, now);
    std::array<std::unique_ptr<QTableWidgetItem>, columnCount> headerItems;
    for (auto &item : headerItems)
        item.reset(new (std::nothrow) QTableWidgetItem);
    for (int column = 0; column < columnCount; ++column) {
        if (Log::isMissing(headerItems[column].get(), sourcePath, __func__, 332 + column))
            return;
    }
    if (Log::isMissing(m_pConnectionTblTreeWidget, sourcePath, __func__, 338) ||
        Log::isMissing(m_pNoteLabel, sourcePath, __func__, 342))
        return;

    // Replaces the name that Init gave; style sheets address this one.
    m_pConnectionTblTreeWidget->setObjectName(QLatin1String("Empty Table"));
    m_pConnectionTblTreeWidget->setColumnCount(columnCount);
    m_pConnectionTblTreeWidget->setWordWrap(false);
    if (m_pGridDelegate)
        m_pConnectionTblTreeWidget->setItemDelegate(m_pGridDelegate);
    for (int column = 0; column < columnCount; ++column) {
        QTableWidgetItem *item = headerItems[column].release();
        m_pConnectionTblTreeWidget->setHorizontalHeaderItem(column, item);
        item->setText(tr(QLatin1String(columns[column].headerId)));
    }
    setTableBehaviour();
    m_pNoteLabel->setText(tr(QLatin1String("IDS_STC_EXPLAIN_TEXT")));
    m_pNoteLabel->setObjectName(QLatin1String("NetInfoRecordUIPlugin_LabelNote"));

    QHeaderView *header = m_pConnectionTblTreeWidget->horizontalHeader();
    if (Log::isMissing(header, sourcePath, __func__, 394))
        return;
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setTextElideMode(Qt::ElideRight);
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 398, now);
}

void ConnectionHistoryDlg::setTableBehaviour()
{
    m_pConnectionTblTreeWidget->setContextMenuPolicy(Qt::CustomContextMenu);
    m_pConnectionTblTreeWidget->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pConnectionTblTreeWidget->setShowGrid(false);
    m_pConnectionTblTreeWidget->verticalHeader()->setVisible(false);
    for (int column = 0; column < columnCount; ++column)
        m_pConnectionTblTreeWidget->setColumnWidth(column, columns[column].width);
}

void ConnectionHistoryDlg::OnAccumulateClicked()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 416, now);
#ifdef NETINFORECORD_WIRE_STATISTICS
    if (m_pContainerWidget) // a dialog without a parent would outlive the window
        AccumulateDlg::Instance()->showWindow(m_pContainerWidget);
#endif
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 425, now);
}

void ConnectionHistoryDlg::Init()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 442, now);
    if (!buildLayout())
        return;
    uiSetText();
    discardRows();
    fetchRecords();
    populateTable();
    connect(m_pTableDeleteShortcut, SIGNAL(activated()), this, SLOT(onDelete()),
            Qt::UniqueConnection);
    connect(m_pConnectionTblTreeWidget, SIGNAL(customContextMenuRequested(const QPoint &)), this,
            SLOT(showTableContextMenu(const QPoint &)), Qt::UniqueConnection);
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 501, now);
}

bool ConnectionHistoryDlg::buildLayout()
{
    const char function[] = "Init";
    if (Log::isMissing(m_pConnectionTblTreeWidget, sourcePath, function, 444) ||
        Log::isMissing(m_pContainerWidget, sourcePath, function, 445))
        return false;
    m_pConnectionTblTreeWidget->setObjectName(QLatin1String("m_pConnectionTblTreeWidget"));
    if (m_pContainerWidget->layout())
        return true; // built by an earlier Init

    std::unique_ptr<QVBoxLayout> vertical(new (std::nothrow) QVBoxLayout);
    if (Log::isMissing(vertical.get(), sourcePath, function, 452) ||
        Log::isMissing(m_pTableDeleteShortcut, sourcePath, function, 453) ||
        Log::isMissing(m_pNoteLabel, sourcePath, function, 454))
        return false;
    m_pTableDeleteShortcut->setKey(QKeySequence(Qt::Key_Delete));
    vertical->addWidget(m_pConnectionTblTreeWidget);

    auto *horizontal = new (std::nothrow) QHBoxLayout;
    if (Log::isMissing(horizontal, sourcePath, function, 461))
        return false;
    m_pNoteLabel->setFixedHeight(35);
    horizontal->addWidget(m_pNoteLabel, 1);
    vertical->addLayout(horizontal);
    m_pContainerWidget->setLayout(vertical.release());
    return true;
}

/// A host may call Init again: the rows that stood so far make way, and with
/// them the records that only they lead to.
void ConnectionHistoryDlg::discardRows()
{
    for (int row = 0; row < m_pConnectionTblTreeWidget->rowCount(); ++row) {
        if (const QTableWidgetItem *item = m_pConnectionTblTreeWidget->item(row, 0))
            m_ownRecords.append(linkedRecord(*item));
    }
    freeOwnRecords();
    m_pConnectionTblTreeWidget->setRowCount(0);
}

void ConnectionHistoryDlg::fetchRecords()
{
    if (!m_pRecordLogic)
        return;
    m_pRecordLogic->forgetRecords();
    m_pRecordLogic->GetAllConnectedRecords();
    if (m_pConnectionTblTreeWidget)
        return;
    // A host has destroyed the table: no row will lead to these records.
    for (ConnectionRecord *record : std::as_const(m_pRecordLogic->m_records))
        m_ownRecords.append(record);
}

void ConnectionHistoryDlg::reload()
{
    ReleaseTable();
    fetchRecords();
    populateTable();
}

bool ConnectionHistoryDlg::ShowWindow(QWidget *parent, QRect &rect)
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 520, now);
    if (Log::isMissing(m_pContainerWidget, sourcePath, __func__, 522))
        return false;
    m_pContainerWidget->setObjectName(
        QLatin1String("NetInfoRecordUIPlugin_ConnectionHistoryWidget"));
    m_pContainerWidget->setParent(parent);
    m_pContainerWidget->resize(rect.size());
    m_pContainerWidget->move(rect.topLeft());

    QTableWidgetItem *first =
        m_pConnectionTblTreeWidget ? m_pConnectionTblTreeWidget->item(0, 0) : nullptr;
    if (first) {
        m_pConnectionTblTreeWidget->scrollToItem(first, QAbstractItemView::PositionAtTop);
        m_pConnectionTblTreeWidget->setCurrentCell(-1, -1);
    }
    m_pContainerWidget->setMouseTracking(true);
    m_pContainerWidget->setVisible(true);
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 542, now);
    return true;
}

void ConnectionHistoryDlg::populateTable()
{
    Log::line("Start File: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    if (Log::isMissing(m_pRecordLogic, sourcePath, __func__, __LINE__) ||
        Log::isMissing(m_pConnectionTblTreeWidget, sourcePath, __func__, __LINE__))
        return;
    ++m_nTableChanges;
    const QHash<int, ConnectionRecord *> records = m_pRecordLogic->m_records;
    m_pConnectionTblTreeWidget->setRowCount(static_cast<int>(records.size()));
    m_pConnectionTblTreeWidget->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    const ChangedAsOne change(*m_pConnectionTblTreeWidget);
    // The rows follow the map's own order; sorting is deliberately left out.
    int row = 0;
    for (ConnectionRecord *record : records) {
        if (Log::isMissing(record, sourcePath, __func__, __LINE__))
            return;
        PopulateTableRowOfConnectionRecord(record, row);
        ++row;
    }
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

void ConnectionHistoryDlg::PopulateTableRowOfConnectionRecord(ConnectionRecord *record, int row)
{
    Log::line("Start File: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    if (Log::isMissing(m_pConnectionTblTreeWidget, sourcePath, __func__, __LINE__) ||
        Log::isMissing(record, sourcePath, __func__, __LINE__))
        return;
    m_ownRecords.append(record);
    m_pConnectionTblTreeWidget->setRowHeight(row, rowHeight);
    for (int column = 0; column < columnCount; ++column) {
        auto *item = new (std::nothrow) QTableWidgetItem(m_commonCell);
        if (Log::isMissing(item, sourcePath, __func__, __LINE__))
            return;
        item->setData(Qt::DisplayRole, cellData(*record, column));
        if (column == 0)
            item->setData(Qt::UserRole, recordLink(record));
        m_pConnectionTblTreeWidget->setItem(row, column, item);
    }
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

void ConnectionHistoryDlg::ReleaseTable()
{
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    const bool isComplete = collectLinkedRecords();
    freeOwnRecords();
    if (isComplete)
        Log::line("End File: %s %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

/// The records that the rows refer to go with this window's own, up to the first cell
/// that is missing; false if something is.
bool ConnectionHistoryDlg::collectLinkedRecords()
{
    const char function[] = "ReleaseTable";
    if (Log::isMissing(m_pConnectionTblTreeWidget, sourcePath, function, __LINE__) ||
        Log::isMissing(m_pRecordLogic, sourcePath, function, __LINE__))
        return false;
    for (int row = 0; row < m_pConnectionTblTreeWidget->rowCount(); ++row) {
        const QTableWidgetItem *item = m_pConnectionTblTreeWidget->item(row, 0);
        if (Log::isMissing(item, sourcePath, function, __LINE__))
            return false;
        m_ownRecords.append(linkedRecord(*item));
    }
    return true;
}

/// Not those that somebody else has put into the map and no row has shown.
void ConnectionHistoryDlg::freeOwnRecords()
{
    Records records = std::exchange(m_ownRecords, {});
    keepEachOnce(records);
    qDeleteAll(records);
}

/// In the order of their addresses.
void ConnectionHistoryDlg::keepEachOnce(Records &records)
{
    std::sort(records.begin(), records.end(), std::less<>());
    records.erase(std::unique(records.begin(), records.end()), records.end());
}

void ConnectionHistoryDlg::createTableRightClickAction()
{
    Log::line("Enter: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    m_pContextMenu = new (std::nothrow) QMenu(m_pConnectionTblTreeWidget);
    if (Log::isMissing(m_pContextMenu, sourcePath, __func__, __LINE__))
        return;
    m_pMenuDeleteShortcut =
        new (std::nothrow) QShortcut(QKeySequence(Qt::Key_Delete), m_pContextMenu);
    if (Log::isMissing(m_pMenuDeleteShortcut, sourcePath, __func__, __LINE__))
        return;
    m_pMenuDShortcut = new (std::nothrow) QShortcut(m_pContextMenu);
    m_pMenuAShortcut = new (std::nothrow) QShortcut(m_pContextMenu);
    if (Log::isMissing(m_pMenuDShortcut, sourcePath, __func__, __LINE__) ||
        Log::isMissing(m_pMenuAShortcut, sourcePath, __func__, __LINE__))
        return;
    m_pMenuDShortcut->setKey(QKeySequence(Qt::Key_D));
    m_pMenuAShortcut->setKey(QKeySequence(Qt::Key_A));

    m_pDeleteAction = new (std::nothrow) QAction(tr(QLatin1String("IDS_MENU_DELETE")), this);
    if (Log::isMissing(m_pDeleteAction, sourcePath, __func__, __LINE__))
        return;
    m_pContextMenu->addAction(m_pDeleteAction);
    m_pDeleteAllAction = new (std::nothrow) QAction(tr(QLatin1String("IDS_MENU_DELETEALL")), this);
    if (Log::isMissing(m_pDeleteAllAction, sourcePath, __func__, __LINE__))
        return;
    m_pContextMenu->addAction(m_pDeleteAllAction);

    connect(m_pDeleteAction, SIGNAL(triggered()), this, SLOT(onDelete()));
    connect(m_pDeleteAllAction, SIGNAL(triggered()), this, SLOT(onDeleteAll()));
    connect(m_pMenuDeleteShortcut, SIGNAL(activated()), this, SLOT(onDelete()));
    connect(m_pMenuDShortcut, SIGNAL(activated()), this, SLOT(onDelete()));
    connect(m_pMenuAShortcut, SIGNAL(activated()), this, SLOT(onDeleteAll()));
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

void ConnectionHistoryDlg::showTableContextMenu(const QPoint &point)
{
    Log::line("Start: %s %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    if (Log::isMissing(m_pConnectionTblTreeWidget, sourcePath, __func__, __LINE__))
        return;
    // The bound is inclusive and the horizontal place is not asked; both are meant.
    if (point.y() < 0 || point.y() > m_pConnectionTblTreeWidget->geometry().height())
        return;
    if (!m_pConnectionTblTreeWidget->indexAt(point).isValid())
        return;
    createTableRightClickAction();
    if (m_pConnectionTblTreeWidget->rowCount() == 0 || !m_pContextMenu)
        return;
    m_pContextMenu->exec(m_pConnectionTblTreeWidget->viewport()->mapToGlobal(point));
    Log::line("End: %s %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

/// Asks the user; the buttons are identifiers that the host translates, title
/// and text are translated here.
bool ConnectionHistoryDlg::isConfirmed(const QString &textId)
{
    const QString title = tr(QLatin1String("IDS_PROMPT_CAPTION"));
    const QString text = tr(textId);
    const MenuKeeper keeper(m_pConnectionTblTreeWidget);
    return CommonUtils::ShowMessage(QMessageBox::Question, m_pContainerWidget, title, text,
                                    QLatin1String("IDS_OK"), QLatin1String("IDS_CANCEL"),
                                    QLatin1String(""), true, Qt::WindowCloseButtonHint, nullptr,
                                    QString(), true) == confirmed;
}

void ConnectionHistoryDlg::onDelete()
{
    Log::line("Entered: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    if (Log::isMissing(m_pConnectionTblTreeWidget, sourcePath, __func__, __LINE__) ||
        Log::isMissing(m_pRecordLogic, sourcePath, __func__, __LINE__))
        return;
    const Selection selection = selectedCells();
    if (selection.count / columnCount == 0)
        return;

    const QPointer<ConnectionHistoryDlg> self = this;
    const int changes = m_nTableChanges;
    const bool isWanted = isConfirmed(QLatin1String("IDS_STR_DELETE"));
    // While the question was open, the host may have ended the window or filled
    // the table with other records than the user was asked about.
    const bool isStillSame = self && m_pConnectionTblTreeWidget && changes == m_nTableChanges;
    if (isWanted && isStillSame)
        removeCells(selection.firstCells);
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

ConnectionHistoryDlg::Selection ConnectionHistoryDlg::selectedCells() const
{
    Selection selection;
    const QItemSelection ranges = m_pConnectionTblTreeWidget->selectionModel()->selection();
    for (const QItemSelectionRange &range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            selection.addRow(*m_pConnectionTblTreeWidget, row, range);
    }
    return selection;
}

void ConnectionHistoryDlg::Selection::addRow(const QTableWidget &table, int row,
                                             const QItemSelectionRange &range)
{
    const Qt::ItemFlags selectable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    for (int column = range.left(); column <= range.right(); ++column) {
        const QTableWidgetItem *cell = table.item(row, column);
        // Neither a place without a cell nor what is hidden has been chosen by the user.
        if (!cell || (cell->flags() & selectable) != selectable ||
            TableQuestions::isHidden(table, row, column))
            continue;
        ++count;
        if (column == 0)
            firstCells.append(cell);
    }
}

/// Removes the rows of these cells and their records.
void ConnectionHistoryDlg::removeCells(Cells cells)
{
    std::sort(cells.begin(), cells.end(), std::less<>());
    QVector<int> rows;
    QVector<int> recordIds;
    // Of the cells only those are looked into that the table still has: a host may
    // have removed some while the question was open.
    for (int row = 0; row < m_pConnectionTblTreeWidget->rowCount(); ++row) {
        const QTableWidgetItem *cell = m_pConnectionTblTreeWidget->item(row, 0);
        if (!std::binary_search(cells.cbegin(), cells.cend(), cell, std::less<>()))
            continue;
        if (const ConnectionRecord *record = linkedRecord(*cell)) {
            rows.append(row);
            recordIds.append(record->m_nRecordId);
        }
    }
    std::sort(recordIds.begin(), recordIds.end());
    removeRows(rows);
    removeRecords(recordIds);
}

void ConnectionHistoryDlg::removeRows(const QVector<int> &ascendingRows)
{
    if (ascendingRows.isEmpty())
        return;
    ++m_nTableChanges;
    // Thousands of selected ranges would each be mended at every removal.
    if (selectedArea() == static_cast<qint64>(ascendingRows.size()) * columnCount)
        m_pConnectionTblTreeWidget->clearSelection();
    // The highest row goes first, so that the lower ones keep their place.
    for (auto row = ascendingRows.crbegin(); row != ascendingRows.crend(); ++row)
        m_pConnectionTblTreeWidget->removeRow(*row);
}

/// How many cells are selected, those that the host has hidden too.
qint64 ConnectionHistoryDlg::selectedArea() const
{
    qint64 area = 0;
    const QItemSelection ranges = m_pConnectionTblTreeWidget->selectionModel()->selection();
    for (const QItemSelectionRange &range : ranges)
        area += static_cast<qint64>(range.height()) * range.width();
    return area;
}

void ConnectionHistoryDlg::removeRecords(const QVector<int> &sortedIds)
{
    Records removed;
    // The highest identifier goes first, so that the SDK's lower ones keep theirs.
    for (auto id = sortedIds.rbegin(); id != sortedIds.rend(); ++id) {
        // The record goes from the window even where the SDK keeps it.
        m_pRecordLogic->DeleteRecord(*id);
        removed.append(m_pRecordLogic->takeRecord(*id));
    }
    freeRecords(removed);
}

/// Frees these and no longer counts them among this window's own.
void ConnectionHistoryDlg::freeRecords(Records records)
{
    keepEachOnce(records);
    const auto isFreed = [&records](const ConnectionRecord *record) {
        return std::binary_search(records.cbegin(), records.cend(), record, std::less<>());
    };
    m_ownRecords.erase(std::remove_if(m_ownRecords.begin(), m_ownRecords.end(), isFreed),
                       m_ownRecords.end());
    qDeleteAll(records);
}

void ConnectionHistoryDlg::onDeleteAll()
{
    Log::line("Entered: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
    if (Log::isMissing(m_pRecordLogic, sourcePath, __func__, __LINE__) ||
        Log::isMissing(m_pConnectionTblTreeWidget, sourcePath, __func__, __LINE__))
        return;
    const QPointer<ConnectionHistoryDlg> self = this;
    if (isConfirmed(QLatin1String("IDS_STR_CLEARALL")) && self) {
        m_pRecordLogic->DeleteAll();
        ReleaseTable();
        m_pRecordLogic->forgetRecords();
        populateTable();
    }
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, __LINE__, now);
}

struct ConnectionHistoryDlg::SummaryLayouts {
    QVBoxLayout *vertical;
    QFormLayout *form;
    QHBoxLayout *horizontal;
};

void ConnectionHistoryDlg::ShowDialogOfLastConnectedRecord(QWidget *parent)
{
    Log::line("Enter: %s: %s: %d: %s:", sourcePath, __func__, 917, now);
    if (Log::isMissing(m_pRecordLogic, sourcePath, __func__, 919))
        return;
    deleteSummary();
    if (!m_pRecordLogic->GetLastConnectedRecord())
        return;
    SummaryLayouts layouts;
    if (!createSummary(parent, layouts))
        return;
    fillSummary(layouts);
    m_pLastRecordDlg->setVisible(true);
    connect(m_pLastRecordOkBtn, SIGNAL(clicked()), this, SLOT(onClickOkButton()));
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, 1011, now);
}

/// Deletes the frame at once, and with it every widget of the summary; their
/// pointers become null by themselves.
void ConnectionHistoryDlg::deleteSummary()
{
    delete m_pLastRecordDlg;
}

/// Creates every object of the summary, then looks for the first missing one.
bool ConnectionHistoryDlg::createSummary(QWidget *parent, SummaryLayouts &layouts)
{
    const char function[] = "ShowDialogOfLastConnectedRecord";
    m_pLastRecordDlg =
        new (std::nothrow) ExtendDialog(parent, Qt::WindowCloseButtonHint, enWidgetTypeDialog);
    if (Log::isMissing(m_pLastRecordDlg, sourcePath, function, 943))
        return false;
    m_pLastRecordWidget = new (std::nothrow) QWidget(m_pLastRecordDlg);
    if (m_pLastRecordWidget)
        m_pLastRecordDlg->AddMainWidget(m_pLastRecordWidget);
    m_pLastRecordDlg->setWindowTitle(tr(QLatin1String("IDS_TITLE_SINGLE")));
    m_pLastRecordDlg->setFixedSize(382, 217);

    layouts.vertical = new (std::nothrow) QVBoxLayout;
    m_pLastRecordGrp = new (std::nothrow) QGroupBox;
    m_pLastRecordOkBtn = new (std::nothrow) QPushButton;
    m_pDownloadedValueLbl = new (std::nothrow) QLabel;
    m_pUploadedValueLbl = new (std::nothrow) QLabel;
    m_pTransferTimeValueLbl = new (std::nothrow) QLabel;
    m_pDownloadedLbl = new (std::nothrow) QLabel;
    m_pUploadedLbl = new (std::nothrow) QLabel;
    m_pTransferTimeLbl = new (std::nothrow) QLabel;
    layouts.form = new (std::nothrow) QFormLayout;
    layouts.horizontal = new (std::nothrow) QHBoxLayout;

    QObject *const created[] = {
        layouts.vertical,        m_pLastRecordGrp,      m_pLastRecordOkBtn,
        m_pLastRecordWidget,     m_pDownloadedValueLbl, m_pUploadedValueLbl,
        m_pTransferTimeValueLbl, m_pDownloadedLbl,      m_pUploadedLbl,
        m_pTransferTimeLbl,      layouts.form,          layouts.horizontal,
    };
    int line = 964; // of the first check; the others follow line by line
    for (const QObject *object : created) {
        if (!Log::isMissing(object, sourcePath, function, line++))
            continue;
        // The frame and its main widget stay; the rest has no place in them yet.
        for (QObject *part : created) {
            if (part != m_pLastRecordWidget)
                delete part;
        }
        return false;
    }
    return true;
}

void ConnectionHistoryDlg::fillSummary(const SummaryLayouts &layouts)
{
    m_pLastRecordDlg->setWindowModality(Qt::WindowModal);
    layouts.form->setContentsMargins(10, 20, 10, 10);
    m_pUploadedLbl->setText(tr(QLatin1String("IDS_TREE_UPLOADED_DATA")));
    m_pDownloadedLbl->setText(tr(QLatin1String("IDS_TREE_DOWNLOADED_DATA")));
    m_pTransferTimeLbl->setText(tr(QLatin1String("IDS_TREE_TIME_TRANSFER")));
    const ConnectionRecord &last = m_pRecordLogic->m_lastRecord;
    m_pUploadedValueLbl->setText(last.m_strUploaded);
    m_pDownloadedValueLbl->setText(last.m_strDownloaded);
    m_pTransferTimeValueLbl->setText(last.m_strConnectedTime);
    layouts.form->addRow(m_pUploadedLbl, m_pUploadedValueLbl);
    layouts.form->addRow(m_pDownloadedLbl, m_pDownloadedValueLbl);
    layouts.form->addRow(m_pTransferTimeLbl, m_pTransferTimeValueLbl);
    m_pLastRecordGrp->setLayout(layouts.form);

    m_pLastRecordOkBtn->setText(tr(QLatin1String("IDS_BTN_OK")));
    // A stretch, not an alignment: it lets the button take the row's width.
    layouts.horizontal->addWidget(m_pLastRecordOkBtn, 132);
    m_pLastRecordGrp->setFixedHeight(106);
    m_pLastRecordGrp->setTitle(tr(QLatin1String("IDS_GROUP_STATISTIC")));
    layouts.vertical->setContentsMargins(14, 11, 15, 15);
    layouts.vertical->addWidget(m_pLastRecordGrp);
    layouts.vertical->addLayout(layouts.horizontal);
    m_pLastRecordWidget->setLayout(layouts.vertical);
}

void ConnectionHistoryDlg::onClickOkButton()
{
    Log::line("Enter: %s: %s: %d: %s:", sourcePath, __func__, 1029, now);
    if (m_pLastRecordDlg) {
        m_pLastRecordDlg->close();
        deleteSummary();
    }
    Log::line("Exit: %s: %s: %d: %s:", sourcePath, __func__, 1045, now);
}
