// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

#include <functional>

class QDBusMessage;

namespace modem
{
class BusConnection;
}

namespace recorder
{

/// Clients of a bus that want to be told something, until they say otherwise or leave the
/// bus.
class BusListeners
{
public:
    /// `bus` must live longer; `changed` is called when the first one comes and when the
    /// last one goes.
    BusListeners(modem::BusConnection &bus, std::function<void()> changed);

    bool areThere() const { return !m_clients.isEmpty(); }

    /// By its own name on the bus. Adding one again is of no account.
    void add(const QString &client);
    void remove(const QString &client);
    /// They are on a bus that is gone.
    void forgetAll();
    /// Of the bus's subscription to its changes of owners.
    void handleOwnerChange(const QDBusMessage &message);

private:
    void askWhetherStillThere(const QString &client);

    modem::BusConnection &m_bus;
    const std::function<void()> m_changed;
    QSet<QString> m_clients;
};

} // namespace recorder
