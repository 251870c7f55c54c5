// SPDX-License-Identifier: MIT
#include "ConnectionHistoryDlg.h"

#ifdef NETINFORECORD_WIRE_STATISTICS
#    include "AccumulateDlg.h"
#endif
#include "Change.h"
#include "ExtendDialog.h"
#include "HistoryCells.h"
#include "Log.h"
#include "NetInfoRecordLogic.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>
#include <memory>
#include <new>

using HistoryCells::columnCount;
using HistoryCells::columns;
using HistoryCells::rowHeight;

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
    const Log::Operation log(Log::start, Log::connectionHistoryDlg, __func__);
    log.entry(56);
    delete m_pConnectionHistoryInst;
    m_pConnectionHistoryInst = nullptr;
    log.exit(58);
}

ConnectionHistoryDlg *ConnectionHistoryDlg::Instance()
{
    const Log::Operation log(Log::start, Log::connectionHistoryDlg, __func__);
    log.entry(75);
    if (!m_pConnectionHistoryInst)
        m_pConnectionHistoryInst = new ConnectionHistoryDlg;
    log.exit(81);
    return m_pConnectionHistoryInst;
}

ConnectionHistoryDlg::ConnectionHistoryDlg()
    : m_pContainerWidget(new QWidget)
    , m_pConnectionTblTreeWidget(new QTableWidget(m_pContainerWidget))
    , m_pGridDelegate(new GridDelegateLayout)
    , m_pTableDeleteShortcut(new QShortcut(m_pConnectionTblTreeWidget))
    , m_pNoteLabel(new QLabel)
    , m_commonCell(HistoryCells::common())
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

    const Log::Operation log(Log::startFile, Log::connectionHistoryDlg, __func__);
    log.entry(125);
    m_pRecordLogic = NetInfoRecordLogic::Instance();
    log.exit(127);
}

ConnectionHistoryDlg::~ConnectionHistoryDlg()
{
    const Log::Operation log(Log::startFile, Log::connectionHistoryDlg, __func__);
    log.entry(147);
    ReleaseTable();
    deleteHeaderItemsAndDelegate();
    delete m_pLastRecordDlg;
    delete m_pConnectionTblTreeWidget;
    delete m_pContainerWidget;
    delete m_pNoteLabel; // still without a parent when Init has not run
    NetInfoRecordLogic::Destroy();
    m_pRecordLogic = nullptr;
    log.exit(193);
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
    const Log::Operation log(Log::startOf, Log::connectionHistoryDlg, __func__);
    log.entry(255);
    if (m_pContainerWidget) {
        m_pContainerWidget->move(rect.topLeft());
        m_pContainerWidget->resize(rect.size());
    }
    log.exit(264);
}

void ConnectionHistoryDlg::Hide()
{
    const Log::Operation log(Log::start, Log::connectionHistoryDlg, __func__);
    log.entry(281);
    if (m_pContainerWidget)
        m_pContainerWidget->setVisible(false);
    log.exit(286);
}

QString ConnectionHistoryDlg::tr(QString id)
{
    Log::Operation(Log::start, Log::connectionHistoryDlg, __func__).entry(304);
    return Change::tr(id, QLatin1String("NetInfoRecordUIPlugin"));
}

void ConnectionHistoryDlg::uiSetText()
{
    const Log::Operation log(Log::startFile, Log::connectionHistoryDlg, __func__);
    log.entry(323);
    std::array<std::unique_ptr<QTableWidgetItem>, columnCount> headerItems;
    for (auto &item : headerItems)
        item.reset(new (std::nothrow) QTableWidgetItem);
    for (int column = 0; column < columnCount; ++column) {
        if (log.isMissing(headerItems[column].get(), 332 + column))
            return;
    }
    if (log.isMissing(m_pConnectionTblTreeWidget, 338) || log.isMissing(m_pNoteLabel, 342))
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
    if (log.isMissing(header, 394))
        return;
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setTextElideMode(Qt::ElideRight);
    log.exit(398);
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
    const Log::Operation log(Log::startFile, Log::connectionHistoryDlg, __func__);
    log.entry(416);
#ifdef NETINFORECORD_WIRE_STATISTICS
    if (m_pContainerWidget) // a dialog without a parent would outlive the window
        AccumulateDlg::Instance()->showWindow(m_pContainerWidget);
#endif
    log.exit(425);
}

void ConnectionHistoryDlg::Init()
{
    const Log::Operation log(Log::startFile, Log::connectionHistoryDlg, __func__);
    log.entry(442);
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
    log.exit(501);
}

bool ConnectionHistoryDlg::buildLayout()
{
    const Log::Place log(Log::connectionHistoryDlg, "Init");
    if (log.isAnyMissing({m_pConnectionTblTreeWidget, m_pContainerWidget}, 444))
        return false;
    m_pConnectionTblTreeWidget->setObjectName(QLatin1String("m_pConnectionTblTreeWidget"));
    if (m_pContainerWidget->layout())
        return true; // built by an earlier Init

    std::unique_ptr<QVBoxLayout> vertical(new (std::nothrow) QVBoxLayout);
    if (log.isAnyMissing({vertical.get(), m_pTableDeleteShortcut, m_pNoteLabel}, 452))
        return false;
    m_pTableDeleteShortcut->setKey(QKeySequence(Qt::Key_Delete));
    vertical->addWidget(m_pConnectionTblTreeWidget);

    auto *horizontal = new (std::nothrow) QHBoxLayout;
    if (log.isMissing(horizontal, 461))
        return false;
    m_pNoteLabel->setFixedHeight(35);
    horizontal->addWidget(m_pNoteLabel, 1);
    vertical->addLayout(horizontal);
    m_pContainerWidget->setLayout(vertical.release());
    return true;
}

bool ConnectionHistoryDlg::ShowWindow(QWidget *parent, QRect &rect)
{
    const Log::Operation log(Log::startFile, Log::connectionHistoryDlg, __func__);
    log.entry(520);
    if (log.isMissing(m_pContainerWidget, 522))
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
    log.exit(542);
    return true;
}
