// SPDX-License-Identifier: MIT
#include "TunDevice.h"

#include "NetworkNamespace.h"

#include <QByteArray>
#include <QTest>

#include <fcntl.h>
#include <linux/if_tun.h>
#include <net/if.h>
#include <net/if_arp.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cstring>

namespace
{

constexpr int headers = 20 + 8; ///< of IPv4 and UDP

/// A whole IPv4 packet; the kernel counts it before it looks at its check sum.
QByteArray packetOf(int size)
{
    QByteArray packet(headers + size, '\0');
    packet[0] = 0x45;
    packet[2] = static_cast<char>(packet.size() >> 8);
    packet[3] = static_cast<char>(packet.size() & 0xff);
    return packet;
}

} // namespace

TunDevice::TunDevice()
    : m_file(open("/dev/net/tun", O_RDWR | O_CLOEXEC))
{
    ifreq request = {};
    request.ifr_flags = IFF_TUN | IFF_NO_PI;
    std::strncpy(request.ifr_name, "ppp0", IFNAMSIZ - 1);
    m_isMade = m_file >= 0 && ioctl(m_file, TUNSETIFF, &request) == 0 &&
               ioctl(m_file, TUNSETLINK, ARPHRD_PPP) == 0;
}

TunDevice::~TunDevice()
{
    if (m_file >= 0)
        close(m_file);
}

bool TunDevice::goUp() const
{
    return ipBatch(QStringLiteral("addr add 10.0.2.1/32 peer 10.0.2.2 dev ppp0\n"
                                  "link set ppp0 up\n")) &&
           QTest::qWaitFor([] { return isRunning("ppp0"); });
}

bool TunDevice::upload(int count, int size) const
{
    for (int i = 0; i < count; ++i) {
        std::array<char, 2048> packet;
        if (!sendDatagrams("ppp0", "10.0.2.2", 1, size) ||
            read(m_file, packet.data(), packet.size()) != headers + size)
            return false;
    }
    return true;
}

bool TunDevice::download(int count, int size) const
{
    const QByteArray packet = packetOf(size);
    for (int i = 0; i < count; ++i) {
        if (write(m_file, packet.constData(), static_cast<size_t>(packet.size())) != packet.size())
            return false;
    }
    return true;
}

qint64 TunDevice::bytesOf(int count, int size)
{
    return qint64{count} * (headers + size);
}
