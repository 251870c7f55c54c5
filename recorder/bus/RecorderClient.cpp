// SPDX-License-Identifier: MIT
#include "recorder/bus/RecorderClient.h"

#include "modem/BusConnection.h"
#include "modem/DBusValue.h"
#include "modem/Names.h"
#include "modem/OwnerChange.h"
#include "recorder/bus/ConnectionValues.h"
#include "recorder/bus/RecorderService.h"

#include <QDBusMessage>

#include <utility>
#include <vector>

namespace recorder
{

using modem::BusConnection;
namespace names = modem::names;

namespace
{

std::vector<BusConnection::Subscription> subscriptionsFor(const QString &name)
{
    const QString own = RecorderService::interfaceName();
    const QString rule = QStringLiteral("type='signal',sender='%1',interface='%2'").arg(name);
    return {{names::bus, names::ownerChanged, {modem::ruleForOwnersOf(name)}},
            {names::propertiesInterface,
             names::propertiesChanged,
             {rule.arg(names::propertiesInterface)}},
            {own, QStringLiteral("ConnectionBegan"), {rule.arg(own)}},
            {own, QStringLiteral("ConnectionChanged"), {}},
            {own, QStringLiteral("ConnectionEnded"), {}}};
}

} // namespace

RecorderClient::RecorderClient(const QString &storePath, std::function<QString()> ownName,
                               const QString &busAddress, QObject *parent)
    : QObject(parent)
    , m_name(RecorderService::nameFor(storePath))
    , m_ownName(std::move(ownName))
    , m_bus(std::make_unique<BusConnection>(busAddress, subscriptionsFor(m_name)))
{
    qRegisterMetaType<recorder::RecorderState>();
    connect(m_bus.get(), &BusConnection::connected, this, &RecorderClient::findOwner);
    connect(m_bus.get(), &BusConnection::disconnected, this, [this] { setOwner(QString()); });
    connect(m_bus.get(), &BusConnection::received, this, &RecorderClient::handleMessage);
}

RecorderClient::~RecorderClient() = default;

/// That the address is on another computer is told by who publishes there.
void RecorderClient::start()
{
    m_bus->start();
}

void RecorderClient::findOwner()
{
    modem::askForOwner(*m_bus, m_name, [this](const QString &owner) {
        if (!owner.isEmpty())
            setOwner(owner);
    });
}

void RecorderClient::setOwner(const QString &owner)
{
    const QString followed = owner == m_ownName() ? QString() : owner;
    if (followed == m_owner)
        return;
    m_owner = followed;
    m_isRecording = false;
    m_problem.clear();
    m_connections.clear();
    tell();
    if (!m_owner.isEmpty())
        watchOwner();
}

/// Nothing changes unnoticed after the reply to the first call.
void RecorderClient::watchOwner()
{
    const auto call = [this](const QString &interfaceName, const char *method) {
        return QDBusMessage::createMethodCall(m_owner, RecorderService::objectPath(), interfaceName,
                                              QLatin1String(method));
    };
    m_bus->ask(call(RecorderService::interfaceName(), "Watch"), QString(),
               [](const QVariantList &) {});
    QDBusMessage getAll = call(names::propertiesInterface, "GetAll");
    getAll << RecorderService::interfaceName();
    m_bus->ask(getAll, QStringLiteral("a{sv}"), [this, owner = m_owner](const QVariantList &reply) {
        if (owner == m_owner && !reply.isEmpty())
            update(modem::mapOf(reply.first()));
    });
}

void RecorderClient::handleMessage(const QDBusMessage &message)
{
    if (const auto change = modem::ownerChangeIn(message)) {
        if (change->name == m_name)
            setOwner(change->owner);
        return;
    }
    if (m_owner.isEmpty() || message.service() != m_owner)
        return;
    const QVariantList arguments = message.arguments();
    if (message.signature() == QLatin1String("sa{sv}as")) {
        if (arguments.first() == RecorderService::interfaceName())
            update(modem::mapOf(arguments.at(1)));
    } else if (message.signature() == QLatin1String("xa{sv}")) {
        handleSignal(message.member(), arguments);
    }
}

void RecorderClient::handleSignal(const QString &member, const QVariantList &arguments)
{
    if (member == QLatin1String("ConnectionEnded")) {
        m_connections.remove(arguments.first().toLongLong());
        tell();
        emit ended();
    } else {
        setConnection(modem::mapOf(arguments.at(1)));
        tell();
    }
}

void RecorderClient::update(const QVariantMap &properties)
{
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (property.key() == QLatin1String("Recording"))
            m_isRecording = modem::flagOf(property.value());
        else if (property.key() == QLatin1String("Problem"))
            m_problem = textIn(property.value());
        else if (property.key() == QLatin1String("Connections"))
            updateConnections(property.value());
    }
    tell();
}

void RecorderClient::updateConnections(const QVariant &value)
{
    m_connections.clear();
    for (const QVariantMap &values : connectionsIn(value))
        setConnection(values);
}

void RecorderClient::setConnection(const QVariantMap &values)
{
    if (const auto state = stateIn(values))
        m_connections.insert(state->id, *state);
}

void RecorderClient::tell()
{
    emit changed({m_isRecording, m_problem, m_connections.values()});
}

} // namespace recorder
