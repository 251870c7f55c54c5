// SPDX-License-Identifier: MIT
#include "modem/Modems.h"

#include "modem/BusConnection.h"
#include "modem/ModemLog.h"
#include "modem/Names.h"
#include "modem/OwnerChange.h"

#include <QDBusArgument>
#include <QDBusMessage>

#include <utility>
#include <vector>

namespace modem
{

Q_LOGGING_CATEGORY(log, "modem", QtWarningMsg)

namespace
{

constexpr QLatin1String interfacesAdded = latin1("InterfacesAdded");
constexpr QLatin1String interfacesRemoved = latin1("InterfacesRemoved");

QString rule(QLatin1String sender, QLatin1String interfaceName, QLatin1String member,
             const QString &condition)
{
    return QStringLiteral("type='signal',sender='%1',interface='%2',member='%3',%4")
        .arg(sender, interfaceName, member, condition);
}

QString firstArgument(QLatin1String value)
{
    return QStringLiteral("arg0='%1'").arg(value);
}

BusConnection::Subscription ofModems(QLatin1String member)
{
    const QString condition = QStringLiteral("path='%1'").arg(names::root);
    return {names::objectsInterface,
            member,
            {rule(names::service, names::objectsInterface, member, condition)}};
}

/// Only of the objects that count: the daemon has much more to tell.
BusConnection::Subscription ofProperties()
{
    QStringList rules;
    for (const QLatin1String name : {names::modemInterface, names::registrationInterface,
                                     names::bearerInterface, names::simInterface})
        rules.append(rule(names::service, names::propertiesInterface, names::propertiesChanged,
                          firstArgument(name)));
    return {names::propertiesInterface, names::propertiesChanged, rules};
}

std::vector<BusConnection::Subscription> subscriptions()
{
    return {{names::bus, names::ownerChanged, {ruleForOwnersOf(names::service)}},
            ofModems(interfacesAdded),
            ofModems(interfacesRemoved),
            ofProperties()};
}

bool is(const QDBusMessage &message, QLatin1String member, const char *signature)
{
    return message.member() == member && message.signature() == QLatin1String(signature);
}

QString objectPath(const QVariant &argument)
{
    return qdbus_cast<QDBusObjectPath>(argument).path();
}

/// A property whose new value was not sent along counts as not known.
QVariantMap changedProperties(const QVariantList &arguments)
{
    auto properties = qdbus_cast<QVariantMap>(arguments.at(1));
    const QStringList invalidated = arguments.at(2).toStringList();
    for (const QString &name : invalidated)
        properties.insert(name, QVariant());
    return properties;
}

/// Names of the ports that have come, changed or gone.
QStringList differences(const PortSource::Ports &before, const PortSource::Ports &after)
{
    QStringList names;
    for (const auto &[name, port] : before) {
        const auto now = after.find(name);
        if (now == after.end() || now->second != port)
            names.append(name);
    }
    for (const auto &[name, port] : after) {
        if (before.find(name) == before.end())
            names.append(name);
    }
    return names;
}

} // namespace

Modems::Modems(const QString &busAddress, QObject *parent)
    : PortSource(parent)
    , m_busAddress(busAddress)
    , m_bus(new BusConnection(busAddress, subscriptions(), this))
{
    connect(m_bus, &BusConnection::connected, this, &Modems::askForOwner);
    connect(m_bus, &BusConnection::disconnected, this, [this] { setOwner({}); });
    connect(m_bus, &BusConnection::received, this, &Modems::handleSignal);
}

Modems::~Modems() = default;

void Modems::start()
{
    if (!m_bus->start())
        qCWarning(log,
                  "No names of mobile networks: the system bus \"%s\" is not on this computer. "
                  "Set DBUS_SYSTEM_BUS_ADDRESS to an address that begins with \"unix:\".",
                  qUtf8Printable(m_busAddress));
}

void Modems::askForOwner()
{
    modem::askForOwner(*m_bus, names::service, [this](const QString &owner) { setOwner(owner); });
}

void Modems::setOwner(const QString &uniqueName)
{
    if (uniqueName == m_owner)
        return;
    // What one daemon has told says nothing about the next one.
    m_owner.clear();
    m_table = {};
    publish();
    m_owner = uniqueName;
    if (!m_owner.isEmpty())
        askForModems();
}

void Modems::handleSignal(const QDBusMessage &message)
{
    if (const auto change = ownerChangeIn(message)) {
        if (change->name == names::service)
            setOwner(change->owner);
    } else if (!m_owner.isEmpty() && message.service() == m_owner) {
        handleNews(message);
        publish();
    }
}

void Modems::handleNews(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (is(message, interfacesAdded, "oa{sa{sv}}"))
        ask(m_table.addInterfaces(objectPath(arguments.at(0)),
                                  qdbus_cast<ModemTable::Interfaces>(arguments.at(1))));
    else if (is(message, interfacesRemoved, "oas"))
        m_table.removeInterfaces(objectPath(arguments.at(0)), arguments.at(1).toStringList());
    else if (is(message, names::propertiesChanged, "sa{sv}as"))
        ask(m_table.changeProperties(message.path(), arguments.at(0).toString(),
                                     changedProperties(arguments)));
}

void Modems::askForModems()
{
    const QDBusMessage call = QDBusMessage::createMethodCall(
        m_owner, names::root, names::objectsInterface, QStringLiteral("GetManagedObjects"));
    m_bus->ask(call, QStringLiteral("a{oa{sa{sv}}}"),
               [this, owner = m_owner](const QVariantList &reply) {
                   if (owner != m_owner || reply.isEmpty())
                       return;
                   ask(m_table.setModems(qdbus_cast<ModemTable::Objects>(reply.first())));
                   publish();
               });
}

void Modems::ask(const ModemTable::Questions &questions)
{
    for (const ModemTable::Question &question : questions) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            m_owner, question.path, names::propertiesInterface, QStringLiteral("GetAll"));
        call << question.interfaceName;
        m_bus->ask(call, QStringLiteral("a{sv}"),
                   [this, owner = m_owner, question](const QVariantList &reply) {
                       if (owner != m_owner)
                           return;
                       m_table.answer(question, reply.isEmpty()
                                                    ? QVariantMap()
                                                    : qdbus_cast<QVariantMap>(reply.first()));
                       publish();
                   });
    }
}

void Modems::publish()
{
    // A modem that comes later and tells nothing of itself takes nothing from the others.
    const bool isAvailable = !m_owner.isEmpty() && (m_isAvailable || m_table.isComplete());
    const bool wasAvailable = std::exchange(m_isAvailable, isAvailable);
    const Ports before = std::exchange(m_ports, m_table.ports());
    const QStringList names = differences(before, m_ports);
    if (wasAvailable && !isAvailable)
        emit availabilityChanged(false);
    for (const QString &name : names)
        emit changed(name);
    if (!wasAvailable && isAvailable)
        emit availabilityChanged(true);
}

} // namespace modem
