// SPDX-License-Identifier: MIT
#include "recorder/bus/BusListeners.h"

#include "modem/BusConnection.h"
#include "modem/OwnerChange.h"

#include <QDBusMessage>

#include <utility>

namespace recorder
{

using modem::busCall;

namespace
{

QString departureOf(const QString &client)
{
    return modem::ruleForOwnersOf(client) + QLatin1String(",arg2=''");
}

} // namespace

BusListeners::BusListeners(modem::BusConnection &bus, std::function<void()> changed)
    : m_bus(bus)
    , m_changed(std::move(changed))
{
}

void BusListeners::add(const QString &client)
{
    if (m_clients.contains(client))
        return;
    m_clients.insert(client);
    m_bus.tell(busCall("AddMatch", {departureOf(client)}));
    askWhetherStillThere(client);
    if (m_clients.size() == 1)
        m_changed();
}

/// It may have left before the bus was asked to tell that.
void BusListeners::askWhetherStillThere(const QString &client)
{
    m_bus.ask(busCall("NameHasOwner", {client}), QStringLiteral("b"),
              [this, client](const QVariantList &reply) {
                  if (reply.isEmpty() || !reply.first().toBool())
                      remove(client);
              });
}

void BusListeners::remove(const QString &client)
{
    if (!m_clients.remove(client))
        return;
    m_bus.tell(busCall("RemoveMatch", {departureOf(client)}));
    if (m_clients.isEmpty())
        m_changed();
}

void BusListeners::forgetAll()
{
    if (m_clients.isEmpty())
        return;
    m_clients.clear();
    m_changed();
}

void BusListeners::handleOwnerChange(const QDBusMessage &message)
{
    const auto change = modem::ownerChangeIn(message);
    if (change && change->owner.isEmpty())
        remove(change->name);
}

} // namespace recorder
