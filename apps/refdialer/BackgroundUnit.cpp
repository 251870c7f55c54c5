// SPDX-License-Identifier: MIT
#include "BackgroundUnit.h"

#include "modem/Names.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QStringList>

#include <utility>

namespace refdialer
{

namespace
{

using modem::latin1;

constexpr QLatin1String unit = latin1("connrecord.service");
constexpr QLatin1String service = latin1("org.freedesktop.systemd1");
constexpr QLatin1String path = latin1("/org/freedesktop/systemd1");
constexpr QLatin1String manager = latin1("org.freedesktop.systemd1.Manager");

BackgroundUnit::Outcome outcomeOf(const QDBusMessage &error)
{
    const QString name = error.errorName();
    if (name == QLatin1String("org.freedesktop.systemd1.NoSuchUnit") ||
        name == QLatin1String("org.freedesktop.DBus.Error.FileNotFound"))
        return BackgroundUnit::Outcome::NotInstalled;
    for (const char *const absence : {"ServiceUnknown", "NameHasNoOwner", "Disconnected",
                                      "UnknownObject", "Spawn.ChildExited"}) {
        if (name == QLatin1String("org.freedesktop.DBus.Error.") + QLatin1String(absence))
            return BackgroundUnit::Outcome::NoManager;
    }
    return BackgroundUnit::Outcome::Refused;
}

} // namespace

BackgroundUnit::BackgroundUnit(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{
}

QString BackgroundUnit::textFor(Outcome outcome, const QString &reason)
{
    switch (outcome) {
    case Outcome::On:
        return tr("Connections are recorded in the background from now on: the service "
                  "connrecord.service is enabled and runs.");
    case Outcome::Off:
        return tr("Connections are recorded only while this window is open: the service "
                  "connrecord.service is disabled and has been stopped.");
    case Outcome::NoManager:
        return tr("There is no systemd for your session that could start the service. Have your "
                  "session start \"connrecord record\" instead.");
    case Outcome::NotInstalled:
        return tr("The service connrecord.service is not installed. Install the package "
                  "connrecord, which brings it.");
    case Outcome::NotStarted:
        return tr("The service connrecord.service is enabled but did not start. \"systemctl "
                  "--user status connrecord\" tells why.");
    case Outcome::Refused:
        break;
    }
    return tr("systemd has refused: %1").arg(reason);
}

void BackgroundUnit::look()
{
    send(
        QStringLiteral("GetUnitFileState"), {unit},
        [this](const QDBusMessage &reply) {
            const QString state = reply.arguments().value(0).toString();
            emit found(state.startsWith(QLatin1String("enabled")));
        },
        [this](const QDBusMessage &) { emit found(false); });
}

void BackgroundUnit::turnOn()
{
    const auto start = [this] {
        m_isStarting = true;
        order(QStringLiteral("StartUnit"), {unit, QStringLiteral("replace")}, [] {});
    };
    const auto enable = [this, start] {
        order(QStringLiteral("EnableUnitFiles"), {QStringList{unit}, false, false},
              [this, start] { order(QStringLiteral("Reload"), {}, start); });
    };
    // To be told of the end of the start; to be subscribed already is no failure.
    m_bus.connect(service, path, manager, QStringLiteral("JobRemoved"), this,
                  SLOT(handleEndOfJob(QDBusMessage)));
    send(
        QStringLiteral("Subscribe"), {}, [enable](const QDBusMessage &) { enable(); },
        [enable](const QDBusMessage &) { enable(); });
}

void BackgroundUnit::turnOff()
{
    const auto tell = [this](const QDBusMessage &) { emit done(Outcome::Off, QString()); };
    // One that does not run cannot be stopped.
    const auto stop = [this, tell] {
        send(QStringLiteral("StopUnit"), {unit, QStringLiteral("replace")}, tell, tell);
    };
    order(QStringLiteral("DisableUnitFiles"), {QStringList{unit}, false},
          [this, stop] { order(QStringLiteral("Reload"), {}, stop); });
}

void BackgroundUnit::handleEndOfJob(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (message.signature() != QLatin1String("uoss") || arguments.at(2).toString() != unit)
        return;
    if (!std::exchange(m_isStarting, false))
        return;
    const bool hasStarted = arguments.at(3).toString() == QLatin1String("done");
    emit done(hasStarted ? Outcome::On : Outcome::NotStarted, QString());
}

void BackgroundUnit::send(const QString &method, const QVariantList &arguments,
                          const Reaction &succeed, const Reaction &fail)
{
    if (!m_bus.isConnected()) {
        fail(QDBusMessage::createError(QDBusError::Disconnected, QString()));
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, manager, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [succeed, fail](QDBusPendingCallWatcher *finished) {
                const QDBusMessage reply = finished->reply();
                finished->deleteLater();
                (reply.type() == QDBusMessage::ReplyMessage ? succeed : fail)(reply);
            });
}

void BackgroundUnit::order(const QString &method, const QVariantList &arguments,
                           const std::function<void()> &next)
{
    send(
        method, arguments, [next](const QDBusMessage &) { next(); },
        [this](const QDBusMessage &error) { tellFailure(error); });
}

void BackgroundUnit::tellFailure(const QDBusMessage &error)
{
    m_isStarting = false;
    emit done(outcomeOf(error), error.errorMessage());
}

} // namespace refdialer
