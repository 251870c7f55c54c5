// SPDX-License-Identifier: MIT
#include "apps/refdialer/SingleInstance.h"
#include "recorder/bus/RecorderService.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

using recorder::RecorderService;
using refdialer::SingleInstance;

/// Several starts of the real program on a session bus of their own.
class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void namesAStoreByItsFile();
    void raisesTheWindowOfTheSameStore();
    void opensAnotherStoreBesideIt();
    void leavesAPictureAndASampleAlone();
    void asksAWindowThatIsBusy();
    void takesOverFromOneThatDies();
    void startsWithoutABus();

private:
    using Program = std::unique_ptr<QProcess>;
    Program start(const QStringList &arguments, const QString &busAddress = {}) const;
    Program startWindow() const;
    QString store(const QString &name = "connections.db") const { return m_folder->filePath(name); }
    static QString owner(const QString &storeFile);
    static qint64 ownerProcess(const QString &storeFile);
    static int connections();

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{

QDBusConnectionInterface &bus()
{
    return *QDBusConnection::sessionBus().interface();
}

} // namespace

TestSingleInstance::Program TestSingleInstance::start(const QStringList &arguments,
                                                      const QString &busAddress) const
{
    auto program = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!busAddress.isEmpty())
        environment.insert("DBUS_SESSION_BUS_ADDRESS", busAddress);
    program->setProcessEnvironment(environment);
    program->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program->start(REFDIALER, arguments);
    program->waitForStarted();
    return program;
}

/// A window that is on the bus with all that it has to do there.
TestSingleInstance::Program TestSingleInstance::startWindow() const
{
    Program program = start({"--store", store()});
    const auto isOnTheBus = [&] {
        return ownerProcess(store()) == program->processId() &&
               bus().isServiceRegistered(RecorderService::nameFor(store()));
    };
    if (!QTest::qWaitFor(isOnTheBus))
        return nullptr;
    return program;
}

QString TestSingleInstance::owner(const QString &storeFile)
{
    return bus().serviceOwner(SingleInstance::nameFor(storeFile));
}

qint64 TestSingleInstance::ownerProcess(const QString &storeFile)
{
    const QString name = owner(storeFile);
    return name.isEmpty() ? 0 : qint64(bus().servicePid(name));
}

/// How many programs have reached the bus.
int TestSingleInstance::connections()
{
    return int(bus().registeredServiceNames().value().filter(QRegularExpression("^:")).size());
}

void TestSingleInstance::namesAStoreByItsFile()
{
    const QString own = QDir::homePath() + "/.local/share/refdialer/connections.db";
    QCOMPARE(SingleInstance::nameFor(own), QString("org.example.refdialer"));
    const QString name = SingleInstance::nameFor(store());
    QVERIFY(QRegularExpression("^org\\.example\\.refdialer\\.store[0-9a-f]{32}$")
                .match(name)
                .hasMatch());
    QVERIFY(name != SingleInstance::nameFor(store("other.db")));
    QCOMPARE(SingleInstance::nameFor(m_folder->path() + "/./connections.db"), name);
    QVERIFY(QFile::link(m_folder->path(), m_folder->path() + "/link"));
    QCOMPARE(SingleInstance::nameFor(m_folder->path() + "/link/connections.db"), name);
}

void TestSingleInstance::raisesTheWindowOfTheSameStore()
{
    SingleInstance first;
    QSignalSpy activated(&first, &SingleInstance::activated);
    QCOMPARE(first.claim(store()), SingleInstance::Outcome::First);
    const Program second = start({"--store", store()});
    QTRY_COMPARE(second->state(), QProcess::NotRunning);
    QCOMPARE(second->exitCode(), 0);
    QCOMPARE(activated.size(), 1);
    QVERIFY(!QFile::exists(store()));
}

void TestSingleInstance::opensAnotherStoreBesideIt()
{
    SingleInstance first;
    const QSignalSpy activated(&first, &SingleInstance::activated);
    QCOMPARE(first.claim(store("other.db")), SingleInstance::Outcome::First);
    const Program second = startWindow();
    QVERIFY(second);
    QCOMPARE(activated.size(), 0);
    second->terminate();
    QTRY_COMPARE(second->state(), QProcess::NotRunning);
    QCOMPARE(second->exitCode(), 0);
    QCOMPARE(owner(store()), QString());
}

void TestSingleInstance::leavesAPictureAndASampleAlone()
{
    SingleInstance first;
    const QSignalSpy activated(&first, &SingleInstance::activated);
    QCOMPARE(first.claim(store()), SingleInstance::Outcome::First);
    for (const QStringList &what : {QStringList{"--store", store()}, QStringList("--demo")}) {
        const QString picture = store("picture.png");
        const Program second = start(what + QStringList{"--screenshot", picture});
        QTRY_COMPARE(second->state(), QProcess::NotRunning);
        QCOMPARE(second->exitCode(), 0);
        QVERIFY(QFile::remove(picture));
    }
    QCOMPARE(activated.size(), 0);
}

void TestSingleInstance::asksAWindowThatIsBusy()
{
    const Program first = startWindow();
    QVERIFY(first);
    kill(pid_t(first->processId()), SIGSTOP);
    const int before = connections();
    const Program second = start({"--store", store()});
    QTRY_COMPARE(connections(), before + 1);
    QCOMPARE(second->state(), QProcess::Running);
    kill(pid_t(first->processId()), SIGCONT);
    QTRY_COMPARE(second->state(), QProcess::NotRunning);
    QCOMPARE(second->exitCode(), 0);
    QCOMPARE(ownerProcess(store()), first->processId());
}

void TestSingleInstance::takesOverFromOneThatDies()
{
    const Program first = startWindow();
    QVERIFY(first);
    kill(pid_t(first->processId()), SIGSTOP);
    const int before = connections();
    const Program second = start({"--store", store()});
    QTRY_COMPARE(connections(), before + 1);
    first->kill();
    QTRY_COMPARE(ownerProcess(store()), second->processId());
    second->terminate();
    QTRY_COMPARE(second->state(), QProcess::NotRunning);
    QCOMPARE(second->exitCode(), 0);
}

void TestSingleInstance::startsWithoutABus()
{
    const Program alone = start({"--store", store()}, "unix:path=" + store("no-bus"));
    // It records, so its window is open.
    QTRY_VERIFY(QFile::exists(store()));
    alone->terminate();
    QTRY_COMPARE(alone->state(), QProcess::NotRunning);
    QCOMPARE(alone->exitCode(), 0);
}

int main(int argc, char **argv)
{
    QProcess bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    if (!bus.waitForStarted() || !bus.waitForReadyRead())
        qFatal("dbus-daemon cannot be started: %s", qUtf8Printable(bus.errorString()));
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());
    int result = 0;
    {
        const QApplication application(argc, argv);
        TestSingleInstance test;
        result = QTest::qExec(&test, argc, argv);
    }
    bus.kill();
    bus.waitForFinished();
    return result;
}

#include "tst_singleinstance.moc"
