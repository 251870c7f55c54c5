// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "NetworkNamespace.h"
#include "RecordText.h"
#include "StoreLock.h"
#include "TunDevice.h"
#include "VethPair.h"
#include "recorder/ConnectionRecorder.h"
#include "recorder/LinkMonitor.h"
#include "recorder/SystemClock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <net/if.h>

#include <fcntl.h>
#include <ifaddrs.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>
#include <memory>
#include <optional>

using history::Connection;
using recorder::ConnectionRecorder;
using recorder::ConnectionState;
using recorder::LinkMonitor;
using recorder::SystemClock;

namespace
{

/// Datagrams sent in one direction.
struct Volume {
    explicit Volume(campaign::Random &random)
        : count(random.below(12))
        , size(random.between(1, 1399))
    {
    }

    int count;
    int size;
};

QString record(const char *interfaceName, qint64 uploaded, qint64 downloaded,
               const char *ending = "normal")
{
    return QStringLiteral("%1 up %2 down %3 %4")
        .arg(QLatin1String(interfaceName))
        .arg(uploaded)
        .arg(downloaded)
        .arg(QLatin1String(ending));
}

/// More news than a socket's queue holds.
QString storm()
{
    QString lines;
    for (int i = 0; i < 1500; ++i)
        lines += QStringLiteral("link set far0 mtu %1\n").arg(1400 + i % 2);
    return lines;
}

/// What the kernel has counted on the interface, both ways.
qint64 countedBytesOf(const char *interfaceName)
{
    ifaddrs *all = nullptr;
    qint64 bytes = -1;
    if (getifaddrs(&all) != 0)
        return bytes;
    for (const ifaddrs *each = all; each; each = each->ifa_next) {
        if (!each->ifa_addr || each->ifa_addr->sa_family != AF_PACKET ||
            std::strcmp(each->ifa_name, interfaceName) != 0)
            continue;
        const auto *const counters = static_cast<const rtnl_link_stats *>(each->ifa_data);
        bytes = qint64{counters->tx_bytes} + counters->rx_bytes;
    }
    freeifaddrs(all);
    return bytes;
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

/// Switches the line on and sends these volumes; the record that this is to
/// leave, or nothing if the line did not do it.
template <typename Line>
QString useLine(const Line &line, const char *name, const Volume &up, const Volume &down)
{
    const bool isUsed =
        line.goUp() && line.upload(up.count, up.size) && line.download(down.count, down.size);
    return isUsed ? record(name, Line::bytesOf(up.count, up.size),
                           Line::bytesOf(down.count, down.size))
                  : QString();
}

} // namespace

class NetworkRecordingTest : public QObject
{
    Q_OBJECT

public:
    explicit NetworkRecordingTest(QString obstacle)
        : m_obstacle(std::move(obstacle))
    {
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void carriesEveryByteUntilTheLinkGoesDown();
    void theRecordIsInTheStoreBeforeAnybodyHearsOfIt();
    void tellsWhatALivingInterfaceMovedUnwatchedFromItsConnection();
    void tenShortSessionsLoseNothingAndInventNothing();
    void manyReconnectsLoseNothingAndInventNothing();
    void quitsRestartsAndLocksLoseNothingAndInventNothing();
    void reconnectsThatNobodyHadTimeToSeeAreRecordsOfTheirOwn();
    void anInterfaceDeletedAtOnceTakesNoByteWithIt();
    void anInterfaceMadeAnewUnderTheSameNameIsAnotherConnection();
    void aLineMadeAnewUnderTheSameNameIsAnotherConnection();
    void goesOnWithANewNameAfterARename();
    void endsWhenTheAddressGoes();
    void recordsANamedInterface();
    void recordsAnInterfaceByAnAlternativeName();
    void recordsAnInterfaceThatGetsItsAlternativeNameLate();
    void recordsADeviceOfTheTypeWwanByAnyName();
    void leavesOtherInterfacesAlone();
    void waitsAsLongAsTheLinkIsDormant();
    void reportsTheStateEverySecond();
    void updatesTheStoreWhileConnected();
    void findsTheFinalCountersAfterAStormOfNews();
    void findsOutWhatWentAwayInAStormOfNews();
    void goesOnAfterAPassingErrorOfTheSocket();
    void endsAndBeginsAnewAroundALastingErrorOfTheSocket();
    void believesTheKernelAlone();

private:
    /// A session of random volumes on a line that lives on, or on one that is
    /// deleted at its end; the record that it is to leave, or nothing on failure.
    QString reconnect(campaign::Random &random);
    /// One of all that can happen, at random; `pppBytes` is what ppp0 has moved in all.
    void happen(campaign::Random &random, qint64 &pppBytes);
    void moveBytes(campaign::Random &random);
    qint64 recordedBytesOf(const std::string &interfaceName) const;
    bool startRecorder(const QStringList &interfaceNames = {});
    bool startWithDeviceTypes(const QString &folder);
    bool start(std::unique_ptr<ConnectionRecorder> recorder);
    void recordsTheFarEndToo();

    const QString m_obstacle;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<VethPair> m_line;
    std::optional<StoreLock> m_lock;
    std::unique_ptr<ConnectionRecorder> m_recorder;
    std::unique_ptr<QSignalSpy> m_connections;
    std::unique_ptr<QSignalSpy> m_disconnections;
    std::unique_ptr<QSignalSpy> m_failures;
};

void NetworkRecordingTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void NetworkRecordingTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_line.emplace();
    QVERIFY(m_line->isMade());
    QVERIFY(startRecorder());
}

void NetworkRecordingTest::cleanup()
{
    if (m_failures)
        QVERIFY(m_failures->isEmpty());
    m_lock.reset();
    m_recorder.reset();
    m_line.reset();
    m_folder.reset();
}

bool NetworkRecordingTest::startRecorder(const QStringList &interfaceNames)
{
    return start(std::make_unique<ConnectionRecorder>(m_path, interfaceNames));
}

/// With the device types in this folder instead of the system's.
bool NetworkRecordingTest::startWithDeviceTypes(const QString &folder)
{
    return start(std::make_unique<ConnectionRecorder>(
        m_path, QStringList(), std::make_unique<LinkMonitor>(folder.toStdString()),
        std::make_unique<SystemClock>()));
}

bool NetworkRecordingTest::start(std::unique_ptr<ConnectionRecorder> recorder)
{
    m_recorder = std::move(recorder);
    m_connections = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::connected);
    m_disconnections =
        std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::disconnected);
    m_failures = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::failed);
    return m_recorder->start();
}

