// SPDX-License-Identifier: MIT
#include "DialupContainer.h"
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QDialog>
#include <QTest>

#include <memory>

using scripted::Host;

namespace
{
const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/NetInfoRecordUIPlugin");

QString missing(int line)
{
    return QStringLiteral("Arg is NULL: <now>: %1: onConnectionReceived %2").arg(path).arg(line);
}
} // namespace

class tst_Notify : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_plugin.reset(); }

    void reactsToStatusSequences_data();
    void reactsToStatusSequences();
    void asksTheSettingWithoutRegardToCase_data();
    void asksTheSettingWithoutRegardToCase();
    void suppressesFromThenOn();
    void remembersAConnectionWhileSuppressed();
    void asksTheContainerForTheDialupService();
    void ignoresStatusWithoutTheService_data();
    void ignoresStatusWithoutTheService();
    void callsTheHostInOrder();
    void listsTheFinishedConnection();
    void listsItBeforeInitToo();
    void emptiesTheTableWhenTheReloadFails();
    void returnsZeroForEveryEvent_data();
    void returnsZeroForEveryEvent();
    void logsItsEvents();
    void survivesTheAreaGoingFirst();
    void survivesTheEndWhileItAsksForTheSetting();

private:
    void status(unsigned int value) { m_plugin->notify()->Notify(1536, value, 0); }
    int summaries() const { return countCalls("GetLastConnRecord()"); }
    int reloads() const { return countCalls("GetAllConnRecord()"); }
    static int countCalls(const char *call)
    {
        return static_cast<int>(Host::instance().calls.count(QLatin1String(call)));
    }

    scripted::DialupContainer m_container;
    std::unique_ptr<LoadedPlugin> m_plugin;
};

void tst_Notify::init()
{
    Host::instance().reset();
    m_container.hasPlugin = true;
    m_container.service.givesService = true;
    Host::instance().container = &m_container;
    Host::instance().settings[{"NetInfoRecordUIPlugin", "WhetherShowNotesbox"}] = "true";
    m_plugin = std::make_unique<LoadedPlugin>();
    m_plugin->show();
    Host::instance().calls.clear();
}

void tst_Notify::reactsToStatusSequences_data()
{
    QTest::addColumn<QVector<unsigned int>>("statuses");
    QTest::addColumn<int>("times");
    const auto row = [](const char *name, const QVector<unsigned int> &statuses, int times) {
        QTest::newRow(name) << statuses << times;
    };
    row("up, down", {1, 0}, 1);
    row("up, down, down", {1, 0, 0}, 1);
    row("down alone", {0}, 0);
    row("up alone", {1}, 0);
    row("up, up, down", {1, 1, 0}, 1);
    row("up, unknown, down", {1, 7, 0}, 1);
    row("unknown, down", {2, 0}, 0);
    row("twice up, down", {1, 0, 1, 0}, 2);
}

void tst_Notify::reactsToStatusSequences()
{
    QFETCH(QVector<unsigned int>, statuses);
    QFETCH(int, times);
    for (unsigned int value : statuses)
        status(value);
    QCOMPARE(summaries(), times);
    QCOMPARE(reloads(), times);
}

void tst_Notify::asksTheSettingWithoutRegardToCase_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<int>("shown");
    QTest::newRow("true") << "true" << 1;
    QTest::newRow("upper case") << "TRUE" << 1;
    QTest::newRow("mixed case") << "tRuE" << 1;
    QTest::newRow("false") << "false" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("absent") << QString() << 0;
    QTest::newRow("a number") << "1" << 0;
    QTest::newRow("with a blank") << "true " << 0;
}

void tst_Notify::asksTheSettingWithoutRegardToCase()
{
    QFETCH(QString, setting);
    Host::instance().settings[{"NetInfoRecordUIPlugin", "WhetherShowNotesbox"}] = setting;
    status(1);
    status(0);
    QTEST(summaries(), "shown");
    QCOMPARE(reloads(), 1);
}

void tst_Notify::suppressesFromThenOn()
{
    status(1);
    m_plugin->notify()->Notify(2384, 0, 0);
    status(0);
    status(1);
    status(0);
    QCOMPARE(summaries(), 0);
    QCOMPARE(reloads(), 0);
    QCOMPARE(countCalls("GetSettings(NetInfoRecordUIPlugin, WhetherShowNotesbox)"), 0);
}

void tst_Notify::remembersAConnectionWhileSuppressed()
{
    m_plugin->notify()->Notify(2384, 0, 0);
    status(1);
    status(0);
    // The memory is the module's, the suppression the object's: a fresh root
    // object answers for the connection seen by the first.
    delete m_plugin->root();
    m_plugin->root();
    status(0);
    QCOMPARE(summaries(), 1);
}

void tst_Notify::asksTheContainerForTheDialupService()
{
    status(7);
    QCOMPARE(m_container.askedClassId, QStringLiteral("92804312-432E-401F-96BB-1C20D852815D"));
    QCOMPARE(m_container.askedType, 16401);
    QCOMPARE(m_container.reservedCalls, 0);
    QCOMPARE(Host::instance().calls, QStringList{"GetPluginContainer()"});
}

