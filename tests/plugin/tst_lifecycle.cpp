// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QLoggingCategory>
#include <QTest>

using scripted::Host;

namespace
{
const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/NetInfoRecordUIPlugin");

/// Lines of the root object's own file.
QStringList own(LogCapture &log)
{
    return log.takeAbout(path);
}

QString startOf(const char *function, int line)
{
    return QStringLiteral("Start of %1: %2: %3: ").arg(path, function).arg(line);
}

QString endOf(const char *function, int line)
{
    return QStringLiteral("End of %1: %2: %3: ").arg(path, function).arg(line);
}
} // namespace

class tst_Lifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Host::instance().reset(); }

    void createsStoreThenWindow();
    void loadsTheRecordsOnInitOnly();
    void showsTheWindowInTheHostsArea();
    void showsTheWindowAgainAsModal();
    void showsTheNullRectangleAsModalBeforeItWasShown();
    void fitsAndHides();
    void refusesAnEmptyLanguage();
    void initialisesAgain();
    void isNeverReady();
    void registersNoEvents();
    void endsWindowAndStore();
    void endsTwice();
    void survivesEveryOperationAfterItsEnd();
    void leavesTheWindowWhenOnlyTheRootGoes();
    void survivesTheHostsAreaGoingFirst();
    void writesNoLineWhileDebugOutputIsOff();
};

void tst_Lifecycle::createsStoreThenWindow()
{
    LogCapture log;
    LoadedPlugin plugin;
    const QStringList lines = log.take();
    QCOMPARE(lines.first(),
             QStringLiteral("Start File: %1 NetInfoRecordUIPlugin: 48: <time>:").arg(path));
    QCOMPARE(lines.last(),
             QStringLiteral("End File: %1: NetInfoRecordUIPlugin: 53: <time>:").arg(path));
    const int store = lines.indexOf(QStringLiteral(
        "Start: <now>: ../../src/NetInfoRecordUIPlugin/NetInfoRecordLogic: Instance 85"));
    const int window = lines.indexOf(QStringLiteral(
        "Start: ../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg Instance: 75: <now>:"));
    QVERIFY(store > 0);
    QVERIFY(window > store);
    QVERIFY(plugin.historyWindow());
    QVERIFY(Host::instance().calls.isEmpty());
}

void tst_Lifecycle::loadsTheRecordsOnInitOnly()
{
    LoadedPlugin plugin;
    LogCapture log;
    QVERIFY(plugin.ui()->Init());
    QCOMPARE(own(log), (QStringList{startOf("Init", 114), endOf("Init", 121)}));
    QCOMPARE(Host::instance().calls.count(QStringLiteral("GetAllConnRecord()")), 1);
}

void tst_Lifecycle::showsTheWindowInTheHostsArea()
{
    LoadedPlugin plugin;
    plugin.ui()->Init();
    QRect rect(QPoint(10, 20), QPoint(509, 319));
    LogCapture log;
    QVERIFY(plugin.ui()->ShowWindow(plugin.area(), rect));
    QCOMPARE(own(log),
             (QStringList{QStringLiteral("Start File: %1: ShowWindow: 71: <time>:").arg(path),
                          QStringLiteral("End File: %1: ShowWindow: 79: <time>:").arg(path)}));
    QCOMPARE(plugin.container()->geometry(), QRect(10, 20, 500, 300));
    QCOMPARE(rect, QRect(10, 20, 500, 300));
}

void tst_Lifecycle::showsTheWindowAgainAsModal()
{
    LoadedPlugin plugin;
    plugin.show(QSize(600, 300));
    QPointer<QWidget> container = plugin.container();
    LogCapture log;
    QCOMPARE(plugin.ui()->DoModal(), 0);
    QCOMPARE(own(log),
             (QStringList{startOf("DoModal", 173),
                          QStringLiteral("Start File: %1: ShowWindow: 71: <time>:").arg(path),
                          QStringLiteral("End File: %1: ShowWindow: 79: <time>:").arg(path),
                          endOf("DoModal", 177)}));
    QVERIFY(container->isWindow());
    QVERIFY(container->isVisible());
    QCOMPARE(container->size(), QSize(600, 300));
}

void tst_Lifecycle::showsTheNullRectangleAsModalBeforeItWasShown()
{
    LoadedPlugin plugin;
    plugin.ui()->Init();
    LogCapture log;
    QCOMPARE(plugin.ui()->DoModal(), 0);
    QWidget *container = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("NetInfoRecordUIPlugin_ConnectionHistoryWidget"))
            container = window;
    }
    QVERIFY(container);
    QVERIFY(container->isVisible());
    QCOMPARE(container->pos(), QPoint(0, 0));
}

void tst_Lifecycle::fitsAndHides()
{
    LoadedPlugin plugin;
    plugin.show(QSize(600, 300));
    LogCapture log;
    QRect rect(5, 6, 444, 222);
    plugin.ui()->FitSize(rect);
    QCOMPARE(own(log), (QStringList{startOf("FitSize", 219), endOf("FitSize", 225)}));
    QCOMPARE(plugin.container()->geometry(), QRect(5, 6, 444, 222));
    plugin.ui()->Hide();
    QCOMPARE(own(log), (QStringList{startOf("Hide", 195), endOf("Hide", 202)}));
    QVERIFY(plugin.container()->isHidden());
    QPointer<QWidget> container = plugin.container();
    plugin.ui()->DoModal(); // with the rectangle that FitSize stored
    QVERIFY(container->isVisible());
    QCOMPARE(container->size(), QSize(444, 222));
}

