// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QStyleOptionViewItem>
#include <QTest>

using scripted::Host;

namespace
{
const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg");

QStringList own(LogCapture &log, const char *function)
{
    return log.takeAbout(path).filter(QLatin1String(function));
}

QString startFile(const char *function, int line)
{
    return QStringLiteral("Start File: %1 %2: %3: <now>:").arg(path, function).arg(line);
}

QString endFile(const char *function, int line)
{
    return QStringLiteral("End File: %1: %2: %3: <now>:").arg(path, function).arg(line);
}

const QStringList headerIds = {"IDS_LIST_APN",      "IDS_LIST_STARTTIME",
                               "IDS_LIST_ENDTIME",  "IDS_LIST_CONNECTEDTIME",
                               "IDS_LIST_UPLOADED", "IDS_LIST_DOWNLOADED"};
} // namespace

class tst_HistoryWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Host::instance().reset(); }

    void keepsItsSlotsInOrder();
    void buildsTheWidgetTree();
    void setsTheTableUp();
    void titlesTheColumns();
    void appliesTheTextsAgain();
    void translatesInAFixedOrder();
    void showsItselfAtTheRectangle();
    void opensAtTheFirstCellWithoutACurrentOne();
    void movesBeforeItResizes();
    void hidesAndKeepsItsRows();
    void showsNoFocusRectangle();
    void logsItsOperations();
    void onlyLogsTheStatisticsSlot();
    void endsCleanlyWithoutInit();
    void reportsAMissingContainer();
};

void tst_HistoryWindow::keepsItsSlotsInOrder()
{
    LoadedPlugin plugin;
    const QMetaObject *meta = plugin.historyWindow()->metaObject();
    QCOMPARE(meta->className(), "ConnectionHistoryDlg");
    QStringList methods;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        QCOMPARE(meta->method(i).methodType(), QMetaMethod::Slot);
        methods.append(QString::fromLatin1(meta->method(i).methodSignature()));
    }
    QCOMPARE(methods, (QStringList{"OnAccumulateClicked()", "showTableContextMenu(QPoint)",
                                   "onDelete()", "onDeleteAll()", "onClickOkButton()"}));
    QVERIFY(plugin.historyWindow()->qt_metacast("ConnectionHistoryDlg"));
}

void tst_HistoryWindow::buildsTheWidgetTree()
{
    LoadedPlugin plugin;
    plugin.show();
    QWidget *container = plugin.container();
    QVERIFY(container);
    QCOMPARE(container->parentWidget(), plugin.area());
    auto *vertical = qobject_cast<QVBoxLayout *>(container->layout());
    QVERIFY(vertical);
    QCOMPARE(vertical->count(), 2);
    QCOMPARE(vertical->itemAt(0)->widget(), plugin.table());
    QCOMPARE(vertical->stretch(0), 0);
    QCOMPARE(vertical->itemAt(0)->alignment(), Qt::Alignment());
    auto *horizontal = qobject_cast<QHBoxLayout *>(vertical->itemAt(1)->layout());
    QVERIFY(horizontal);
    QCOMPARE(vertical->stretch(1), 0);
    QCOMPARE(horizontal->count(), 1);
    QCOMPARE(horizontal->stretch(0), 1);
    auto *note = qobject_cast<QLabel *>(horizontal->itemAt(0)->widget());
    QVERIFY(note);
    QCOMPARE(note->objectName(), QStringLiteral("NetInfoRecordUIPlugin_LabelNote"));
    QCOMPARE(note->minimumHeight(), 35);
    QCOMPARE(note->maximumHeight(), 35);
    const auto shortcuts = plugin.table()->findChildren<QShortcut *>();
    QCOMPARE(shortcuts.size(), 1);
    QCOMPARE(shortcuts.first()->key(), QKeySequence(Qt::Key_Delete));
    QVERIFY(!static_cast<QWidget *>(plugin.historyWindow())->isVisible());
}

