// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>

/// A bus of one client, in the test itself.
class PeerBus : public QDBusVirtualObject
{
public:
    explicit PeerBus(const QString &address)
        : m_server(address)
    {
        connect(&m_server, &QDBusServer::newConnection, this,
                [this](const QDBusConnection &connection) {
                    m_client = connection;
                    m_client.registerVirtualObject("/", this, QDBusConnection::SubPath);
                });
    }

    QString address() const { return m_server.address(); }
    void send(const QString &path, const QString &interfaceName, const QString &member,
              const QVariantList &arguments)
    {
        QDBusMessage signal = QDBusMessage::createSignal(path, interfaceName, member);
        signal.setArguments(arguments);
        m_client.send(signal);
    }
    /// Returns when the client has been sent everything.
    void waitForClient()
    {
        m_client.call(
            QDBusMessage::createMethodCall(QString(), "/", "org.freedesktop.DBus.Peer", "Ping"));
    }

    QString introspect(const QString &) const override { return {}; }

private:
    QDBusServer m_server;
    QDBusConnection m_client{QString()};
};