void tst_Lifecycle::refusesAnEmptyLanguage()
{
    LoadedPlugin plugin;
    LogCapture log;
    QVERIFY(!plugin.ui()->ChangeLang(QString()));
    QCOMPARE(own(log),
             (QStringList{startOf("ChangeLang", 244),
                          QStringLiteral("Empty String %1: ChangeLang: 248: ").arg(path)}));
    QVERIFY(plugin.ui()->ChangeLang(QStringLiteral("en")));
    QCOMPARE(own(log), (QStringList{startOf("ChangeLang", 244), startOf("ChangeLang", 252)}));
    QVERIFY(Host::instance().calls.isEmpty());
    QVERIFY(Host::instance().translated.isEmpty());
}

void tst_Lifecycle::initialisesAgain()
{
    Host::instance().records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 4);
    LoadedPlugin plugin;
    plugin.show();
    Host::instance().records.resize(3);
    plugin.ui()->Init();
    QCOMPARE(plugin.table()->rowCount(), 3);
    QCOMPARE(plugin.table()->item(0, 0)->text(), QStringLiteral("a"));
    plugin.area()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(plugin.area()));
    plugin.table()->selectRow(0);
    QTest::keyClick(plugin.table(), Qt::Key_Delete);
    QCOMPARE(Host::instance().messageBoxes.size(), 1); // the key is connected once
}

void tst_Lifecycle::isNeverReady()
{
    LoadedPlugin plugin;
    QVERIFY(!plugin.ui()->IsReady());
    plugin.show();
    QVERIFY(!plugin.ui()->IsReady());
}

void tst_Lifecycle::registersNoEvents()
{
    LoadedPlugin plugin;
    LogCapture log;
    plugin.ui()->UnSDKRegisterEvent();
    QCOMPARE(log.take(), (QStringList{path + ": UnSDKRegisterEvent called",
                                      path + ": UnSDKRegisterEvent exit"}));
}

void tst_Lifecycle::endsWindowAndStore()
{
    Host::instance().records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 3);
    LoadedPlugin plugin;
    plugin.show();
    LogCapture log;
    plugin.end();
    const QStringList lines = log.take();
    QCOMPARE(lines.first(), QStringLiteral("Start: %1 OnDestroy: 487: <now>:").arg(path));
    QCOMPARE(lines.last(), QStringLiteral("End: %1 OnDestroy: 490: <now>:").arg(path));
    QCOMPARE(lines.filter(QStringLiteral("NetInfoRecordLogic: Destroy 111")).size(), 2);
    QCOMPARE(lines.filter(QStringLiteral("~NetInfoRecordLogic 58")).size(), 1);
    QVERIFY(!plugin.historyWindow());
    QVERIFY(!plugin.container());
    QVERIFY(plugin.root());
}

void tst_Lifecycle::endsTwice()
{
    LoadedPlugin plugin;
    plugin.show();
    plugin.end();
    LogCapture log;
    plugin.ui()->OnDestroy();
    QCOMPARE(own(log), (QStringList{QStringLiteral("Start: %1 OnDestroy: 487: <now>:").arg(path),
                                    QStringLiteral("End: %1 OnDestroy: 490: <now>:").arg(path)}));
}

void tst_Lifecycle::survivesEveryOperationAfterItsEnd()
{
    LoadedPlugin plugin;
    plugin.show();
    plugin.end();
    QRect rect(0, 0, 10, 10);
    QVERIFY(plugin.ui()->Init());
    QVERIFY(plugin.ui()->ShowWindow(plugin.area(), rect));
    plugin.ui()->FitSize(rect);
    plugin.ui()->Hide();
    QCOMPARE(plugin.ui()->DoModal(), 0);
    LogCapture log;
    QCOMPARE(plugin.notify()->Notify(1024, 0, 0), 0u);
    QCOMPARE(own(log), QStringList{startOf("Notify", 273)});
}

void tst_Lifecycle::leavesTheWindowWhenOnlyTheRootGoes()
{
    LoadedPlugin plugin;
    plugin.show();
    QObject *window = plugin.historyWindow();
    LogCapture log;
    delete plugin.root();
    QVERIFY(log.take().isEmpty());
    QCOMPARE(plugin.historyWindow(), window);
}

void tst_Lifecycle::survivesTheHostsAreaGoingFirst()
{
    Host::instance().records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 5);
    LoadedPlugin plugin;
    plugin.show();
    plugin.destroyArea();
    QWidget other;
    QRect rect(0, 0, 100, 100);
    QVERIFY(plugin.ui()->ShowWindow(&other, rect));
    plugin.ui()->FitSize(rect);
    plugin.ui()->Hide();
    plugin.ui()->DoModal();
    plugin.notify()->Notify(1024, 0, 0);
    for (const char *slot : {"OnAccumulateClicked", "onDelete", "onDeleteAll", "onClickOkButton"})
        QVERIFY(QMetaObject::invokeMethod(plugin.historyWindow(), slot));
    QVERIFY(QMetaObject::invokeMethod(plugin.historyWindow(), "showTableContextMenu",
                                      Q_ARG(QPoint, QPoint(1, 1))));
    plugin.ui()->Init();
    plugin.end();
}

void tst_Lifecycle::writesNoLineWhileDebugOutputIsOff()
{
    LogCapture log;
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    {
        LoadedPlugin plugin;
        plugin.show();
    }
    QLoggingCategory::setFilterRules(QString());
    QVERIFY(log.take().isEmpty());
}

QTEST_MAIN(tst_Lifecycle)
#include "tst_lifecycle.moc"
