// SPDX-License-Identifier: MIT
#include "BusValues.h"
#include "FakeModemManager.h"
#include "NamelessBus.h"
#include "PrivateBus.h"
#include "modem/Modems.h"
#include "modem/Names.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using modem::Modems;
using modem::Roaming;
namespace names = modem::names;

namespace
{

const QString modemPath = QStringLiteral("/org/freedesktop/ModemManager1/Modem/0");
const QString secondPath = QStringLiteral("/org/freedesktop/ModemManager1/Modem/1");
const QString thirdPath = QStringLiteral("/org/freedesktop/ModemManager1/Modem/2");
const QString simPath = QStringLiteral("/org/freedesktop/ModemManager1/SIM/0");
const QString bearerPath = QStringLiteral("/org/freedesktop/ModemManager1/Bearer/0");

FakeModemManager::Interfaces modemWith(const QString &sim, const QStringList &bearers,
                                       const QString &networkPort = "wwan0")
{
    return {{names::modemInterface,
             {{"Manufacturer", "Maker"},
              {"Model", "Model 7"},
              {"Sim", pathValue(sim)},
              {"Bearers", pathValues(bearers)},
              {"Ports", portValues({{"ttyACM0", 3}, {networkPort, 2}})},
              {"AccessTechnologies", 1U << 14}}},
            {names::registrationInterface,
             {{"RegistrationState", 1U}, {"OperatorCode", "00101"}, {"OperatorName", "Test Net"}}}};
}

/// A modem at home with a connection.
void fill(FakeModemManager &daemon, const QString &apn = "internet.example")
{
    daemon.objects[modemPath] = modemWith(simPath, {bearerPath});
    daemon.objects[simPath][names::simInterface] = {{"SimIdentifier", "8949001234567890128"}};
    daemon.objects[bearerPath][names::bearerInterface] = {
        {"Interface", "wwan0"}, {"Connected", true}, {"Properties", QVariantMap({{"apn", apn}})}};
}

} // namespace

/// What is known while daemons and buses come and go and misbehave.
class TestModems : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void findsTheDaemonThatIsThere();
    void findsTheDaemonThatComesLateAndStartsNone();
    void tellsWhatChanges();
    void followsModemsThatComeAndGo();
    void losesWhatTheDaemonToldWhenItEnds();
    void ignoresTheFormerDaemon();
    void ignoresStrangers();
    void believesAnswersWithoutASenderButNoSignals();
    void waitsForNoAnswer();
    void losesNothingElseByNonsense_data();
    void losesNothingElseByNonsense();
    void findsTheBusThatComesLate();
    void findsTheBusThatComesAgain();
    void endsWhileItIsWaiting();

private:
    void startDaemon();
    QString apn(const QString &name = "wwan0") const
    {
        const auto port = m_modems->port(name);
        return port ? port->subscriber.apn : QStringLiteral("no port");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FakeModemManager> m_daemon;
    std::unique_ptr<Modems> m_modems;
};

void TestModems::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_bus = std::make_unique<PrivateBus>(m_folder->path());
    QVERIFY(m_bus->start());
    m_modems = std::make_unique<Modems>(m_bus->address());
}

void TestModems::cleanup()
{
    m_modems.reset();
    m_daemon.reset();
    m_bus.reset();
}

void TestModems::startDaemon()
{
    m_daemon = std::make_unique<FakeModemManager>(m_bus->address());
    fill(*m_daemon);
    QVERIFY(m_daemon->takeName());
}

void TestModems::findsTheDaemonThatIsThere()
{
    startDaemon();
    m_modems->start();
    QTRY_VERIFY(m_modems->isAvailable());
    const modem::DataPort expected{"wwan0",
                                   true,
                                   {"internet.example", "Test Net", "00101", "8949001234567890128",
                                    "lte", "Maker Model 7", Roaming::Home}};
    QVERIFY(m_modems->port("wwan0") == expected);
    QCOMPARE(m_modems->ports().size(), size_t(1));
    QVERIFY(!m_modems->port("ttyACM0"));
}

