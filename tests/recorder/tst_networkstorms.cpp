// SPDX-License-Identifier: MIT
#include "NetworkTest.h"

#include <QFile>

#include <fcntl.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

using history::Connection;
using recorder::ConnectionRecorder;

namespace
{

/// More news than a socket's queue holds.
QString storm()
{
    QString lines;
    for (int i = 0; i < 1500; ++i)
        lines += QStringLiteral("link set far0 mtu %1\n").arg(1400 + i % 2);
    return lines;
}

/// The recorder's socket for news of the kernel, or -1.
int routeSocket()
{
    for (int descriptor = 3; descriptor < 256; ++descriptor) {
        int protocol = 0;
        socklen_t size = sizeof(protocol);
        sockaddr_nl address = {};
        socklen_t addressSize = sizeof(address);
        if (getsockopt(descriptor, SOL_SOCKET, SO_DOMAIN, &protocol, &size) == 0 &&
            protocol == AF_NETLINK &&
            getsockname(descriptor, reinterpret_cast<sockaddr *>(&address), &addressSize) == 0 &&
            address.nl_groups != 0)
            return descriptor;
    }
    return -1;
}

/// Whatever is done with it fails from now on, until it is opened again.
bool breakRouteSocket()
{
    const int descriptor = routeSocket();
    const int other = open("/dev/null", O_RDONLY | O_CLOEXEC);
    const bool isBroken = descriptor >= 0 && other >= 0 && dup2(other, descriptor) == descriptor;
    if (other >= 0)
        close(other);
    return isBroken;
}

/// Opening a file or a socket fails while this lives.
class NoMoreDescriptors
{
public:
    NoMoreDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &m_limit);
        rlimit none = m_limit;
        none.rlim_cur = 3;
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoMoreDescriptors() { setrlimit(RLIMIT_NOFILE, &m_limit); }
    NoMoreDescriptors(const NoMoreDescriptors &) = delete;
    NoMoreDescriptors &operator=(const NoMoreDescriptors &) = delete;

private:
    rlimit m_limit = {};
};

/// As the kernel would tell that the interface has been removed.
QByteArray goneMessage(const char *interfaceName)
{
    struct {
        nlmsghdr header;
        ifinfomsg link;
    } message = {};
    message.header.nlmsg_len = sizeof(message);
    message.header.nlmsg_type = RTM_DELLINK;
    message.link.ifi_index = static_cast<int>(if_nametoindex(interfaceName));
    return {reinterpret_cast<const char *>(&message), sizeof(message)};
}

/// By another socket of this process.
bool sayToRouteSocket(const QByteArray &message)
{
    sockaddr_nl target = {};
    socklen_t size = sizeof(target);
    const int descriptor = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    getsockname(routeSocket(), reinterpret_cast<sockaddr *>(&target), &size);
    target.nl_groups = 0;
    const auto sent = sendto(descriptor, message.constData(), std::size_t(message.size()), 0,
                             reinterpret_cast<const sockaddr *>(&target), sizeof(target));
    close(descriptor);
    return sent == message.size();
}

} // namespace

class NetworkStormsTest : public NetworkTest
{
    Q_OBJECT

public:
    using NetworkTest::NetworkTest;

private slots:
    void findsTheFinalCountersAfterAStormOfNews();
    void findsOutWhatWentAwayInAStormOfNews_data();
    void findsOutWhatWentAwayInAStormOfNews();
    void lastsOverAPassingErrorOfTheSocket();
    void endsAndBeginsAnewAroundALastingErrorOfTheSocket();
    void believesTheKernelAlone();
};

void NetworkStormsTest::findsTheFinalCountersAfterAStormOfNews()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(4, 200));
    QVERIFY(ipBatch(storm()));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(4, 200), 0)));
}

void NetworkStormsTest::findsOutWhatWentAwayInAStormOfNews_data()
{
    QTest::addColumn<int>("storms");
    QTest::newRow("the first one") << 1;
    QTest::newRow("one while it asks for what another has taken") << 2;
}

void NetworkStormsTest::findsOutWhatWentAwayInAStormOfNews()
{
    QFETCH(int, storms);
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    for (; storms > 1; --storms) {
        QVERIFY(ipBatch(storm()));
        QCoreApplication::processEvents();
    }
    QVERIFY(ipBatch(storm()));
    // Its final counters are lost with the last message about it.
    m_line.reset();
    QTRY_COMPARE(recordsIn(m_path), QStringList(QStringLiteral("wwan0 up 0 down 0 recovered")));
    m_line.emplace();
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 2);
}

void NetworkStormsTest::lastsOverAPassingErrorOfTheSocket()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(3, 100));
    QVERIFY(breakRouteSocket());
    QTRY_VERIFY(routeSocket() >= 0);
    QVERIFY(m_line->upload(4, 100));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(7, 100), 0)));
}

void NetworkStormsTest::endsAndBeginsAnewAroundALastingErrorOfTheSocket()
{
    QSignalSpy starts(m_recorder.get(), &ConnectionRecorder::started);
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    // Its row is up to date then.
    QTRY_COMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QVERIFY(m_line->upload(3, 100));
    {
        QVERIFY(breakRouteSocket());
        const NoMoreDescriptors shortage;
        QTRY_COMPARE(m_failures->size(), 1);
        QVERIFY(!QFile::exists(m_path + ".recorder"));
    }
    m_failures->clear();
    QTRY_COMPARE(m_disconnections->size(), 1);
    QTRY_COMPARE(starts.size(), 1);
    QTRY_COMPARE(m_connections->size(), 2);
    QVERIFY(m_line->upload(4, 100));
    QVERIFY(m_line->goDown());
    QTRY_VERIFY(openRowsIn(m_path).empty());
    qint64 uploaded = 0;
    for (const Connection &each : connectionsIn(m_path))
        uploaded += each.uploadedBytes;
    QCOMPARE(uploaded, VethPair::bytesOf(7, 100));
}

void NetworkStormsTest::believesTheKernelAlone()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(sayToRouteSocket(goneMessage("wwan0")));
    QVERIFY(m_line->upload(4, 100));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(4, 100), 0)));
}

NETWORK_TEST_MAIN(NetworkStormsTest)

#include "tst_networkstorms.moc"
