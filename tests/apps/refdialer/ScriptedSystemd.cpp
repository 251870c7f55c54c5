// SPDX-License-Identifier: MIT
#include "ScriptedSystemd.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

namespace
{

const char *const connectionName = "scripted-systemd";
const char *const service = "org.freedesktop.systemd1";
const char *const path = "/org/freedesktop/systemd1";
const char *const manager = "org.freedesktop.systemd1.Manager";

QString textOf(const QVariant &argument)
{
    return argument.userType() == qMetaTypeId<QDBusArgument>()
               ? qdbus_cast<QStringList>(argument).join(',')
               : argument.toString();
}

} // namespace

ScriptedSystemd::ScriptedSystemd(const QString &address)
    : m_bus(QDBusConnection::connectToBus(address, connectionName))
{
    m_bus.registerVirtualObject(path, this);
    m_bus.registerService(service);
}

ScriptedSystemd::~ScriptedSystemd()
{
    m_bus = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(connectionName);
}

bool ScriptedSystemd::handleMessage(const QDBusMessage &message, const QDBusConnection &bus)
{
    if (message.interface() != manager)
        return false;
    const QString method = message.member();
    QStringList call(method);
    for (const QVariant &argument : message.arguments())
        call.append(textOf(argument));
    calls.append(call.join(' '));
    if (errors.contains(method))
        return bus.send(message.createErrorReply(errors.value(method), "It is said to fail."));
    QDBusMessage reply = message.createReply();
    if (method == "GetUnitFileState")
        reply << (isEnabled ? "enabled" : "disabled");
    else if (method == "EnableUnitFiles" || method == "DisableUnitFiles")
        isEnabled = method == "EnableUnitFiles";
    else if (method == "StartUnit" || method == "StopUnit")
        reply << QVariant::fromValue(QDBusObjectPath("/org/freedesktop/systemd1/job/1"));
    const bool isSent = bus.send(reply);
    if (method == "StartUnit")
        startUnit();
    else if (method == "StopUnit")
        isRunning = false;
    return isSent;
}

/// Others' jobs end at the same time.
void ScriptedSystemd::startUnit()
{
    isRunning = canStart;
    tellEndOfJob("other.service", isRunning ? "failed" : "done");
    tellEndOfJob("connrecord.service", isRunning ? "done" : "failed");
}

void ScriptedSystemd::tellEndOfJob(const QString &unit, const QString &result)
{
    QDBusMessage signal = QDBusMessage::createSignal(path, manager, "JobRemoved");
    signal << 1U << QVariant::fromValue(QDBusObjectPath("/org/freedesktop/systemd1/job/1")) << unit
           << result;
    m_bus.send(signal);
}
