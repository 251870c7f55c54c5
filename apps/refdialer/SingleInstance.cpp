// SPDX-License-Identifier: MIT
#include "SingleInstance.h"

#include "recorder/bus/BusName.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace refdialer
{

namespace
{

const char *const applicationId = REFDIALER_APPLICATION_ID;
const char *const interfaceName = "org.freedesktop.Application";
const char *const activationToken = "activation-token";

/// Long enough for a program that is loading a large history.
constexpr int patienceMilliseconds = 10000;

/// As the rules of desktop entries derive it from the application's identifier.
QString objectPath()
{
    return recorder::objectPathFor(QLatin1String(applicationId));
}

bool takeName(QDBusConnection &bus, const QString &name)
{
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        bus.interface()->registerService(name);
    // A bus that gives no names is as good as none.
    return !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

/// Whether the owner of the name has answered.
bool activateOwner(const QDBusConnection &bus, const QString &name)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        name, objectPath(), QLatin1String(interfaceName), QStringLiteral("Activate"));
    // The right to take the focus, which the desktop has given to this start.
    QVariantMap platformData;
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    if (!token.isEmpty())
        platformData.insert(QLatin1String(activationToken), token);
    call.setArguments({platformData});
    call.setAutoStartService(false);
    return bus.call(call, QDBus::Block, patienceMilliseconds).type() == QDBusMessage::ReplyMessage;
}

} // namespace

SingleInstance::~SingleInstance()
{
    if (!m_name.isEmpty())
        QDBusConnection::sessionBus().unregisterService(m_name);
}

QString SingleInstance::nameFor(const QString &storeFile)
{
    return recorder::busNameFor(QLatin1String(applicationId), storeFile);
}

SingleInstance::Outcome SingleInstance::claim(const QString &storeFile)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Outcome::First;
    // Before the name, so that nobody finds the name without it.
    bus.registerObject(objectPath(), QLatin1String(interfaceName), this,
                       QDBusConnection::ExportScriptableSlots);
    const QString name = nameFor(storeFile);
    if (!takeName(bus, name)) {
        if (activateOwner(bus, name))
            return Outcome::OtherRaised;
        // It may have ended meanwhile.
        if (!takeName(bus, name))
            return Outcome::OtherIsBusy;
    }
    m_name = name;
    return Outcome::First;
}

void SingleInstance::Activate(const QVariantMap &platformData)
{
    // Where windows need such a right, Qt looks for it here.
    const QByteArray token = platformData.value(QLatin1String(activationToken)).toString().toUtf8();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
    emit activated();
}

} // namespace refdialer
