// SPDX-License-Identifier: MIT
#include "VethPair.h"

#include "NetworkNamespace.h"

#include <QTest>

namespace
{

const QString addresses = QStringLiteral("addr replace 10.0.0.1/24 dev wwan0\n"
                                         "addr replace 10.0.1.1/24 dev far0\n"
                                         "link set far0 up\n");

} // namespace

VethPair::VethPair()
    : m_isOwn(true)
    , m_isMade(ipBatch("link add wwan0 type veth peer name far0\n" + addresses))
{
}

VethPair::VethPair(IsThere)
    : m_isOwn(false)
    , m_isMade(ipBatch(addresses))
{
}

VethPair::~VethPair()
{
    if (m_isOwn)
        ip(QStringLiteral("link del far0"));
}

bool VethPair::goUp() const
{
    // The kernel forgets neighbours of an interface that goes down.
    return ip(QStringLiteral("link set wwan0 up")) &&
           QTest::qWaitFor([] { return isRunning("wwan0") && isRunning("far0"); }) &&
           ipBatch(QStringLiteral(
               "neigh replace 10.0.0.2 lladdr 02:00:00:00:00:01 dev wwan0 nud permanent\n"
               "neigh replace 10.0.1.2 lladdr 02:00:00:00:00:02 dev far0 nud permanent\n"));
}

bool VethPair::goDown() const
{
    return ip(QStringLiteral("link set wwan0 down"));
}

bool VethPair::upload(int count, int size) const
{
    return sendDatagrams("wwan0", "10.0.0.2", count, size);
}

bool VethPair::download(int count, int size) const
{
    return sendDatagrams("far0", "10.0.1.2", count, size);
}

qint64 VethPair::bytesOf(int count, int size)
{
    constexpr int ethernetHeader = 14;
    constexpr int ipHeader = 20;
    constexpr int udpHeader = 8;
    return qint64{count} * (ethernetHeader + ipHeader + udpHeader + size);
}