void NetworkRecordingTest::carriesEveryByteUntilTheLinkGoesDown()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(40, 1000));
    QVERIFY(m_line->download(25, 700));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_disconnections->size(), 1);
    QCOMPARE(recordsIn(m_path),
             QStringList(record("wwan0", VethPair::bytesOf(40, 1000), VethPair::bytesOf(25, 700))));
    QCOMPARE(recordsSeenBy(*m_disconnections), recordsIn(m_path));
}

void NetworkRecordingTest::theRecordIsInTheStoreBeforeAnybodyHearsOfIt()
{
    QStringList inStore;
    connect(m_recorder.get(), &ConnectionRecorder::disconnected, this,
            [&] { inStore = recordsIn(m_path); });
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(inStore, QStringList(record("wwan0", 0, 0)));
}

void NetworkRecordingTest::tellsWhatALivingInterfaceMovedUnwatchedFromItsConnection()
{
    m_recorder.reset();
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->upload(7, 500));
    QVERIFY(startRecorder());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(3, 100));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(recordsIn(m_path),
                 QStringList({record("wwan0", VethPair::bytesOf(7, 500), 0, "not watched"),
                              record("wwan0", VethPair::bytesOf(3, 100), 0)}));
}

void NetworkRecordingTest::tenShortSessionsLoseNothingAndInventNothing()
{
    QStringList expected;
    for (int i = 1; i <= 10; ++i) {
        QVERIFY(m_line->goUp());
        QVERIFY(m_line->upload(i, 100 * i));
        QVERIFY(m_line->download(2 * i, 50 * i));
        QVERIFY(m_line->goDown());
        expected << record("wwan0", VethPair::bytesOf(i, 100 * i),
                           VethPair::bytesOf(2 * i, 50 * i));
    }
    QTRY_COMPARE(m_disconnections->size(), 10);
    QCOMPARE(recordsIn(m_path), expected);
}

