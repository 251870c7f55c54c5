// SPDX-License-Identifier: MIT
#include "NotificationService.h"

#include "modem/BusConnection.h"
#include "modem/Names.h"
#include "modem/OwnerChange.h"

#include <QCoreApplication>
#include <QDBusMessage>

#include <chrono>
#include <utility>
#include <vector>

namespace common
{

using modem::busCall;
using modem::BusConnection;
namespace names = modem::names;

namespace
{

constexpr QLatin1String serviceName = modem::latin1("org.freedesktop.Notifications");
constexpr QLatin1String objectPath = modem::latin1("/org/freedesktop/Notifications");

/// A service that cannot be started yet, or that refuses, is not tried again and again.
constexpr std::chrono::minutes pause(1);

// As the service knows them.
constexpr uchar normalUrgency = 1;
constexpr uchar criticalUrgency = 2;
constexpr int untilTheServiceSays = -1;

QVariantMap hintsFor(const Notification &notification)
{
    const uchar urgency = notification.isUrgent ? criticalUrgency : normalUrgency;
    return {{QStringLiteral("urgency"), QVariant::fromValue(urgency)},
            {QStringLiteral("desktop-entry"), QStringLiteral(REFDIALER_APPLICATION_ID)}};
}

} // namespace

NotificationService::NotificationService(const QString &busAddress, QObject *parent)
    : QObject(parent)
    , m_bus(std::make_unique<BusConnection>(
          busAddress,
          std::vector<BusConnection::Subscription>{
              {names::bus, names::ownerChanged, {modem::ruleForOwnersOf(serviceName)}}}))
{
    connect(m_bus.get(), &BusConnection::connected, this, &NotificationService::search);
    connect(m_bus.get(), &BusConnection::disconnected, this, [this] { setOwner(QString()); });
    connect(m_bus.get(), &BusConnection::received, this, &NotificationService::handleOwnerChange);
    m_bus->start();
}

NotificationService::~NotificationService() = default;

void NotificationService::look()
{
    if (!m_pause.hasExpired())
        return;
    if (m_owner.isEmpty())
        search();
    else
        emit found();
}

void NotificationService::search()
{
    m_pause.setRemainingTime(pause);
    modem::askForOwner(*m_bus, serviceName, [this](const QString &owner) {
        if (owner.isEmpty())
            startService();
        else
            setOwner(owner);
    });
}

/// For the bus, one that runs but that it could not start is none.
void NotificationService::startService()
{
    constexpr uint noFlags = 0;
    m_bus->ask(busCall("StartServiceByName", {QString(serviceName), noFlags}), QStringLiteral("u"),
               [this](const QVariantList &reply) {
                   if (!reply.isEmpty())
                       askWhoStarted();
               });
}

void NotificationService::askWhoStarted()
{
    modem::askForOwner(*m_bus, serviceName, [this](const QString &owner) { setOwner(owner); });
}

void NotificationService::handleOwnerChange(const QDBusMessage &message)
{
    const auto change = modem::ownerChangeIn(message);
    if (change && change->name == serviceName)
        setOwner(change->owner);
}

void NotificationService::setOwner(const QString &owner)
{
    if (std::exchange(m_owner, owner) == owner || owner.isEmpty())
        return;
    m_pause.setRemainingTime(0);
    emit found();
}

/// The owner is called by its own name: that is whose an answer is.
void NotificationService::show(const Notification &notification,
                               const std::function<void()> &handleRefusal)
{
    constexpr uint replacesNone = 0;
    QDBusMessage call =
        QDBusMessage::createMethodCall(m_owner, objectPath, serviceName, QStringLiteral("Notify"));
    call.setArguments({QCoreApplication::applicationName(), replacesNone,
                       QStringLiteral(REFDIALER_APPLICATION_ID), notification.title,
                       notification.text, QStringList(), hintsFor(notification),
                       untilTheServiceSays});
    m_bus->ask(call, QStringLiteral("u"),
               [this, owner = m_owner, handleRefusal](const QVariantList &reply) {
                   if (!reply.isEmpty())
                       return;
                   if (m_owner.isEmpty() || m_owner == owner)
                       m_pause.setRemainingTime(pause);
                   handleRefusal();
               });
}

} // namespace common
