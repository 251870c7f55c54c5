// SPDX-License-Identifier: MIT
#include "BusClient.h"
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "NetworkNamespace.h"
#include "NotificationDaemon.h"
#include "PrivateBus.h"
#include "ShownText.h"
#include "TunDevice.h"
#include "VethPair.h"
#include "apps/refdialer/Application.h"
#include "apps/refdialer/Recording.h"
#include "apps/refdialer/RecordingSettings.h"
#include "apps/refdialer/StateLine.h"
#include "apps/refdialer/SummaryChoice.h"
#include "recorder/bus/RecorderService.h"

#include "CommonUtils.h"
#include "ExtendDialog.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

/// Real connections of interfaces in a network of this test's own, from the
/// kernel to the window.
class TestLiveRecording : public QObject
{
    Q_OBJECT

public:
    explicit TestLiveRecording(QString obstacle)
        : m_obstacle(std::move(obstacle))
    {
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void showsAConnectionFromItsBeginningToItsEnd();
    void showsOneThatWasThereBefore();
    void showsADeletedInterfacesConnection();
    void showsWhatAnEarlierRunLeftOpen();
    void recordsANamedInterface();
    void recordsWhatIsChosenInTheSettings();
    void saysWhyItCannotRecord();
    void tellsOnTheSessionBusWhatItRecords();
    void warnsOfADataPlan();
    void warnsOfADataPlanThatIsMadeLater();

private:
    bool start(const QStringList &interfaceNames = {});
    QString storeFile() const { return QString::fromStdString(m_history->storePath()); }
    QString line() const;
    QStringList summary() const;

    const QString m_obstacle;
    std::unique_ptr<HistoryWindow> m_history;
    std::unique_ptr<refdialer::Recording> m_recording;
};

namespace
{

QString volume(qint64 bytes)
{
    return QString::asprintf("%.2f KB", double(bytes) / 1024);
}

/// A session bus with a notification service, for what starts while this lives.
class Desktop
{
public:
    Desktop()
        : m_bus(m_folder.path())
    {
    }
    ~Desktop() { qunsetenv("DBUS_SESSION_BUS_ADDRESS"); }

    bool start()
    {
        if (!m_bus.start())
            return false;
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
        m_notifications = std::make_unique<NotificationDaemon>(m_bus.address());
        return m_notifications->takeName();
    }
    QStringList titles() const { return m_notifications->titles(); }

private:
    const QTemporaryDir m_folder;
    PrivateBus m_bus;
    std::unique_ptr<NotificationDaemon> m_notifications;
};

} // namespace

void TestLiveRecording::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void TestLiveRecording::init()
{
    m_history = std::make_unique<HistoryWindow>();
    refdialer::offerSummary();
}

void TestLiveRecording::cleanup()
{
    m_recording.reset();
    m_history.reset();
}

/// In the order of the program: the plug-in reads what the recording has settled.
bool TestLiveRecording::start(const QStringList &interfaceNames)
{
    m_recording = std::make_unique<refdialer::Recording>(storeFile(), interfaceNames, QString(),
                                                         m_history->state());
    m_recording->start();
    if (!m_history->open())
        return false;
    connect(&m_history->window(), &refdialer::MainWindow::plansRead, this,
            [this] { m_recording->checkPlans(); });
    return true;
}

QString TestLiveRecording::line() const
{
    return shownText(*m_history->window().findChild<refdialer::StateLine *>());
}

QStringList TestLiveRecording::summary() const
{
    QStringList texts;
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        if (!dynamic_cast<ExtendDialog *>(widget))
            continue;
        for (const QLabel *const label : widget->findChildren<QLabel *>())
            texts.append(label->text());
    }
    return texts;
}

