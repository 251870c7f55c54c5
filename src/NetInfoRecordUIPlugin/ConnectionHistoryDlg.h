// SPDX-License-Identifier: MIT
#pragma once

#include <QItemDelegate>
#include <QPointer>
#include <QString>
#include <QTableWidgetItem>
#include <QVector>
#include <QWidget>

class ExtendDialog;
class NetInfoRecordLogic;
class QAction;
class QGroupBox;
class QItemSelectionRange;
class QLabel;
class QMenu;
class QPushButton;
class QRect;
class QShortcut;
class QTableWidget;
struct ConnectionRecord;

/// The table's item delegate, which shows no focus rectangle.
class GridDelegateLayout : public QItemDelegate
{
public:
    ~GridDelegateLayout() override;

protected:
    void drawFocus(QPainter *painter, const QStyleOptionViewItem &option,
                   const QRect &rect) const override;
};

/// The history window: the table of past connections with its deletion, and the
/// summary of the connection that has just ended. The object itself is never
/// shown; what is visible lives under a container widget that goes into the
/// host's area. One instance per process, GUI thread only. The window itself is in
/// ConnectionHistoryDlg.cpp; its rows, its menu, the deletion and the summary each in
/// the History*.cpp of that name.
class ConnectionHistoryDlg : public QWidget
{
    Q_OBJECT

public:
    /// The single instance, made on the first call.
    static ConnectionHistoryDlg *Instance();
    /// Ends the single instance, and the record store with it.
    static void Destroy();

    /// Builds the widget tree, fetches every record and fills the table.
    void Init();
    /// Places the container in `parent` at `rect` and shows it, at its first
    /// row and without a current cell; false only without a container.
    bool ShowWindow(QWidget *parent, QRect &rect);
    void FitSize(QRect &rect);
    void Hide();
    /// Applies the table's settings and every translated text again.
    void uiSetText();
    /// The host's text for a string identifier.
    QString tr(QString id);

    /// Shows one row per record of the store's map, in the map's own order.
    void populateTable();
    void PopulateTableRowOfConnectionRecord(ConnectionRecord *record, int row);
    /// Frees the records that the rows refer to, and those of rows that the host has
    /// destroyed; rows and items stay, so the caller empties the store's map and
    /// refills or ends the table next.
    void ReleaseTable();
    /// Fetches every record again and fills the table anew.
    void reload();

    /// Makes a fresh context menu; earlier ones live as long as the table.
    void createTableRightClickAction();
    /// Replaces any earlier summary by one of the last connection, window-modal
    /// over `parent`, and returns at once. Shows nothing without a last record.
    void ShowDialogOfLastConnectedRecord(QWidget *parent);

public Q_SLOTS:
    // The order of the slots is contract: hosts may invoke them by index.
    /// Opens the statistics where the plug-in was built with them; else it only
    /// logs, and keeps its place.
    void OnAccumulateClicked();
    void showTableContextMenu(const QPoint &point);
    void onDelete();
    void onDeleteAll();
    void onClickOkButton();

private:
    using Cells = QVector<const QTableWidgetItem *>;
    using Records = QVector<ConnectionRecord *>;
    struct SummaryLayouts;

    /// What is selected: how many cells, and which of them lead to a record. The
    /// list that Qt makes of selected cells takes much longer to make.
    struct Selection {
        void addRow(const QTableWidget &table, int row, const QItemSelectionRange &range);

        int count = 0;
        Cells firstCells;
    };

    ConnectionHistoryDlg();
    ~ConnectionHistoryDlg() override;

    bool buildLayout();
    void setTableBehaviour();
    void discardRows();
    void fetchRecords();
    bool collectLinkedRecords();
    void freeOwnRecords();
    static void keepEachOnce(Records &records);
    void deleteHeaderItemsAndDelegate();

    bool isConfirmed(const QString &textId);
    Selection selectedCells() const;
    void removeCells(Cells cells);
    void removeRows(const QVector<int> &ascendingRows);
    qint64 selectedArea() const;
    void removeRecords(const QVector<int> &sortedIds);
    void freeRecords(Records records);

    void deleteSummary();
    bool createSummary(QWidget *parent, SummaryLayouts &layouts);
    void fillSummary(const SummaryLayouts &layouts);

    static ConnectionHistoryDlg *m_pConnectionHistoryInst;

    // Guarded pointers: a host may destroy its area, and with it the container
    // and all below, or its main window with a summary, before OnDestroy.
    QPointer<QWidget> m_pContainerWidget;
    QPointer<QTableWidget> m_pConnectionTblTreeWidget;
    NetInfoRecordLogic *m_pRecordLogic = nullptr; // shared; ended by the destructor
    QPointer<QMenu> m_pContextMenu;
    QAction *m_pDeleteAction = nullptr;    // child of this object
    QAction *m_pDeleteAllAction = nullptr; // child of this object
    QPointer<GridDelegateLayout> m_pGridDelegate;

    // The frame owns the rest through its main widget.
    QPointer<ExtendDialog> m_pLastRecordDlg;
    QPointer<QWidget> m_pLastRecordWidget;
    QPointer<QGroupBox> m_pLastRecordGrp;
    QPointer<QPushButton> m_pLastRecordOkBtn;
    QPointer<QLabel> m_pDownloadedValueLbl;
    QPointer<QLabel> m_pUploadedValueLbl;
    QPointer<QLabel> m_pTransferTimeValueLbl;
    QPointer<QLabel> m_pDownloadedLbl;
    QPointer<QLabel> m_pUploadedLbl;
    QPointer<QLabel> m_pTransferTimeLbl;

    QPointer<QShortcut> m_pTableDeleteShortcut;
    QPointer<QShortcut> m_pMenuDeleteShortcut;
    QPointer<QShortcut> m_pMenuDShortcut;
    QPointer<QShortcut> m_pMenuAShortcut;
    QPointer<QLabel> m_pNoteLabel;

    /// Copies share what they have in common with it, which costs far less than to set
    /// each role of each cell.
    const QTableWidgetItem m_commonCell;
    /// What this window has put into rows, or would have: freed by it even where a
    /// host has destroyed the rows. One can be here twice, which costs less than to
    /// look for it at each row.
    Records m_ownRecords;
    int m_nTableChanges = 0; // tells an open question that its rows are others now
};
