// SPDX-License-Identifier: MIT
#include "PeerBus.h"
#include "PrivateBus.h"
#include "modem/BusConnection.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
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

/// A bus that gives its client a name, or takes nobody in.
class Doorkeeper : public PeerBus
{
public:
    Doorkeeper(const QString &address, bool isOpen)
        : PeerBus(address)
        , m_isOpen(isOpen)
    {
    }

    bool hasAnswered() const { return m_hasAnswered; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        m_hasAnswered = connection.send(
            m_isOpen ? message.createReply(":1.0")
                     : message.createErrorReply(QDBusError::AccessDenied, "Not you"));
        return true;
    }

private:
    const bool m_isOpen;
    bool m_hasAnswered = false;
};

/// Counts what is said of attempts to reach a bus.
class FailureCount
{
public:
    FailureCount()
    {
        number = 0;
        former = qInstallMessageHandler(&FailureCount::handle);
        QLoggingCategory::setFilterRules("modem.debug=true");
    }
    ~FailureCount()
    {
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(former);
    }
    FailureCount(const FailureCount &) = delete;
    FailureCount &operator=(const FailureCount &) = delete;

    static inline int number = 0;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (qstrcmp(context.category, "modem") == 0)
            ++number;
        else
            former(type, context, text);
    }

    static inline QtMessageHandler former = nullptr;
};

/// How often this process has asked the kernel to tell it of changes in folders.
int folderWatches()
{
    int watches = 0;
    for (const QFileInfo &each : QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System))
        watches += each.symLinkTarget().contains("inotify") ? 1 : 0;
    return watches;
}

BusConnection::Subscription toWhatIsSaid()
{
    return {interfaceName, "Said", {QString("type='signal',interface='%1'").arg(interfaceName)}};
}

} // namespace

class TestBusConnection : public QObject
{
    Q_OBJECT

private slots:
    void leavesABusInTheMiddleOfASignal();
    void asksNobodyWithoutABus();
    void isNotThereUnlessTheBusGreetsIt();
    void findsABusWithoutAFileAgain();
    void followsTheFoldersOfABusThatComesLate();
};

/// QtDBus's thread is often delivering one at that very moment, not always: the more often it is
/// left, the surer the test.
void TestBusConnection::leavesABusInTheMiddleOfASignal()
{
    const QTemporaryDir folder;
    PrivateBus bus(folder.path());
    QVERIFY(bus.start());
    const Talker talker(bus.address());
    for (int round = 0; round < 40; ++round) {
        std::vector<std::unique_ptr<BusConnection>> connections;
        for (int i = 0; i < 10; ++i) {
            connections.push_back(std::make_unique<BusConnection>(
                bus.address(), std::vector<BusConnection::Subscription>{toWhatIsSaid()}));
            QVERIFY(connections.back()->start());
        }
        QSignalSpy received(connections.back().get(), &BusConnection::received);
        QVERIFY(received.wait());
    }
}

/// Nor does what was asked before there is one go to it.
void TestBusConnection::asksNobodyWithoutABus()
{
    const QTemporaryDir folder;
    PrivateBus bus(folder.path());
    BusConnection connection(bus.address(), {});
    bool isEarlyAnswered = false;
    connection.ask(modem::busCall("GetId"), "s",
                   [&](const QVariantList &) { isEarlyAnswered = true; });
    connection.tell(modem::busCall("GetId"));
    QVERIFY(bus.start());
    QSignalSpy connected(&connection, &BusConnection::connected);
    QVERIFY(connection.start());
    QVERIFY(connected.wait());
    bool isAnswered = false;
    connection.ask(modem::busCall("GetId"), "s",
                   [&](const QVariantList &reply) { isAnswered = reply.size() == 1; });
    QTRY_VERIFY(isAnswered);
    QVERIFY(!isEarlyAnswered);
}

void TestBusConnection::isNotThereUnlessTheBusGreetsIt()
{
    const QTemporaryDir folder;
    Doorkeeper bus("unix:path=" + folder.filePath("bus"), false);
    BusConnection connection(bus.address(), {toWhatIsSaid()});
    const QSignalSpy connected(&connection, &BusConnection::connected);
    const QSignalSpy received(&connection, &BusConnection::received);
    QVERIFY(connection.start());
    QTRY_VERIFY(bus.hasAnswered());
    bus.send("/", interfaceName, "Said", {});
    bus.waitForClient();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(connected.size(), 0);
    QCOMPARE(received.size(), 0);
    QCOMPARE(connection.uniqueName(), QString());
}

/// Where it was cut off from one, it tries once more.
void TestBusConnection::findsABusWithoutAFileAgain()
{
    const QString address =
        QString("unix:abstract=netinforecord-test-%1").arg(QCoreApplication::applicationPid());
    BusConnection connection(address, {});
    QSignalSpy connected(&connection, &BusConnection::connected);
    QSignalSpy disconnected(&connection, &BusConnection::disconnected);
    {
        const Doorkeeper bus(address, true);
        QVERIFY(connection.start());
        QVERIFY(connected.wait());
        QCOMPARE(connection.uniqueName(), QString(":1.0"));
    }
    QVERIFY(disconnected.wait());
    QCOMPARE(connection.uniqueName(), QString());
    const Doorkeeper bus(address, true);
    QVERIFY(connected.wait());
    QCOMPARE(connection.uniqueName(), QString(":1.0"));
}

void TestBusConnection::followsTheFoldersOfABusThatComesLate()
{
    const QTemporaryDir folder;
    PrivateBus bus(folder.filePath("later/still"));
    BusConnection connection(bus.address(), {});
    QSignalSpy connected(&connection, &BusConnection::connected);
    const FailureCount failures;
    const int watchesBefore = folderWatches();
    QVERIFY(connection.start());
    // Once more each time, for what has come just before it was watched for.
    QTRY_COMPARE(failures.number, 2);
    QVERIFY(QDir(folder.path()).mkdir("other"));
    QTRY_COMPARE(failures.number, 3);
    QVERIFY(QDir(folder.path()).mkdir("later"));
    QTRY_COMPARE(failures.number, 5);
    QVERIFY(QDir(folder.path()).mkdir("later/still"));
    QTRY_COMPARE(failures.number, 7);
    QVERIFY(folderWatches() > watchesBefore);
    QVERIFY(bus.start());
    QVERIFY(connected.wait());
    // What happens there is of no concern any more.
    QCOMPARE(folderWatches(), watchesBefore);
}

QTEST_GUILESS_MAIN(TestBusConnection)
#include "tst_busconnection.moc"