QString NetworkRecordingTest::reconnect(campaign::Random &random)
{
    const Volume up(random);
    const Volume down(random);
    if (random.once(2)) {
        const TunDevice device;
        if (device.isMade())
            return useLine(device, "ppp0", up, down);
    }
    const QString left = useLine(*m_line, "wwan0", up, down);
    return m_line->goDown() ? left : QString();
}

void NetworkRecordingTest::manyReconnectsLoseNothingAndInventNothing()
{
    const int sessions = campaign::count(60);
    campaign::Random random(campaign::seed(1));
    QStringList expected;
    while (expected.size() < sessions) {
        expected << reconnect(random);
        QVERIFY(!expected.last().isEmpty());
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(int(m_disconnections->size()), sessions);
    QCOMPARE(recordsSeenBy(*m_disconnections), expected);
    expected.sort();
    QStringList stored = recordsIn(m_path);
    stored.sort();
    QCOMPARE(stored, expected);
}

void NetworkRecordingTest::moveBytes(campaign::Random &random)
{
    const Volume up(random);
    const Volume down(random);
    if (!isRunning("wwan0"))
        QVERIFY(m_line->goUp());
    QVERIFY(m_line->upload(up.count, up.size));
    QVERIFY(m_line->download(down.count, down.size));
}

void NetworkRecordingTest::happen(campaign::Random &random, qint64 &pppBytes)
{
    switch (random.below(7)) {
    case 0:
        return m_recorder.reset();
    case 1:
        if (!m_recorder)
            QVERIFY(startRecorder());
        return;
    case 2:
        if (m_lock)
            m_lock.reset();
        else
            m_lock.emplace(m_path);
        return;
    case 3:
        QVERIFY(m_line->goDown());
        return;
    case 4: {
        // What is deleted while nobody looks takes its counters with it.
        if (!m_recorder)
            return;
        const Volume up(random);
        const Volume down(random);
        const TunDevice device;
        QVERIFY(device.isMade());
        QVERIFY(!useLine(device, "ppp0", up, down).isEmpty());
        pppBytes +=
            TunDevice::bytesOf(up.count, up.size) + TunDevice::bytesOf(down.count, down.size);
        return;
    }
    default:
        moveBytes(random);
    }
}

qint64 NetworkRecordingTest::recordedBytesOf(const std::string &interfaceName) const
{
    qint64 bytes = 0;
    for (const Connection &each : connectionsIn(m_path)) {
        if (each.interfaceName == interfaceName)
            bytes += each.uploadedBytes + each.downloadedBytes;
    }
    return bytes;
}

/// The kernel's counters are the witness.
void NetworkRecordingTest::quitsRestartsAndLocksLoseNothingAndInventNothing()
{
    const int steps = campaign::count(100);
    campaign::Random random(campaign::seed(1));
    qint64 pppBytes = 0;
    for (int i = 0; i < steps && !QTest::currentTestFailed(); ++i) {
        happen(random, pppBytes);
        if (random.once(2))
            QCoreApplication::processEvents();
    }
    m_lock.reset();
    if (!m_recorder)
        QVERIFY(startRecorder());
    QVERIFY(m_line->goDown());
    QTRY_VERIFY(openRowsIn(m_path).empty() && !QFile::exists(m_path + "-unwritten"));
    m_recorder.reset();
    QCOMPARE(recordedBytesOf("wwan0"), countedBytesOf("wwan0"));
    QCOMPARE(recordedBytesOf("ppp0"), pppBytes);
    // A lock that lasts is told of.
    m_failures.reset();
}

void NetworkRecordingTest::reconnectsThatNobodyHadTimeToSeeAreRecordsOfTheirOwn()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(1, 10));
    // All of that waits in the queue when the recorder gets to read it.
    QVERIFY(ipBatch(QStringLiteral("link set wwan0 down\nlink set wwan0 up\n"
                                   "link set wwan0 down\nlink set wwan0 up\n")));
    QTRY_COMPARE(m_connections->size(), 3);
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->download(1, 20));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_disconnections->size(), 3);
    QCOMPARE(recordsIn(m_path),
             QStringList({record("wwan0", VethPair::bytesOf(1, 10), 0), record("wwan0", 0, 0),
                          record("wwan0", 0, VethPair::bytesOf(1, 20))}));
}

