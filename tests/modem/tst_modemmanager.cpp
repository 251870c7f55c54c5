// SPDX-License-Identifier: MIT
#include "RealModemManager.h"
#include "modem/Modems.h"
#include "modem/Names.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using modem::DataPort;
using modem::Modems;
using modem::Roaming;

namespace
{

const QString apn = QStringLiteral("internet.example");
const QString sim = QStringLiteral("8949001234567890128");

DataPort atHome()
{
    return {
        "wwan0", true, {apn, "Test Net", "00101", sim, "lte", "u-blox TOBY-R200", Roaming::Home}};
}

DataPort abroad()
{
    DataPort port = atHome();
    port.subscriber.operatorName = "Roam Net";
    port.subscriber.operatorCode = "99901";
    port.subscriber.roaming = Roaming::Roaming;
    return port;
}

} // namespace

// The daemon probes a modem for seconds.
#define TRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)

/// What the real ModemManager tells of a made-up modem.
class TestModemManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void knowsWhoTheConnectionBelongsTo();
    void followsRoamingAndBack();
    void keepsTheNetworkWhileTheModemLooksForIt();
    void noticesThatTheUserDisconnects();
    void noticesThatTheNetworkDisconnects();
    void noticesThatTheModemIsUnplugged();
    void knowsTheSimThatWasPutIn();
    void losesNothingWhenTheDaemonStartsAgain();
    void livesWithTheEndOfTheBus();

private:
    DataPort port() const { return m_modems->port("wwan0").value_or(DataPort()); }

    QTemporaryDir m_folder;
    std::unique_ptr<RealModemManager> m_daemon;
    std::unique_ptr<Modems> m_modems;
};

void TestModemManager::initTestCase()
{
    const QString obstacle = RealModemManager::obstacle();
    if (!obstacle.isEmpty())
        QSKIP(qPrintable("no ModemManager with a made-up modem: " + obstacle), "");
    m_daemon = std::make_unique<RealModemManager>(m_folder.path());
    m_modems = std::make_unique<Modems>(m_daemon->busAddress());
    m_modems->start();
    QVERIFY(m_daemon->startBus());
}

void TestModemManager::init()
{
    QVERIFY(m_daemon->tellModem("register home"));
    QVERIFY(m_daemon->bringUp(apn));
    TRY_VERIFY(m_modems->isAvailable() && port().isConnected);
}

void TestModemManager::cleanupTestCase()
{
    m_modems.reset();
    m_daemon.reset();
}

void TestModemManager::knowsWhoTheConnectionBelongsTo()
{
    TRY_VERIFY(port() == atHome());
    QCOMPARE(m_modems->ports().size(), size_t(1));
}

void TestModemManager::followsRoamingAndBack()
{
    QList<bool> isConnected;
    const QObject watch;
    connect(m_modems.get(), &Modems::changed, &watch,
            [&] { isConnected.append(port().isConnected); });
    QVERIFY(m_daemon->tellModem("register roaming"));
    TRY_VERIFY(port() == abroad());
    QVERIFY(m_daemon->tellModem("technology umts"));
    TRY_VERIFY(port().subscriber.technology == "umts");
    QVERIFY(m_daemon->tellModem("technology lte"));
    QVERIFY(m_daemon->tellModem("register home"));
    TRY_VERIFY(port() == atHome());
    QVERIFY(!isConnected.contains(false));
}

void TestModemManager::keepsTheNetworkWhileTheModemLooksForIt()
{
    TRY_VERIFY(port() == atHome());
    QList<Roaming> seen;
    const QObject watch;
    connect(m_modems.get(), &Modems::changed, &watch,
            [&] { seen.append(port().subscriber.roaming); });
    QVERIFY(m_daemon->tellModem("register searching"));
    const auto registration = [this] {
        return m_daemon->modemProperty(modem::names::registrationInterface, "RegistrationState");
    };
    constexpr uint searching = 2;
    TRY_VERIFY(registration() == QVariant(searching));
    QVERIFY(m_daemon->tellModem("register roaming"));
    TRY_VERIFY(port() == abroad());
    QVERIFY(m_daemon->tellModem("register home"));
    TRY_VERIFY(port() == atHome());
    QVERIFY(!seen.contains(Roaming::Unknown));
}

void TestModemManager::noticesThatTheUserDisconnects()
{
    QVERIFY(m_daemon->disconnectBearers());
    TRY_VERIFY(!port().isConnected);
    QCOMPARE(port().subscriber.apn, QString());
    QCOMPARE(port().subscriber.sim, sim);
    QVERIFY(m_daemon->connectBearer("second.example"));
    TRY_VERIFY(port().isConnected);
    QCOMPARE(port().subscriber.apn, "second.example");
    QVERIFY(m_daemon->disconnectBearers());
    TRY_VERIFY(!port().isConnected);
}

void TestModemManager::noticesThatTheNetworkDisconnects()
{
    QVERIFY(m_daemon->tellModem("drop"));
    TRY_VERIFY(!port().isConnected);
    QVERIFY(m_modems->port("wwan0"));
    QVERIFY(m_daemon->connectBearer(apn));
    TRY_VERIFY(port() == atHome());
}

void TestModemManager::noticesThatTheModemIsUnplugged()
{
    QVERIFY(m_daemon->unplug());
    TRY_VERIFY(m_modems->ports().empty());
    QVERIFY(m_modems->isAvailable());
    QVERIFY(m_daemon->bringUp(apn));
    TRY_VERIFY(port() == atHome());
}

void TestModemManager::knowsTheSimThatWasPutIn()
{
    QVERIFY(m_daemon->tellModem("sim none"));
    TRY_VERIFY(m_modems->port("wwan0") && port().subscriber.sim.isEmpty());
    QVERIFY(m_daemon->tellModem("sim B"));
    TRY_VERIFY(port().subscriber.sim == "8949009876543210982");
    QVERIFY(m_daemon->bringUp(apn));
    TRY_VERIFY(port().isConnected);
    QCOMPARE(port().subscriber.sim, "8949009876543210982");
    QVERIFY(m_daemon->tellModem("sim A"));
    TRY_VERIFY(port().subscriber.sim == sim);
}

void TestModemManager::losesNothingWhenTheDaemonStartsAgain()
{
    m_daemon->killDaemon();
    TRY_VERIFY(!m_modems->isAvailable());
    QVERIFY(m_modems->ports().empty());
    QVERIFY(m_daemon->bringUp(apn));
    TRY_VERIFY(m_modems->isAvailable());
    TRY_VERIFY(port() == atHome());
}

void TestModemManager::livesWithTheEndOfTheBus()
{
    m_daemon->killBus();
    TRY_VERIFY(!m_modems->isAvailable());
    QVERIFY(m_modems->ports().empty());
    QVERIFY(m_daemon->startBus());
    QVERIFY(m_daemon->bringUp(apn));
    TRY_VERIFY(port() == atHome());
}

int main(int argc, char **argv)
{
    RealModemManager::enterNetwork(argv);
    const QCoreApplication application(argc, argv);
    TestModemManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_modemmanager.moc"