void TestModems::findsTheDaemonThatComesLateAndStartsNone()
{
    QFile service(m_folder->filePath("org.freedesktop.ModemManager1.service"));
    QVERIFY(service.open(QIODevice::WriteOnly));
    const QString started = m_folder->filePath("started");
    service.write("[D-BUS Service]\nName=org.freedesktop.ModemManager1\nExec=/usr/bin/touch " +
                  started.toUtf8() + "\n");
    service.close();
    m_bus->kill();
    QVERIFY(m_bus->start());
    m_modems->start();
    // Two rounds through the bus, so that it has been asked before the daemon comes.
    FakeModemManager(m_bus->address()).takeName();
    startDaemon();
    QTRY_COMPARE(apn(), "internet.example");
    QVERIFY(!QFile::exists(started));
}

void TestModems::tellsWhatChanges()
{
    startDaemon();
    m_modems->start();
    QTRY_VERIFY(m_modems->isAvailable());
    QSignalSpy changed(m_modems.get(), &Modems::changed);
    m_daemon->change(modemPath, names::registrationInterface, {{"RegistrationState", 5U}});
    QVERIFY(changed.wait());
    QCOMPARE(changed.takeFirst(), QVariantList({"wwan0"}));
    QCOMPARE(m_modems->port("wwan0")->subscriber.roaming, Roaming::Roaming);
    m_daemon->change(modemPath, names::modemInterface, {{"SignalQuality", 50U}});
    m_daemon->change(bearerPath, names::bearerInterface, {{"Interface", ""}});
    QVERIFY(changed.wait());
    QVERIFY(!m_modems->port("wwan0")->isConnected);
    m_daemon->change(bearerPath, names::bearerInterface,
                     {{"Interface", "enx001122334455"}, {"Connected", true}});
    QTRY_COMPARE(changed.size(), 2);
    QCOMPARE(changed.last(), QVariantList({"enx001122334455"}));
    QVERIFY(m_modems->port("enx001122334455")->isConnected);
    m_daemon->send(bearerPath, names::propertiesInterface, "PropertiesChanged",
                   {QString(names::bearerInterface), QVariantMap(), QStringList("Interface")});
    QTRY_VERIFY(!m_modems->port("enx001122334455"));
}

void TestModems::followsModemsThatComeAndGo()
{
    startDaemon();
    m_modems->start();
    QTRY_VERIFY(m_modems->isAvailable());
    QSignalSpy availability(m_modems.get(), &Modems::availabilityChanged);
    m_daemon->addModem(secondPath, modemWith("/", {}, "usb0"));
    QTRY_VERIFY(m_modems->port("usb0"));
    // A third one, which never tells who it belongs to.
    m_daemon->silentPaths.insert(simPath);
    m_daemon->addModem(thirdPath, modemWith(simPath, {}, "usb1"));
    m_daemon->removeModem(modemPath);
    QTRY_VERIFY(!m_modems->port("wwan0"));
    QVERIFY(m_modems->port("usb0"));
    QVERIFY(!m_modems->port("usb1"));
    QCOMPARE(availability.size(), 0);
}

void TestModems::losesWhatTheDaemonToldWhenItEnds()
{
    startDaemon();
    m_modems->start();
    QTRY_VERIFY(m_modems->isAvailable());
    QStringList order;
    connect(m_modems.get(), &Modems::availabilityChanged, this,
            [&](bool isAvailable) { order.append(isAvailable ? "available" : "away"); });
    connect(m_modems.get(), &Modems::changed, this,
            [&](const QString &name) { order.append(name + ' ' + apn(name)); });
    m_daemon.reset();
    QTRY_COMPARE(order, QStringList({"away", "wwan0 no port"}));
    QVERIFY(!m_modems->isAvailable());
    order.clear();
    startDaemon();
    QTRY_COMPARE(order, QStringList({"wwan0 internet.example", "available"}));
}

