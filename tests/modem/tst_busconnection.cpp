// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "modem/BusConnection.h"

#include <QDBusConnectionInterface>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using modem::BusConnection;

namespace
{

const QString interfaceName = QStringLiteral("org.example.Talk");

/// Sends signals to everybody on the bus, as fast as that takes them.
class Talker
{
public:
    explicit Talker(const QString &address)
        : m_thread([this, address] { talk(address); })
    {
    }

    ~Talker()
    {
        m_hasEnded = true;
        m_thread.join();
    }

private:
    void talk(const QString &address)
    {
        const QString name = QStringLiteral("talker");
        {
            QDBusConnection bus = QDBusConnection::connectToBus(address, name);
            while (!m_hasEnded) {
                for (int i = 0; i < 10; ++i)
                    bus.send(QDBusMessage::createSignal("/", interfaceName, "Said"));
                // Its answer says that the bus has not fallen behind.
                bus.interface()->isServiceRegistered(interfaceName);
            }
        }
        QDBusConnection::disconnectFromBus(name);
    }

    std::atomic<bool> m_hasEnded{false};
    std::thread m_thread;
};

} // namespace

class TestBusConnection : public QObject
{
    Q_OBJECT

private slots:
    void leavesABusInTheMiddleOfASignal();
};

/// QtDBus's thread is often delivering one at that very moment, not always: the more often it is
/// left, the surer the test.
void TestBusConnection::leavesABusInTheMiddleOfASignal()
{
    const QTemporaryDir folder;
    PrivateBus bus(folder.path());
    QVERIFY(bus.start());
    const Talker talker(bus.address());
    const QString rule = QStringLiteral("type='signal',interface='%1'").arg(interfaceName);
    for (int round = 0; round < 40; ++round) {
        std::vector<std::unique_ptr<BusConnection>> connections;
        for (int i = 0; i < 10; ++i) {
            connections.push_back(std::make_unique<BusConnection>(
                bus.address(),
                std::vector<BusConnection::Subscription>{{interfaceName, "Said", {rule}}}));
            QVERIFY(connections.back()->start());
        }
        QSignalSpy received(connections.back().get(), &BusConnection::received);
        QVERIFY(received.wait());
    }
}

QTEST_GUILESS_MAIN(TestBusConnection)
#include "tst_busconnection.moc"
