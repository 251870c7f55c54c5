// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QStringList>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

/// A service manager's socket, for what a service tells it.
class ServiceManager
{
public:
    /// With an "@" in front, the name is one of no file.
    explicit ServiceManager(const QString &name)
        : m_name(name)
        , m_descriptor(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {
        QByteArray path = QFile::encodeName(name);
        if (path.startsWith('@'))
            path[0] = '\0';
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::copy(path.begin(), path.end(), std::begin(address.sun_path));
        const auto size = socklen_t(offsetof(sockaddr_un, sun_path) + std::size_t(path.size()));
        if (bind(m_descriptor, reinterpret_cast<const sockaddr *>(&address), size) != 0)
            qFatal("%s cannot be bound", qPrintable(name));
    }
    ~ServiceManager() { close(m_descriptor); }
    ServiceManager(const ServiceManager &) = delete;
    ServiceManager &operator=(const ServiceManager &) = delete;

    QString name() const { return m_name; }
    /// All that was said until now.
    QStringList heard()
    {
        QByteArray text(4096, '\0');
        for (ssize_t size = 0;
             (size = recv(m_descriptor, text.data(), std::size_t(text.size()), 0)) >= 0;)
            m_heard << QString::fromUtf8(text.constData(), int(size)).trimmed();
        return m_heard;
    }

private:
    const QString m_name;
    const int m_descriptor;
    QStringList m_heard;
};