void tst_HistoryWindow::setsTheTableUp()
{
    LoadedPlugin plugin;
    plugin.show();
    QTableWidget *table = plugin.table();
    QCOMPARE(table->objectName(), QStringLiteral("Empty Table"));
    QCOMPARE(table->columnCount(), 6);
    QVERIFY(!table->wordWrap());
    QCOMPARE(table->contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(!table->showGrid());
    QVERIFY(!table->isSortingEnabled());
    QVERIFY(table->verticalHeader()->isHidden());
    const int widths[] = {110, 135, 135, 110, 110, 110};
    for (int column = 0; column < 6; ++column)
        QCOMPARE(table->columnWidth(column), widths[column]);
    QCOMPARE(int(table->horizontalHeader()->defaultAlignment()), 129);
    QCOMPARE(table->horizontalHeader()->textElideMode(), Qt::ElideRight);
    QCOMPARE(table->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
}

void tst_HistoryWindow::titlesTheColumns()
{
    Host::instance().textPrefix = QStringLiteral("t:");
    LoadedPlugin plugin;
    plugin.show();
    QCOMPARE(plugin.table()->rowCount(), 0);
    for (int column = 0; column < 6; ++column)
        QCOMPARE(plugin.table()->horizontalHeaderItem(column)->text(),
                 QStringLiteral("t:") + headerIds.at(column));
    auto *note = plugin.area()->findChild<QLabel *>("NetInfoRecordUIPlugin_LabelNote");
    QCOMPARE(note->text(), QStringLiteral("t:IDS_STC_EXPLAIN_TEXT"));
}

void tst_HistoryWindow::appliesTheTextsAgain()
{
    LoadedPlugin plugin;
    plugin.show();
    const QTableWidgetItem *before = plugin.table()->horizontalHeaderItem(0);
    plugin.table()->setColumnWidth(0, 20);
    plugin.table()->setObjectName(QStringLiteral("changed"));
    Host::instance().textPrefix = QStringLiteral("new:");
    plugin.notify()->Notify(1024, 0, 0);
    QVERIFY(plugin.table()->horizontalHeaderItem(0) != before);
    QCOMPARE(plugin.table()->horizontalHeaderItem(5)->text(),
             QStringLiteral("new:IDS_LIST_DOWNLOADED"));
    QCOMPARE(plugin.table()->columnWidth(0), 110);
    QCOMPARE(plugin.table()->objectName(), QStringLiteral("Empty Table"));
}

void tst_HistoryWindow::translatesInAFixedOrder()
{
    LoadedPlugin plugin;
    plugin.show();
    QStringList expected = headerIds;
    expected.append(QStringLiteral("IDS_STC_EXPLAIN_TEXT"));
    for (QString &id : expected)
        id += QStringLiteral("/NetInfoRecordUIPlugin");
    QCOMPARE(Host::instance().translated, expected);
}

void tst_HistoryWindow::showsItselfAtTheRectangle()
{
    LoadedPlugin plugin;
    plugin.ui()->Init();
    plugin.area()->show();
    QRect rect(QPoint(10, 20), QPoint(509, 319));
    plugin.ui()->ShowWindow(plugin.area(), rect);
    QWidget *container = plugin.container();
    QCOMPARE(container->geometry(), QRect(10, 20, 500, 300));
    QVERIFY(container->hasMouseTracking());
    QVERIFY(container->isVisible());
}

void tst_HistoryWindow::opensAtTheFirstCellWithoutACurrentOne()
{
    Host::instance().records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 200);
    LoadedPlugin plugin;
    plugin.show(QSize(400, 300));
    QVERIFY(QTest::qWaitForWindowExposed(plugin.area()));
    plugin.table()->setCurrentCell(150, 5);
    plugin.table()->scrollToBottom();
    QVERIFY(plugin.table()->rowAt(0) > 0);
    const QScrollBar *const columns = plugin.table()->horizontalScrollBar();
    QVERIFY(columns->value() > 0);
    QRect rect(0, 0, 400, 300);
    plugin.ui()->ShowWindow(plugin.area(), rect);
    QCOMPARE(plugin.table()->rowAt(0), 0);
    QCOMPARE(columns->value(), 0);
    QCOMPARE(plugin.table()->currentRow(), -1);
    QCOMPARE(plugin.table()->currentColumn(), -1);
}

void tst_HistoryWindow::movesBeforeItResizes()
{
    class Watcher : public QObject
    {
    public:
        QVector<QEvent::Type> events;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
                events.append(event->type());
            return false;
        }
    } watcher;
    LoadedPlugin plugin;
    plugin.show();
    plugin.container()->installEventFilter(&watcher);
    QRect rect(3, 4, 300, 200);
    plugin.ui()->FitSize(rect);
    QCOMPARE(watcher.events, (QVector<QEvent::Type>{QEvent::Move, QEvent::Resize}));
    watcher.events.clear();
    rect = QRect(7, 8, 350, 250);
    plugin.ui()->ShowWindow(plugin.area(), rect);
    QCOMPARE(watcher.events, (QVector<QEvent::Type>{QEvent::Resize, QEvent::Move}));
}

void tst_HistoryWindow::hidesAndKeepsItsRows()
{
    Host::instance().records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 3);
    LoadedPlugin plugin;
    plugin.show();
    plugin.ui()->Hide();
    QVERIFY(!plugin.container()->isVisible());
    QCOMPARE(plugin.container()->parentWidget(), plugin.area());
    QCOMPARE(plugin.table()->rowCount(), 3);
}

