// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <memory>

class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    ~Descriptor() { close(m_number); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return m_number; }

private:
    const int m_number;
};

/// Listens like a bus, and says only what the test says.
class SilentBus
{
public:
    explicit SilentBus(const QByteArray &path)
        : m_listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.constData(), sizeof(address.sun_path) - 1);
        m_isListening = bind(m_listener.number(), reinterpret_cast<const sockaddr *>(&address),
                             sizeof(address)) == 0 &&
                        listen(m_listener.number(), 5) == 0;
    }

    bool isListening() const { return m_isListening; }
    void acceptClient()
    {
        m_client = std::make_unique<Descriptor>(
            accept4(m_listener.number(), nullptr, nullptr, SOCK_CLOEXEC));
    }
    void dropClient() { m_client.reset(); }

    /// Whether the client has said this by now.
    bool hasHeard(const QByteArray &text)
    {
        char buffer[4096];
        const ssize_t size = recv(m_client->number(), buffer, sizeof(buffer), MSG_DONTWAIT);
        if (size > 0)
            m_heard.append(buffer, int(size));
        return m_heard.contains(text);
    }

    bool say(const QByteArray &text)
    {
        return send(m_client->number(), text.constData(), size_t(text.size()), MSG_NOSIGNAL) ==
               ssize_t(text.size());
    }

private:
    const Descriptor m_listener;
    std::unique_ptr<Descriptor> m_client;
    bool m_isListening = false;
    QByteArray m_heard;
};