void tst_Notify::ignoresStatusWithoutTheService_data()
{
    QTest::addColumn<int>("line");
    QTest::newRow("no container") << 346;
    QTest::newRow("no dial-up plug-in") << 348;
    QTest::newRow("a plug-in without the service") << 350;
}

void tst_Notify::ignoresStatusWithoutTheService()
{
    QFETCH(int, line);
    if (line == 346)
        Host::instance().container = nullptr;
    m_container.hasPlugin = line != 348;
    m_container.service.givesService = line != 350;
    LogCapture log;
    status(1);
    QCOMPARE(log.takeAbout(QStringLiteral("onConnectionReceived")), QStringList{missing(line)});

    Host::instance().container = &m_container;
    m_container.hasPlugin = true;
    m_container.service.givesService = true;
    status(0); // the ignored connection was not remembered
    QCOMPARE(reloads(), 0);
}

void tst_Notify::callsTheHostInOrder()
{
    status(1);
    Host::instance().calls.clear();
    status(0);
    QCOMPARE(Host::instance().calls,
             (QStringList{"GetPluginContainer()",
                          "GetSettings(NetInfoRecordUIPlugin, WhetherShowNotesbox)",
                          "GetMainWindow()", "GetLastConnRecord()", "ExtendDialog(0x08000000, 1)",
                          "AddMainWidget()", "setWindowTitle(IDS_TITLE_SINGLE)",
                          "GetAllConnRecord()", "ReleaseConnRecord(array)"}));
}

void tst_Notify::listsTheFinishedConnection()
{
    QCOMPARE(m_plugin->table()->rowCount(), 0);
    status(1);
    Host::instance().records.append(scripted::record("new", "1", "2", "1", "0", "0"));
    status(0);
    QCOMPARE(m_plugin->table()->rowCount(), 1);
    QCOMPARE(m_plugin->table()->item(0, 0)->text(), QStringLiteral("new"));
    for (int i = 0; i < 5; ++i) {
        status(1);
        Host::instance().records.append(scripted::record("more", "1", "2", "1", "0", "0"));
        status(0);
    }
    QCOMPARE(m_plugin->table()->rowCount(), 6);
}

void tst_Notify::listsItBeforeInitToo()
{
    m_plugin.reset();
    m_plugin = std::make_unique<LoadedPlugin>();
    QRect rect(0, 0, 760, 400);
    m_plugin->ui()->ShowWindow(m_plugin->area(), rect);
    Host::instance().records.append(scripted::record("new", "1", "2", "1", "0", "0"));
    status(1);
    status(0);
    QCOMPARE(m_plugin->table()->rowCount(), 1);
    QVERIFY(m_plugin->table()->item(0, 0)); // without it nothing would free the record
    QCOMPARE(m_plugin->table()->item(0, 0)->text(), QStringLiteral("new"));
}

void tst_Notify::emptiesTheTableWhenTheReloadFails()
{
    Host::instance().records.append(scripted::record("new", "1", "2", "1", "0", "0"));
    status(1);
    status(0);
    QCOMPARE(m_plugin->table()->rowCount(), 1);
    Host::instance().getAllStatus = 1;
    status(1);
    status(0);
    QCOMPARE(m_plugin->table()->rowCount(), 0);
}

void tst_Notify::returnsZeroForEveryEvent_data()
{
    QTest::addColumn<unsigned int>("event");
    for (unsigned int event : {0u, 1u, 1024u, 1536u, 2384u, 4294967295u})
        QTest::addRow("event %u", event) << event;
}

void tst_Notify::returnsZeroForEveryEvent()
{
    QFETCH(unsigned int, event);
    LogCapture log;
    QCOMPARE(m_plugin->notify()->Notify(event, 9, 9), 0u);
    const QStringList lines = log.takeAbout(path + QStringLiteral(": Notify"));
    QCOMPARE(lines, (QStringList{"Start of " + path + ": Notify: 273: ",
                                 "Start of " + path + ": Notify: 313: "}));
}

void tst_Notify::logsItsEvents()
{
    LogCapture log;
    status(3);
    QCOMPARE(log.take(),
             (QStringList{"Start of " + path + ": Notify: 273: ",
                          "Status after connection: " + path + " onConnectionReceived 3",
                          "Start of " + path + ": Notify: 313: "}));
}

void tst_Notify::survivesTheAreaGoingFirst()
{
    Host::instance().records.append(scripted::record("new", "1", "2", "1", "0", "0"));
    status(1);
    status(0);
    m_plugin->destroyArea();
    status(1);
    status(0);
    status(1);
    status(0);
    QCOMPARE(reloads(), 3); // the leak sanitizer watches what becomes of the records
}

void tst_Notify::survivesTheEndWhileItAsksForTheSetting()
{
    Host::instance().settingAsked = [this] { m_plugin->ui()->OnDestroy(); };
    status(1);
    status(0);
    QCOMPARE(summaries(), 0);
    QCOMPARE(reloads(), 0);
}

QTEST_MAIN(tst_Notify)
#include "tst_notify.moc"