void tst_HistoryWindow::showsNoFocusRectangle()
{
    // Two pictures of one cell, with and without the focus, must not differ.
    Host::instance().records.append(scripted::record("focus", "1", "2", "1", "0", "0"));
    LoadedPlugin plugin;
    plugin.show();
    const auto picture = [&plugin](QStyle::State state) {
        QImage image(120, 14, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.initFrom(plugin.table());
        option.rect = image.rect();
        option.state = state;
        plugin.table()->itemDelegate()->paint(&painter, option,
                                              plugin.table()->model()->index(0, 0));
        return image;
    };
    QCOMPARE(
        picture(QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange),
        picture(QStyle::State_Enabled));
}

void tst_HistoryWindow::logsItsOperations()
{
    LogCapture log;
    LoadedPlugin plugin;
    QCOMPARE(own(log, " ConnectionHistoryDlg:"),
             (QStringList{startFile("ConnectionHistoryDlg", 125),
                          endFile("ConnectionHistoryDlg", 127)}));
    plugin.ui()->Init();
    QCOMPARE(own(log, " Init:"), (QStringList{startFile("Init", 442), endFile("Init", 501)}));
    plugin.notify()->Notify(1024, 0, 0);
    const QStringList lines = log.takeAbout(path);
    QCOMPARE(lines.first(), startFile("uiSetText", 323));
    QCOMPARE(lines.last(), endFile("uiSetText", 398));
    QCOMPARE(lines.count(QStringLiteral("Start: %1 tr: 304: <now>:").arg(path)), 7);
    QCOMPARE(lines.size(), 9);
    QRect rect(0, 0, 10, 10);
    plugin.ui()->ShowWindow(plugin.area(), rect);
    QCOMPARE(log.takeAbout(path),
             (QStringList{startFile("ShowWindow", 520), endFile("ShowWindow", 542)}));
    plugin.ui()->FitSize(rect);
    QCOMPARE(log.takeAbout(path),
             (QStringList{QStringLiteral("Start of %1: FitSize: 255: ").arg(path),
                          QStringLiteral("End of %1: FitSize: 264: ").arg(path)}));
    plugin.ui()->Hide();
    QCOMPARE(log.takeAbout(path),
             (QStringList{QStringLiteral("Start: %1 Hide: 281: <now>:").arg(path),
                          QStringLiteral("End: %1 Hide: 286: <now>:").arg(path)}));
    plugin.end();
    const QStringList end = log.takeAbout(path);
    QCOMPARE(end.first(), QStringLiteral("Start: %1 Destroy: 56: <now>:").arg(path));
    QCOMPARE(end.at(1), startFile("~ConnectionHistoryDlg", 147));
    QCOMPARE(end.at(end.size() - 2), endFile("~ConnectionHistoryDlg", 193));
    QCOMPARE(end.last(), QStringLiteral("End: %1 Destroy: 58: <now>:").arg(path));
}

void tst_HistoryWindow::onlyLogsTheStatisticsSlot()
{
#ifdef NETINFORECORD_WIRE_STATISTICS
    QSKIP("in this build the slot opens the statistics; tst_statistics tests that", "");
#endif
    LoadedPlugin plugin;
    plugin.show();
    const int windows = QApplication::topLevelWidgets().size();
    Host::instance().calls.clear();
    LogCapture log;
    QVERIFY(QMetaObject::invokeMethod(plugin.historyWindow(), "OnAccumulateClicked"));
    QCOMPARE(log.take(), (QStringList{startFile("OnAccumulateClicked", 416),
                                      endFile("OnAccumulateClicked", 425)}));
    QVERIFY(Host::instance().calls.isEmpty());
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
}

void tst_HistoryWindow::endsCleanlyWithoutInit()
{
    LoadedPlugin plugin; // the leak sanitizer watches what this leaves
    QVERIFY(plugin.historyWindow());
    plugin.end();
    QVERIFY(!plugin.historyWindow());
}

void tst_HistoryWindow::reportsAMissingContainer()
{
    LoadedPlugin plugin;
    plugin.show();
    plugin.destroyArea();
    LogCapture log;
    const auto missing = [](const char *function, int line) {
        return QStringLiteral("Arg is NULL: <now>: %1: %2 %3").arg(path, function).arg(line);
    };
    QRect rect(0, 0, 10, 10);
    QVERIFY(plugin.ui()->ShowWindow(nullptr, rect));
    QCOMPARE(log.takeAbout(path),
             (QStringList{startFile("ShowWindow", 520), missing("ShowWindow", 522)}));
    plugin.ui()->Init();
    QCOMPARE(log.takeAbout(path), (QStringList{startFile("Init", 442), missing("Init", 444)}));
    plugin.notify()->Notify(1024, 0, 0);
    QCOMPARE(log.takeAbout(path),
             (QStringList{startFile("uiSetText", 323), missing("uiSetText", 338)}));
}

QTEST_MAIN(tst_HistoryWindow)
#include "tst_historywindow.moc"
