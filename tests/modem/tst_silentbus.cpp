// SPDX-License-Identifier: MIT
#include "FakeModemManager.h"
#include "PrivateBus.h"
#include "modem/Modems.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <memory>

using modem::Modems;

namespace
{

class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    ~Descriptor() { close(m_number); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return m_number; }

private:
    const int m_number;
};

/// Listens like a bus, and says only what the test says.
class SilentBus
{
public:
    explicit SilentBus(const QByteArray &path)
        : m_listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.constData(), sizeof(address.sun_path) - 1);
        m_isListening = bind(m_listener.number(), reinterpret_cast<const sockaddr *>(&address),
                             sizeof(address)) == 0 &&
                        listen(m_listener.number(), 5) == 0;
    }

    bool isListening() const { return m_isListening; }
    void acceptClient()
    {
        m_client = std::make_unique<Descriptor>(
            accept4(m_listener.number(), nullptr, nullptr, SOCK_CLOEXEC));
    }
    void dropClient() { m_client.reset(); }

    /// Whether the client has said this by now.
    bool hasHeard(const QByteArray &text)
    {
        char buffer[4096];
        const ssize_t size = recv(m_client->number(), buffer, sizeof(buffer), MSG_DONTWAIT);
        if (size > 0)
            m_heard.append(buffer, int(size));
        return m_heard.contains(text);
    }

    bool say(const QByteArray &text)
    {
        return send(m_client->number(), text.constData(), size_t(text.size()), MSG_NOSIGNAL) ==
               ssize_t(text.size());
    }

private:
    const Descriptor m_listener;
    std::unique_ptr<Descriptor> m_client;
    bool m_isListening = false;
    QByteArray m_heard;
};

} // namespace

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
