// SPDX-License-Identifier: MIT
#pragma once

#include "PeerBus.h"
#include "modem/Names.h"

/// A bus of one client that does not tell it who sends something. All else that this one
/// calls is another object's.
class NamelessBus : public PeerBus
{
public:
    NamelessBus(const QString &address, QDBusVirtualObject &others)
        : PeerBus(address)
        , m_others(others)
    {
    }

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
    QDBusVirtualObject &m_others;
};
