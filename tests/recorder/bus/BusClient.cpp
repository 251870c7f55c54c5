// SPDX-License-Identifier: MIT
#include "BusClient.h"

#include "recorder/bus/RecorderService.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QTest>

#include <algorithm>

using recorder::RecorderService;

namespace
{

const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

QStringList watchedInterfaces()
{
    return {RecorderService::interfaceName(), propertiesInterface};
}

QString nextName()
{
    static int count = 0;
    return QStringLiteral("client-%1").arg(++count);
}

} // namespace

BusClient::BusClient(const QString &address, const QString &serviceName)
    : m_serviceName(serviceName)
    , m_connectionName(nextName())
    , m_bus(QDBusConnection::connectToBus(address, m_connectionName))
{
    for (const QString &interfaceName : watchedInterfaces())
        m_bus.connect(serviceName, RecorderService::objectPath(), interfaceName, QString(), this,
                      SLOT(keep(QDBusMessage)));
}

BusClient::~BusClient()
{
    leave();
}

/// No signal may be on its way to this object when the connection is given up.
void BusClient::leave()
{
    for (const QString &interfaceName : watchedInterfaces())
        m_bus.disconnect(m_serviceName, RecorderService::objectPath(), interfaceName, QString(),
                         this, SLOT(keep(QDBusMessage)));
    QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
    QDBusConnection::disconnectFromBus(m_connectionName);
    m_bus = QDBusConnection(QString());
}

bool BusClient::isThere(const QString &name) const
{
    return m_bus.interface()->isServiceRegistered(name);
}

QString BusClient::owner() const
{
    return m_bus.interface()->serviceOwner(m_serviceName);
}

void BusClient::waitForName()
{
    m_bus.interface()->registerService(m_serviceName, QDBusConnectionInterface::QueueService);
}

void BusClient::releaseName()
{
    m_bus.interface()->unregisterService(m_serviceName);
}

QDBusMessage BusClient::call(const QString &interfaceName, const QString &method,
                             const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        m_serviceName, RecorderService::objectPath(), interfaceName, method);
    message.setArguments(arguments);
    const QDBusPendingCall pending = m_bus.asyncCall(message);
    return QTest::qWaitFor([&] { return pending.isFinished(); })
               ? pending.reply()
               : message.createErrorReply(QDBusError::NoReply, method);
}

QDBusMessage BusClient::call(const QString &method)
{
    return call(RecorderService::interfaceName(), method, {});
}

QVariant BusClient::property(const QString &name)
{
    const QVariantList reply =
        call(propertiesInterface, "Get", {RecorderService::interfaceName(), name}).arguments();
    return reply.isEmpty() ? QVariant() : qvariant_cast<QDBusVariant>(reply.first()).variant();
}

QList<QVariantMap> BusClient::connections()
{
    return connectionsIn(property("Connections"));
}

QString BusClient::introspection()
{
    const QVariantList reply =
        call("org.freedesktop.DBus.Introspectable", "Introspect", {}).arguments();
    return reply.isEmpty() ? QString() : reply.first().toString();
}

QList<QDBusMessage> BusClient::received(const QString &member) const
{
    QList<QDBusMessage> found;
    std::copy_if(m_signals.begin(), m_signals.end(), std::back_inserter(found),
                 [&](const QDBusMessage &message) { return message.member() == member; });
    return found;
}

QVariantList BusClient::toldValues(const QString &property) const
{
    QVariantList values;
    for (const QDBusMessage &message : received("PropertiesChanged")) {
        const auto changed = qdbus_cast<QVariantMap>(message.arguments().at(1));
        if (changed.contains(property))
            values.append(changed.value(property));
    }
    return values;
}

QList<QVariantMap> connectionsIn(const QVariant &value)
{
    return qdbus_cast<QList<QVariantMap>>(value);
}
