// SPDX-License-Identifier: MIT
#include "RealModemManager.h"

#include "modem/ModemTable.h"
#include "modem/Names.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDBusVariant>
#include <QFile>
#include <QTest>

#include <unistd.h>

namespace names = modem::names;

namespace
{

const QString connectionName = QStringLiteral("control");
const QString simpleInterface = QStringLiteral("org.freedesktop.ModemManager1.Modem.Simple");
const QString serialLine = QStringLiteral("/dev/ttyACM0");
const QString authority = QStringLiteral("org.freedesktop.PolicyKit1");

/// Longer than the daemon takes for anything: it probes a modem for some seconds.
constexpr int patience = 30000;

// States of a modem.
constexpr int disabled = 3;
constexpr int registered = 8;
constexpr int connected = 11;

void end(QProcess &process)
{
    process.kill();
    process.waitForFinished();
}

} // namespace

void RealModemManager::enterNetwork(char **argv)
{
    if (!qEnvironmentVariableIsSet("MODEM_NETWORK")) {
        char script[] = MODEM_TESTS "/with-modem-network.sh";
        std::vector<char *> arguments{script};
        while (*argv)
            arguments.push_back(*argv++);
        arguments.push_back(nullptr);
        execv(script, arguments.data());
        qputenv("MODEM_NETWORK", "with-modem-network.sh cannot be run");
    }
}

QString RealModemManager::obstacle()
{
    const QString network = qEnvironmentVariable("MODEM_NETWORK");
    return network == "ready" ? QString() : network;
}

RealModemManager::RealModemManager(const QString &folder)
    : m_bus(folder)
{
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.address().toUtf8());
    qputenv("PATH", qgetenv("PATH") + ":/usr/sbin");
    m_daemon.setStandardErrorFile(folder + "/daemon.log");
    m_authority.setStandardOutputFile(folder + "/authority.log");
}

RealModemManager::~RealModemManager()
{
    killBus();
}

bool RealModemManager::startBus()
{
    if (!m_bus.start())
        return false;
    QDBusConnection::connectToBus(m_bus.address(), connectionName);
    return startAuthority() && startModem();
}

/// Without it the daemon does nothing that it is asked for.
bool RealModemManager::startAuthority()
{
    m_authority.start("/usr/bin/python3", {"-m", "dbusmock", "--system", "--template", "polkitd"});
    const auto permitsAll = [this] {
        return call(authority, "/org/freedesktop/PolicyKit1/Authority", "org.freedesktop.DBus.Mock",
                    "AllowUnknown", {true})
                   .type() == QDBusMessage::ReplyMessage;
    };
    return QTest::qWaitFor(permitsAll, patience);
}

bool RealModemManager::startModem()
{
    QFile::remove(serialLine);
    m_modem.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_modem.start(MODEM_TESTS "/at-modem.py", {serialLine});
    return QTest::qWaitFor([] { return QFile::exists(serialLine); }, patience);
}

bool RealModemManager::startDaemon()
{
    m_daemon.start("ModemManager",
                   {"--test-no-udev", "--test-no-suspend-resume", "--test-no-qrtr"});
    return QTest::qWaitFor([this] { return hasService(names::service); }, patience);
}

void RealModemManager::killDaemon()
{
    end(m_daemon);
}

void RealModemManager::killBus()
{
    QDBusConnection::disconnectFromBus(connectionName);
    m_bus.kill();
    for (QProcess *process : {&m_daemon, &m_authority, &m_modem})
        end(*process);
}

bool RealModemManager::enable()
{
    return waitForState({disabled}) &&
           callModem(names::modemInterface, "Enable", {true}).type() ==
               QDBusMessage::ReplyMessage &&
           waitForState({registered});
}

bool RealModemManager::connectBearer(const QString &apn)
{
    return callModem(simpleInterface, "Connect", {QVariantMap({{"apn", apn}})}).type() ==
               QDBusMessage::ReplyMessage &&
           waitForState({connected});
}

bool RealModemManager::disconnectBearers()
{
    const QVariant all = QVariant::fromValue(QDBusObjectPath("/"));
    return callModem(simpleInterface, "Disconnect", {all}).type() == QDBusMessage::ReplyMessage;
}

bool RealModemManager::tellModem(const QByteArray &command)
{
    m_modem.write(command + '\n');
    return QTest::qWaitFor([this] { return m_modem.canReadLine(); }, patience) &&
           m_modem.readLine() == "ok\n";
}

bool RealModemManager::bringUp(const QString &apn)
{
    if (!hasService(names::service) && !startDaemon())
        return false;
    if (modemPath().isEmpty() && !plugIn())
        return false;
    if (!waitForState({disabled, registered, connected}))
        return false;
    if (modemState() == disabled && !enable())
        return false;
    return modemState() == connected || connectBearer(apn);
}

QVariant RealModemManager::modemProperty(const QString &interfaceName, const QString &name) const
{
    if (modemPath().isEmpty())
        return {};
    const QDBusReply<QDBusVariant> value =
        callModem(names::propertiesInterface, "Get", {interfaceName, name});
    return value.isValid() ? value.value().variant() : QVariant();
}

QDBusMessage RealModemManager::call(const QString &service, const QString &path,
                                    const QString &interfaceName, const QString &method,
                                    const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interfaceName, method);
    message.setArguments(arguments);
    return QDBusConnection(connectionName).call(message, QDBus::Block, patience);
}

QDBusMessage RealModemManager::callModem(const QString &interfaceName, const QString &method,
                                         const QVariantList &arguments) const
{
    return call(names::service, modemPath(), interfaceName, method, arguments);
}

bool RealModemManager::hasService(const QString &name) const
{
    return QDBusConnection(connectionName).interface()->isServiceRegistered(name);
}

/// As udev would: the port that carries data, and the line for commands.
bool RealModemManager::reportPorts(const QString &action)
{
    const auto report = [&](const QString &subsystem, const QString &name) {
        const QVariantMap event{{"action", action}, {"subsystem", subsystem}, {"name", name}};
        return call(names::service, names::root, names::service, "ReportKernelEvent", {event})
                   .type() == QDBusMessage::ReplyMessage;
    };
    return QTest::qWaitFor([&] { return report("net", "wwan0"); }, patience) &&
           report("tty", "ttyACM0");
}

/// Empty while there is no modem.
QString RealModemManager::modemPath() const
{
    const QDBusMessage reply =
        call(names::service, names::root, names::objectsInterface, "GetManagedObjects", {});
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {};
    const auto objects = qdbus_cast<modem::ModemTable::Objects>(reply.arguments().constFirst());
    return objects.isEmpty() ? QString() : objects.firstKey().path();
}

int RealModemManager::modemState() const
{
    return modemProperty(names::modemInterface, "State").toInt();
}

bool RealModemManager::waitForState(const QList<int> &states) const
{
    return QTest::qWaitFor([&] { return states.contains(modemState()); }, patience);
}