void NetworkRecordingTest::anInterfaceDeletedAtOnceTakesNoByteWithIt()
{
    {
        const TunDevice device;
        if (!device.isMade())
            QSKIP("an interface cannot be made through /dev/net/tun", "");
        QVERIFY(device.goUp());
        QTRY_COMPARE(m_connections->size(), 1);
        QVERIFY(device.upload(40, 1000));
        QVERIFY(device.download(25, 700));
    }
    QTRY_COMPARE(m_disconnections->size(), 1);
    QCOMPARE(recordsIn(m_path), QStringList(record("ppp0", TunDevice::bytesOf(40, 1000),
                                                   TunDevice::bytesOf(25, 700))));
}

void NetworkRecordingTest::anInterfaceMadeAnewUnderTheSameNameIsAnotherConnection()
{
    QStringList expected;
    for (int i = 1; i <= 5; ++i) {
        const TunDevice device;
        if (!device.isMade())
            QSKIP("an interface cannot be made through /dev/net/tun", "");
        QVERIFY(device.goUp());
        QVERIFY(device.upload(i, 100));
        QVERIFY(device.download(i, 200));
        expected << record("ppp0", TunDevice::bytesOf(i, 100), TunDevice::bytesOf(i, 200));
    }
    QTRY_COMPARE(m_disconnections->size(), 5);
    QCOMPARE(recordsIn(m_path), expected);
}

void NetworkRecordingTest::aLineMadeAnewUnderTheSameNameIsAnotherConnection()
{
    QStringList expected;
    for (int i = 1; i <= 3; ++i) {
        QVERIFY(m_line->goUp());
        QVERIFY(m_line->upload(i, 100));
        QVERIFY(m_line->download(i, 200));
        // One end of a pair that is deleted while it is up no longer knows what it
        // has received, for the other end had counted that.
        QVERIFY(m_line->goDown());
        m_line.reset();
        m_line.emplace();
        expected << record("wwan0", VethPair::bytesOf(i, 100), VethPair::bytesOf(i, 200));
    }
    QTRY_COMPARE(m_disconnections->size(), 3);
    QCOMPARE(recordsIn(m_path), expected);
}

void NetworkRecordingTest::goesOnWithANewNameAfterARename()
{
    QVERIFY(ip(QStringLiteral("link set wwan0 name other0")));
    QVERIFY(ip(QStringLiteral("link set other0 name wwan9")));
    QVERIFY(ip(QStringLiteral("link set wwan9 up")));
    QTRY_COMPARE(m_connections->size(), 1);
    QCOMPARE(m_connections->first().first().value<ConnectionState>().interfaceName,
             QStringLiteral("wwan9"));
    QVERIFY(ip(QStringLiteral("link set wwan9 down")));
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan9", 0, 0)));
}

void NetworkRecordingTest::endsWhenTheAddressGoes()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(5, 300));
    QVERIFY(ip(QStringLiteral("addr del 10.0.0.1/24 dev wwan0")));
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(5, 300), 0)));
}

/// It becomes a second connection beside wwan0, with what it moves from then on.
void NetworkRecordingTest::recordsTheFarEndToo()
{
    QTRY_COMPARE(m_connections->size(), 2);
    QVERIFY(m_line->download(2, 50));
    QVERIFY(ip(QStringLiteral("link set far0 down")));
    QTRY_COMPARE(m_disconnections->size(), 2);
    QVERIFY(recordsIn(m_path).contains(record("far0", VethPair::bytesOf(2, 50), 0)));
}

void NetworkRecordingTest::recordsANamedInterface()
{
    m_recorder.reset();
    QVERIFY(m_line->goUp());
    QVERIFY(startRecorder({QStringLiteral("far0")}));
    recordsTheFarEndToo();
}

void NetworkRecordingTest::recordsAnInterfaceByAnAlternativeName()
{
    m_recorder.reset();
    const QString name = QStringLiteral("the-far-end-of-the-line");
    QVERIFY(ip(QStringLiteral("link property add dev far0 altname ") + name));
    QVERIFY(startRecorder(QStringList(name)));
    QVERIFY(m_line->goUp());
    recordsTheFarEndToo();
}