void TestModems::ignoresTheFormerDaemon()
{
    FakeModemManager former(m_bus->address());
    fill(former, "former.example");
    former.silentPaths.insert(bearerPath);
    QVERIFY(former.takeName());
    m_modems->start();
    QTRY_VERIFY(former.questions().contains(bearerPath));
    QVERIFY(former.giveNameAway());
    startDaemon();
    m_daemon->silentPaths.insert(bearerPath);
    QTRY_VERIFY(m_daemon->questions().contains(bearerPath));
    former.answerLate();
    former.change(modemPath, names::modemInterface, {{"Bearers", pathValues({})}});
    m_daemon->addModem(secondPath, modemWith("/", {}, "usb0"));
    QTRY_VERIFY(m_modems->port("usb0"));
    QVERIFY(!m_modems->port("wwan0"));
    m_daemon->answerLate();
    QTRY_COMPARE(apn(), "internet.example");
}

void TestModems::ignoresStrangers()
{
    startDaemon();
    m_modems->start();
    QTRY_VERIFY(m_modems->isAvailable());
    FakeModemManager stranger(m_bus->address());
    for (const QString &receiver : {QString(), m_daemon->client()}) {
        stranger.send(
            bearerPath, names::propertiesInterface, "PropertiesChanged",
            {QString(names::bearerInterface), QVariantMap({{"Interface", "lo"}}), QStringList()},
            receiver);
        stranger.send(names::root, names::objectsInterface, "InterfacesRemoved",
                      {pathValue(modemPath), QStringList(names::modemInterface)}, receiver);
        stranger.send(names::busPath, names::bus, "NameOwnerChanged",
                      {QString(names::service), m_daemon->client(), QString()}, receiver);
    }
    const QSignalSpy changed(m_modems.get(), &Modems::changed);
    const QSignalSpy availability(m_modems.get(), &Modems::availabilityChanged);
    // What the stranger has sent comes before that.
    stranger.send(bearerPath, names::propertiesInterface, "Last", {});
    QVERIFY(stranger.takeName() == false);
    m_daemon->change(bearerPath, names::bearerInterface, {{"Properties", QVariantMap()}});
    QTRY_COMPARE(apn(), QString());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(availability.size(), 0);
}

/// Newer versions of Qt do not tell whose an answer is. A signal can be anybody's.
void TestModems::believesAnswersWithoutASenderButNoSignals()
{
    startDaemon();
    NamelessBus bus("unix:path=" + m_folder->filePath("nameless"), *m_daemon);
    m_modems = std::make_unique<Modems>(bus.address());
    m_modems->start();
    QTRY_COMPARE(apn(), "internet.example");
    const QSignalSpy changed(m_modems.get(), &Modems::changed);
    const QSignalSpy availability(m_modems.get(), &Modems::availabilityChanged);
    bus.send(bearerPath, names::propertiesInterface, "PropertiesChanged",
             {QString(names::bearerInterface), QVariantMap({{"Interface", "lo"}}), QStringList()});
    bus.send(names::busPath, names::bus, "NameOwnerChanged",
             {QString(names::service), ":1.1", QString()});
    bus.waitForClient();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(changed.size(), 0);
    QCOMPARE(availability.size(), 0);
}

void TestModems::waitsForNoAnswer()
{
    startDaemon();
    m_daemon->silentPaths = {names::root, simPath};
    m_modems->start();
    QTRY_VERIFY(m_daemon->questions().contains(names::root));
    m_daemon->addModem(secondPath, modemWith("/", {}, "usb0"));
    QTRY_VERIFY(m_modems->port("usb0"));
    QVERIFY(!m_modems->isAvailable());
    m_daemon->answerLate();
    QTRY_VERIFY(m_daemon->questions().contains(bearerPath));
    m_daemon->change(secondPath, names::modemInterface, {{"Ports", portValues({{"usb1", 2}})}});
    QTRY_VERIFY(m_modems->port("usb1"));
    QVERIFY(!m_modems->port("wwan0"));
    QVERIFY(!m_modems->isAvailable());
    m_daemon->answerLate();
    QTRY_COMPARE(apn(), "internet.example");
    QVERIFY(m_modems->isAvailable());
}

