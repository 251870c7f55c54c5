// SPDX-License-Identifier: MIT
#include "FakeModemManager.h"
#include "PrivateBus.h"
#include "SilentBus.h"
#include "modem/Modems.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using modem::Modems;

/// A bus that takes its time, or never says anything.
class TestSilentBus : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_bus = std::make_unique<SilentBus>(socket().toLocal8Bit());
        QVERIFY(m_bus->isListening());
    }
    void cleanup() { m_bus.reset(); }

    void goesThroughTheGreetingAsFarAsTheBusDoes();
    void leavesOtherBusesAlone();
    void waitsForTheNextBusWhenThisOneHangsUp();
    void goesToNoOtherComputer();

private:
    QString socket() const { return m_folder->filePath("bus"); }
    QString address() const { return "unix:path=" + socket(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SilentBus> m_bus;
};

/// The same thread is the client and the bus: had the client waited for anything, it
/// would have given up, and nobody would be on the line any more.
void TestSilentBus::goesThroughTheGreetingAsFarAsTheBusDoes()
{
    Modems modems(address());
    const QSignalSpy availability(&modems, &Modems::availabilityChanged);
    modems.start();
    m_bus->acceptClient();
    QTRY_VERIFY(m_bus->hasHeard("AUTH EXTERNAL"));
    QVERIFY(m_bus->say("OK 1234567890abcdef1234567890abcdef\r\n"));
    QTRY_VERIFY(m_bus->hasHeard("NEGOTIATE_UNIX_FD\r\n"));
    QVERIFY(m_bus->say("ERROR\r\n"));
    QTRY_VERIFY(m_bus->hasHeard("BEGIN\r\n"));
    QTRY_VERIFY(m_bus->hasHeard("Hello"));
    QTRY_VERIFY(m_bus->hasHeard("AddMatch"));
    QVERIFY(!modems.isAvailable());
    QCOMPARE(availability.size(), 0);
}

void TestSilentBus::leavesOtherBusesAlone()
{
    Modems waiting(address());
    waiting.start();
    m_bus->acceptClient();
    QTRY_VERIFY(m_bus->hasHeard("AUTH"));
    const QTemporaryDir folder;
    PrivateBus bus(folder.path());
    QVERIFY(bus.start());
    FakeModemManager daemon(bus.address());
    QVERIFY(daemon.takeName());
    Modems modems(bus.address());
    modems.start();
    QTRY_VERIFY(modems.isAvailable());
    // Still on the line.
    QVERIFY(m_bus->say("OK 1234567890abcdef1234567890abcdef\r\n"));
    QTRY_VERIFY(m_bus->hasHeard("NEGOTIATE_UNIX_FD\r\n"));
}

void TestSilentBus::waitsForTheNextBusWhenThisOneHangsUp()
{
    Modems modems(address());
    modems.start();
    m_bus->acceptClient();
    QTRY_VERIFY(m_bus->hasHeard("AUTH"));
    m_bus->dropClient();
    m_bus.reset();
    PrivateBus bus(m_folder->path());
    QVERIFY(QFile::remove(socket()));
    QVERIFY(bus.start());
    FakeModemManager daemon(bus.address());
    QVERIFY(daemon.takeName());
    QTRY_VERIFY(modems.isAvailable());
}

void TestSilentBus::goesToNoOtherComputer()
{
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression("\"tcp:host=192\\.0\\.2\\.1,port=1\" is not on this computer"));
    Modems modems("tcp:host=192.0.2.1,port=1");
    modems.start();
    QVERIFY(!modems.isAvailable());
}

QTEST_GUILESS_MAIN(TestSilentBus)
#include "tst_silentbus.moc"