/// It is connected already, and what it has moved is not of the connection that
/// begins with the name.
void NetworkRecordingTest::recordsAnInterfaceThatGetsItsAlternativeNameLate()
{
    m_recorder.reset();
    QVERIFY(startRecorder(QStringList(QStringLiteral("lte"))));
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->download(7, 500));
    QVERIFY(ip(QStringLiteral("link property add dev far0 altname lte")));
    recordsTheFarEndToo();
}

/// The driver of a modem says so where the system lists its devices; for the pair of
/// interfaces, a folder of the test's does.
void NetworkRecordingTest::recordsADeviceOfTheTypeWwanByAnyName()
{
    m_recorder.reset();
    QVERIFY(QDir(m_folder->path()).mkdir("far0"));
    QFile properties(m_folder->filePath("far0/uevent"));
    QVERIFY(properties.open(QIODevice::WriteOnly));
    properties.write("DEVTYPE=wwan\nINTERFACE=far0\nIFINDEX=" +
                     QByteArray::number(if_nametoindex("far0")) + '\n');
    properties.close();
    QVERIFY(startWithDeviceTypes(m_folder->path()));
    QVERIFY(m_line->goUp());
    recordsTheFarEndToo();
}

void NetworkRecordingTest::leavesOtherInterfacesAlone()
{
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_disconnections->size(), 1);
    QCOMPARE(m_connections->size(), 1);
}

/// It has a carrier, but waits for leave to send.
void NetworkRecordingTest::waitsAsLongAsTheLinkIsDormant()
{
    QVERIFY(ip(QStringLiteral("link set wwan0 mode dormant")));
    QVERIFY(ip(QStringLiteral("link set wwan0 up")));
    QVERIFY(ip(QStringLiteral("link set wwan0 down")));
    QVERIFY(ip(QStringLiteral("link set wwan0 up")));
    // The kernel takes the change from "dormant" to "up" only, and may be late.
    QTRY_VERIFY(ip(QStringLiteral("link set wwan0 state up")) && isRunning("wwan0"));
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(ip(QStringLiteral("link set wwan0 down")));
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", 0, 0)));
}

void NetworkRecordingTest::reportsTheStateEverySecond()
{
    m_recorder->setProfileName(QStringLiteral("internet"));
    QSignalSpy states(m_recorder.get(), &ConnectionRecorder::stateChanged);
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->download(10, 400));
    const auto lastState = [&] { return states.last().first().value<ConnectionState>(); };
    QTRY_VERIFY(!states.isEmpty() && lastState().downloadedBytes == VethPair::bytesOf(10, 400));
    QCOMPARE(lastState().profile, QStringLiteral("internet"));
    QCOMPARE(lastState().interfaceName, QStringLiteral("wwan0"));
    QVERIFY(lastState().downloadRate > 0);
    QCOMPARE(lastState().uploadRate, 0);
    QTRY_COMPARE(lastState().downloadRate, 0);
}

void NetworkRecordingTest::updatesTheStoreWhileConnected()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QVERIFY(m_line->upload(10, 400));
    QTRY_COMPARE_WITH_TIMEOUT(openRowsIn(m_path).front().uploadedBytes,
                              std::int64_t{VethPair::bytesOf(10, 400)}, 20000);
    QVERIFY(recordsIn(m_path).isEmpty());
}

void NetworkRecordingTest::findsTheFinalCountersAfterAStormOfNews()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(4, 200));
    QVERIFY(ipBatch(storm()));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(4, 200), 0)));
}

void NetworkRecordingTest::findsOutWhatWentAwayInAStormOfNews()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(ipBatch(storm()));
    // Its final counters are lost with the last message about it.
    m_line.reset();
    QTRY_COMPARE(recordsIn(m_path), QStringList(QStringLiteral("wwan0 up 0 down 0 recovered")));
    m_line.emplace();
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 2);
}

void NetworkRecordingTest::goesOnAfterAPassingErrorOfTheSocket()
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

void NetworkRecordingTest::endsAndBeginsAnewAroundALastingErrorOfTheSocket()
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

void NetworkRecordingTest::believesTheKernelAlone()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(sayToRouteSocket(goneMessage("wwan0")));
    QVERIFY(m_line->upload(4, 100));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(4, 100), 0)));
}

int main(int argc, char **argv)
{
    const QString obstacle = enterNetworkNamespace();
    const QCoreApplication application(argc, argv);
    NetworkRecordingTest test(obstacle);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_networkrecording.moc"
