// SPDX-License-Identifier: MIT
#include "NetworkNamespace.h"

#include <QFile>
#include <QProcess>

#include <arpa/inet.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace
{

bool write(const char *path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

/// As root of a user namespace, for those who are not root outside.
bool enterAsOrdinaryUser()
{
    const QByteArray user = QByteArray::number(getuid());
    const QByteArray group = QByteArray::number(getgid());
    return unshare(CLONE_NEWUSER | CLONE_NEWNET) == 0 && write("/proc/self/setgroups", "deny") &&
           write("/proc/self/uid_map", "0 " + user + " 1") &&
           write("/proc/self/gid_map", "0 " + group + " 1");
}

bool runIp(const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral("ip"), arguments);
    process.write(input);
    process.closeWriteChannel();
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

class Socket
{
public:
    Socket()
        : m_descriptor(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
    }
    ~Socket() { close(m_descriptor); }
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;

    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace

QString enterNetworkNamespace()
{
    if (unshare(CLONE_NEWNET) != 0 && !enterAsOrdinaryUser())
        return QStringLiteral("a network namespace is not permitted: %1")
            .arg(QString::fromLocal8Bit(std::strerror(errno)));
    write("/proc/sys/net/ipv6/conf/default/disable_ipv6", "1");
    if (!ip(QStringLiteral("link add far0 type veth peer name near0")))
        return QStringLiteral("ip (package iproute2) cannot make a pair of veth interfaces");
    ip(QStringLiteral("link del far0"));
    return {};
}

bool ip(const QString &arguments)
{
    return runIp(arguments.split(QLatin1Char(' ')), {});
}

bool ipBatch(const QString &lines)
{
    return runIp({QStringLiteral("-batch"), QStringLiteral("-")}, lines.toUtf8());
}

bool isRunning(const char *interfaceName)
{
    const Socket socket;
    ifreq request = {};
    std::strncpy(request.ifr_name, interfaceName, IFNAMSIZ - 1);
    return ioctl(socket.descriptor(), SIOCGIFFLAGS, &request) == 0 &&
           (request.ifr_flags & IFF_RUNNING) != 0;
}

bool sendDatagrams(const char *interfaceName, const char *address, int count, int size)
{
    const Socket socket;
    const auto nameLength = static_cast<socklen_t>(std::strlen(interfaceName));
    if (setsockopt(socket.descriptor(), SOL_SOCKET, SO_BINDTODEVICE, interfaceName, nameLength) !=
        0)
        return false;
    sockaddr_in target = {};
    target.sin_family = AF_INET;
    target.sin_port = htons(9);
    inet_pton(AF_INET, address, &target.sin_addr);
    const QByteArray payload(size, 'x');
    for (int i = 0; i < count; ++i) {
        if (sendto(socket.descriptor(), payload.constData(), static_cast<size_t>(size), 0,
                   reinterpret_cast<const sockaddr *>(&target), sizeof(target)) != size)
            return false;
    }
    return true;
}