void TestModems::losesNothingElseByNonsense_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariantList>("answer");
    QTest::addColumn<QString>("lost");
    const QVariantMap ofWrongTypes{{"SimIdentifier", 5},
                                   {"Connected", "yes"},
                                   {"Interface", QVariantMap()},
                                   {"Properties", QStringList("apn")}};
    const QVariantMap huge{{"SimIdentifier", QString(1000000, '8')},
                           {"Properties", QVariantMap({{"apn", QString(1000000, 'a')}})}};
    for (const char *name : {"sim", "bearer"}) {
        const QString path = name == QByteArray("sim") ? simPath : bearerPath;
        QTest::addRow("no answer in the answer, %s", name) << path << QVariantList() << name;
        QTest::addRow("a text, %s", name) << path << QVariantList({"nonsense"}) << name;
        QTest::addRow("two maps, %s", name)
            << path << QVariantList({QVariantMap(), QVariantMap()}) << name;
        QTest::addRow("wrong types, %s", name) << path << QVariantList({ofWrongTypes}) << name;
        QTest::addRow("huge texts, %s", name) << path << QVariantList({huge}) << name;
    }
    QTest::newRow("a list of modems that is none")
        << QString(names::root) << QVariantList({"nonsense"}) << "list";
    QTest::newRow("no list") << QString(names::root) << QVariantList() << "list";
}

void TestModems::losesNothingElseByNonsense()
{
    QFETCH(const QString, path);
    QFETCH(const QVariantList, answer);
    QFETCH(const QString, lost);
    startDaemon();
    m_daemon->oddAnswers[path] = answer;
    m_modems->start();
    QTRY_VERIFY(m_daemon->questions().contains(path));
    m_daemon->addModem(modemPath, m_daemon->objects.value(modemPath));
    QTRY_VERIFY(m_modems->port("wwan0"));
    QCOMPARE(m_modems->isAvailable(), lost != "list");
    const modem::DataPort port = *m_modems->port("wwan0");
    QCOMPARE(port.subscriber.operatorName, "Test Net");
    QCOMPARE(port.subscriber.sim.isEmpty(), lost == "sim");
    QCOMPARE(port.isConnected, lost != "bearer");
}

void TestModems::findsTheBusThatComesLate()
{
    const QString folder = m_folder->filePath("later/still");
    PrivateBus late(folder);
    m_modems = std::make_unique<Modems>(late.address());
    m_modems->start();
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(late.start());
    FakeModemManager daemon(late.address());
    fill(daemon);
    QVERIFY(daemon.takeName());
    QTRY_COMPARE(apn(), "internet.example");
}

void TestModems::findsTheBusThatComesAgain()
{
    startDaemon();
    m_modems->start();
    QTRY_VERIFY(m_modems->isAvailable());
    m_bus->kill();
    QTRY_VERIFY(!m_modems->isAvailable());
    QVERIFY(!m_modems->port("wwan0"));
    m_daemon.reset();
    QVERIFY(m_bus->start());
    startDaemon();
    QTRY_VERIFY(m_modems->isAvailable());
    QCOMPARE(apn(), "internet.example");
}

void TestModems::endsWhileItIsWaiting()
{
    startDaemon();
    m_daemon->silentPaths.insert(bearerPath);
    m_modems->start();
    QTRY_VERIFY(m_daemon->questions().contains(bearerPath));
    m_modems.reset();
    m_daemon->answerLate();
    m_daemon->change(bearerPath, names::bearerInterface, {{"Connected", false}});
    // Another client gets its answers behind those.
    m_daemon->silentPaths.clear();
    m_modems = std::make_unique<Modems>(m_bus->address());
    m_modems->start();
    QTRY_VERIFY(m_modems->isAvailable());
}

QTEST_GUILESS_MAIN(TestModems)
#include "tst_modems.moc"