void TestLiveRecording::showsAConnectionFromItsBeginningToItsEnd()
{
    const VethPair pair;
    QVERIFY(pair.isMade());
    QVERIFY(start());
    QCOMPARE(line(), QString("Not connected"));
    QVERIFY(pair.goUp());
    QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
    QVERIFY(pair.upload(40, 1000));
    QVERIFY(pair.download(25, 700));
    const QString sent = volume(VethPair::bytesOf(40, 1000));
    const QString received = volume(VethPair::bytesOf(25, 700));
    QTRY_VERIFY2(line().contains("Sent: " + sent), qPrintable(line()));
    QVERIFY(pair.upload(3, 999));
    const QString sentInAll = volume(VethPair::bytesOf(40, 1000) + VethPair::bytesOf(3, 999));
    QVERIFY(pair.goDown());
    QTRY_COMPARE(line(), QString("Not connected"));
    QCOMPARE(m_history->column(0), QStringList("wwan0"));
    QCOMPARE(m_history->column(4), QStringList(sentInAll));
    QCOMPARE(m_history->column(5), QStringList(received));
    QVERIFY2(summary().contains(sentInAll), qPrintable(summary().join('\n')));
    QVERIFY2(summary().contains(received), qPrintable(summary().join('\n')));
}

void TestLiveRecording::showsOneThatWasThereBefore()
{
    const VethPair pair;
    QVERIFY(pair.goUp());
    QVERIFY(start());
    QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
    QVERIFY(pair.goDown());
    QTRY_COMPARE(m_history->shownProfiles(), QStringList("wwan0"));
    QVERIFY(!summary().isEmpty());
}

void TestLiveRecording::showsADeletedInterfacesConnection()
{
    QVERIFY(start());
    qint64 sent = 0;
    {
        const TunDevice device;
        QVERIFY(device.isMade() && device.goUp());
        QTRY_VERIFY2(line().startsWith("ppp0 | connected since "), qPrintable(line()));
        QVERIFY(device.upload(7, 500));
        sent = TunDevice::bytesOf(7, 500);
    }
    QTRY_COMPARE(line(), QString("Not connected"));
    QCOMPARE(m_history->column(0), QStringList("ppp0"));
    QCOMPARE(m_history->column(4), QStringList(volume(sent)));
}

void TestLiveRecording::showsWhatAnEarlierRunLeftOpen()
{
    {
        const VethPair pair;
        QVERIFY(start());
        QVERIFY(pair.goUp());
        QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
        m_recording.reset();
        m_history->close();
    }
    QVERIFY(start());
    QCOMPARE(m_history->shownProfiles(), QStringList("wwan0"));
    QVERIFY(summary().isEmpty());
}

void TestLiveRecording::recordsANamedInterface()
{
    const VethPair pair;
    QVERIFY(start({"far0"}));
    QVERIFY(pair.goUp());
    QTRY_COMPARE(line().split('\n').size(), 2);
    QVERIFY2(line().contains("far0 | connected since "), qPrintable(line()));
}

/// The whole program, whose recorder starts anew and resumes what lasts.
void TestLiveRecording::recordsWhatIsChosenInTheSettings()
{
    const VethPair pair;
    QVERIFY(pair.goUp());
    refdialer::Options options;
    options.storeFile = storeFile();
    options.pluginFile = HistoryWindow::pluginFile();
    options.hasDialupService = false;
    QTimer::singleShot(0, this, [this] {
        const auto quit = qScopeGuard([] { QCoreApplication::quit(); });
        const auto &window = *qobject_cast<QMainWindow *>(CommonUtils::GetMainWindow());
        const auto &line = *window.findChild<refdialer::StateLine *>();
        QTRY_VERIFY(shownText(line).startsWith("wwan0 | connected since "));
        QTimer::singleShot(0, this, [&window] {
            auto *const settings = window.findChild<refdialer::RecordingSettings *>();
            settings->findChild<QLineEdit *>()->setText("far0");
            settings->window()->close();
        });
        menuEntry(window, {"File", "Settings…"})->trigger();
        QTRY_VERIFY(shownText(line).contains("far0 | connected since "));
        QTRY_VERIFY(shownText(line).contains("wwan0 | connected since "));
    });
    refdialer::Application(options).run();
    const auto store = history::Store::openForReading(m_history->storePath());
    QCOMPARE(store.value().listOpen().value().size(), std::size_t(2));
    QVERIFY(m_history->storedProfiles().isEmpty());
}

