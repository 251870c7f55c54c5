// SPDX-License-Identifier: MIT
#pragma once

#include "PrivateBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QProcess>
#include <QString>

/// The real ModemManager on a bus of its own, with a made-up modem, whose data port is
/// wwan0. Where with-modem-network.sh has been.
class RealModemManager
{
public:
    /// Runs the test again where there can be such a modem, unless this is there.
    static void enterNetwork(char **argv);
    /// Why there cannot be one here; empty if there can.
    static QString obstacle();

    explicit RealModemManager(const QString &folder);
    ~RealModemManager();

    QString busAddress() const { return m_bus.address(); }

    // Each says whether it has happened.

    /// The bus, who permits everything on it, and the modem's line; the daemon is not among them.
    bool startBus();
    bool startDaemon();
    /// Both without letting them say goodbye.
    void killDaemon();
    void killBus();

    bool plugIn() { return reportPorts("add"); }
    bool unplug() { return reportPorts("remove"); }
    /// Waits for a modem and enables it; it has registered with a network then.
    bool enable();
    bool connectBearer(const QString &apn);
    bool disconnectBearers();
    /// One of the commands of at-modem.py.
    bool tellModem(const QByteArray &command);
    /// What the daemon itself says of the modem.
    QVariant modemProperty(const QString &interfaceName, const QString &name) const;
    /// Whatever has to be done for a modem with a connection, and no more.
    bool bringUp(const QString &apn);

private:
    QDBusMessage call(const QString &service, const QString &path, const QString &interfaceName,
                      const QString &method, const QVariantList &arguments) const;
    QDBusMessage callModem(const QString &interfaceName, const QString &method,
                           const QVariantList &arguments) const;
    bool startAuthority();
    bool startModem();
    bool hasService(const QString &name) const;
    bool reportPorts(const QString &action);
    QString modemPath() const;
    int modemState() const;
    bool waitForState(const QList<int> &states) const;

    PrivateBus m_bus;
    QProcess m_authority;
    QProcess m_modem;
    QProcess m_daemon;
};
