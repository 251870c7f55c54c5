// SPDX-License-Identifier: MIT
#include "NotificationDaemon.h"

#include <QDBusArgument>
#include <QDBusMessage>

namespace
{

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");

QString nextName()
{
    static int count = 0;
    return QStringLiteral("notifications-%1").arg(++count);
}

} // namespace

NotificationDaemon::NotificationDaemon(const QString &busAddress)
    : m_connectionName(nextName())
    , m_bus(QDBusConnection::connectToBus(busAddress, m_connectionName))
{
    m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/Notifications"), this);
}

NotificationDaemon::~NotificationDaemon()
{
    m_bus = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(m_connectionName);
}

bool NotificationDaemon::takeName()
{
    return m_bus.registerService(serviceName);
}

bool NotificationDaemon::giveNameAway()
{
    return m_bus.unregisterService(serviceName);
}

QStringList NotificationDaemon::titles() const
{
    QStringList titles;
    for (const Notification &each : m_shown)
        titles.append(each.title);
    return titles;
}

QString NotificationDaemon::introspect(const QString & /*path*/) const
{
    return {};
}

bool NotificationDaemon::handleMessage(const QDBusMessage &message,
                                       const QDBusConnection &connection)
{
    if (message.interface() != serviceName || message.member() != QLatin1String("Notify") ||
        message.signature() != QLatin1String("susssasa{sv}i"))
        return false;
    if (m_manner != Manner::Shows)
        return answerWithoutShowing(message, connection);
    const QVariantList arguments = message.arguments();
    const auto hints = qdbus_cast<QVariantMap>(arguments.at(6));
    m_shown.append({arguments.at(0).toString(), arguments.at(3).toString(),
                    arguments.at(4).toString(), hints.value("desktop-entry").toString(),
                    hints.value("urgency", -1).toInt()});
    return connection.send(message.createReply(uint(m_shown.size())));
}

bool NotificationDaemon::answerWithoutShowing(const QDBusMessage &message,
                                              const QDBusConnection &connection)
{
    ++m_notShown;
    if (m_manner == Manner::SaysNothing)
        return true;
    return connection.send(
        message.createErrorReply(serviceName + QLatin1String(".Error.ExcessNotificationGeneration"),
                                 QStringLiteral("Too many notifications")));
}
