// SPDX-License-Identifier: MIT
#pragma once

#include "modem/BusAddress.h"
#include "modem/ModemTable.h"
#include "modem/PortSource.h"

#include <memory>

class QDBusMessage;

namespace modem
{

class BusConnection;

/// The data ports of the modems that ModemManager manages, as it tells on the system bus.
/// Nothing waits for it, nothing starts it, nothing asks it again and again. If it, or the
/// bus, is not there, comes late, ends or talks nonsense, there are fewer ports, or less is
/// known of them.
class Modems : public PortSource
{
    Q_OBJECT

public:
    explicit Modems(const QString &busAddress = systemBusAddress(), QObject *parent = nullptr);
    ~Modems() override;

    void start() override;
    bool isAvailable() const override { return m_isAvailable; }
    const Ports &ports() const override { return m_ports; }

private:
    void askForOwner();
    void setOwner(const QString &uniqueName);
    void handleSignal(const QDBusMessage &message);
    void handleNews(const QDBusMessage &message);
    void askForModems();
    void ask(const ModemTable::Questions &questions);
    void publish();

    const QString m_busAddress;
    BusConnection *const m_bus; ///< a child
    QString m_owner;            ///< the daemon's own name on the bus; empty if it is not there
    ModemTable m_table;
    Ports m_ports;
    bool m_isAvailable = false;
};

} // namespace modem