void TestLiveRecording::saysWhyItCannotRecord()
{
    QVERIFY(QDir().mkpath(storeFile()));
    m_recording = std::make_unique<refdialer::Recording>(storeFile(), QStringList(), QString(),
                                                         m_history->state());
    m_recording->start();
    QVERIFY(!m_history->state().isWatched());
    QTRY_VERIFY(m_history->state().problem().contains(storeFile()));
}

void TestLiveRecording::tellsOnTheSessionBusWhatItRecords()
{
    const QTemporaryDir folder;
    PrivateBus bus(folder.path());
    QVERIFY(bus.start());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    const auto restore = qScopeGuard([] { qunsetenv("DBUS_SESSION_BUS_ADDRESS"); });
    BusClient client(bus.address(), recorder::RecorderService::nameFor(storeFile()));
    const VethPair pair;
    QVERIFY(start());
    QTRY_VERIFY(client.isServiceThere());
    QCOMPARE(client.property("Recording"), QVariant(true));
    QVERIFY(pair.goUp());
    QTRY_COMPARE(client.connections().size(), 1);
    QCOMPARE(client.connections().value(0).value("Interface").toString(), QString("wwan0"));
    m_recording.reset();
    QTRY_VERIFY(!client.isServiceThere());
}

void TestLiveRecording::warnsOfADataPlan()
{
    Desktop desktop;
    QVERIFY(desktop.start());
    history::DataPlan plan;
    plan.name = "home";
    plan.amount = VethPair::bytesOf(10, 1000);
    auto store = history::Store::openOrCreate(m_history->storePath());
    QVERIFY(store && store.value().setPlan(plan));
    const VethPair pair;
    QVERIFY(pair.goUp());
    QVERIFY(start());
    QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
    QVERIFY(pair.upload(9, 1000));
    const QString title = "80 % of the data plan \"home\" used";
    constexpr int checkpointTimeout = 30000;
    QTRY_COMPARE_WITH_TIMEOUT(desktop.titles(), QStringList(title), checkpointTimeout);
    // The line of the plan shows it; it is no problem beside.
    QVERIFY(m_history->state().problem().isEmpty());
}

/// No line is up that would tell of it.
void TestLiveRecording::warnsOfADataPlanThatIsMadeLater()
{
    Desktop desktop;
    QVERIFY(desktop.start());
    history::Connection past;
    past.startUtc = QDateTime::currentSecsSinceEpoch();
    past.endUtc = past.startUtc;
    past.downloadedBytes = 1000;
    history::DataPlan plan;
    plan.name = "home";
    plan.amount = past.downloadedBytes;
    auto store = history::Store::openOrCreate(m_history->storePath());
    QVERIFY(store && store.value().add(past) && store.value().setPlan(plan));
    QVERIFY(start());
    QStringList titles("100 % of the data plan \"home\" used");
    QTRY_COMPARE(desktop.titles(), titles);
    plan.name = "travel";
    QVERIFY(store.value().setPlan(plan));
    titles.append("100 % of the data plan \"travel\" used");
    constexpr int throttleTimeout = 30000;
    QTRY_COMPARE_WITH_TIMEOUT(desktop.titles(), titles, throttleTimeout);
}

// The network has to be entered before there is a second thread.
int main(int argc, char **argv)
{
    const QString obstacle = enterNetworkNamespace();
    // Nobody on the bus of whoever runs the test is to see it.
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_RUNTIME_DIR");
    const QApplication application(argc, argv);
    TestLiveRecording test(obstacle);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_liverecording.moc"
