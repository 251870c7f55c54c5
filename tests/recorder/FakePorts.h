// SPDX-License-Identifier: MIT
#pragma once

#include "modem/PortSource.h"

#include <utility>

/// Who has a contract with a provider, and whose network is used.
inline modem::Subscriber subscriberOf(modem::Roaming roaming)
{
    modem::Subscriber subscriber;
    subscriber.apn = QStringLiteral("internet.example");
    subscriber.operatorName = QStringLiteral("Example Mobile");
    subscriber.operatorCode = QStringLiteral("00101");
    subscriber.sim = QStringLiteral("8949000000000000001");
    subscriber.technology = QStringLiteral("lte");
    subscriber.roaming = roaming;
    return subscriber;
}

/// News about modems' data ports that a test makes up.
class FakePorts : public modem::PortSource
{
public:
    void start() override {}
    bool isAvailable() const override { return m_isAvailable; }
    const Ports &ports() const override { return m_ports; }

    void comeAvailable()
    {
        m_isAvailable = true;
        emit availabilityChanged(true);
    }
    /// The daemon, or the bus, is gone.
    void goAway()
    {
        m_isAvailable = false;
        emit availabilityChanged(false);
        const Ports former = std::exchange(m_ports, {});
        for (const auto &port : former)
            emit changed(port.first);
    }
    /// The modem is gone.
    void forget(const QString &interfaceName)
    {
        m_ports.erase(interfaceName);
        emit changed(interfaceName);
    }
    void tell(const QString &interfaceName, bool isConnected, const modem::Subscriber &subscriber)
    {
        m_ports[interfaceName] = {interfaceName, isConnected, subscriber};
        emit changed(interfaceName);
    }
    /// A port of a provider of this APN.
    void tell(const QString &interfaceName, bool isConnected, const QString &apn = {})
    {
        modem::Subscriber subscriber;
        subscriber.apn = apn;
        tell(interfaceName, isConnected, subscriber);
    }

private:
    Ports m_ports;
    bool m_isAvailable = false;
};
