// SPDX-License-Identifier: MIT
#pragma once

#include "modem/Names.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>

/// A bus of one client that does not tell it who sends something. All else that this one
/// calls is another object's.
class NamelessBus : public QDBusVirtualObject
{
public:
    NamelessBus(const QString &socket, QDBusVirtualObject &others)
        : m_server(QStringLiteral("unix:path=") + socket)
        , m_others(others)
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
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.path() != modem::names::busPath)
            return m_others.handleMessage(message, connection);
        if (message.member() == "AddMatch")
            connection.send(message.createReply());
        else // the client's name, or the owner of one that it asks for
            connection.send(message.createReply(message.member() == "Hello" ? ":1.0" : ":1.1"));
        return true;
    }

private:
    QDBusServer m_server;
    QDBusVirtualObject &m_others;
    QDBusConnection m_client{QString()};
};
