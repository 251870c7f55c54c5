// SPDX-License-Identifier: MIT
#include "RecorderTest.h"
#include "StoreLock.h"

#include <QFile>

using history::Connection;

namespace
{

/// That in which the fake clock begins.
constexpr std::int64_t firstHour = 1700000000 / history::secondsPerHour * history::secondsPerHour;

/// What subscriberOf() leaves in a connection that begins in a foreign network.
const QString roamingOwner = QStringLiteral("Example Mobile 00101 8949000000000000001 roaming lte");

} // namespace

/// What the recorder makes of a modem's news about its data port.
class RecordedPortsTest : public RecorderTest
{
    Q_OBJECT

private slots:
    void theApnIsTheProfile();
    void anApnThatIsKnownLateIsTheProfileToo();
    void theUsersProfileCountsMore();
    void anInterfaceWithoutAModemKeepsItsName();
    void recordsAPortWhateverItIsCalled();
    void endsWhenTheBearerStopsUsingThePort();
    void takesNoOlderCountersForTheLast();
    void countsEveryByteOnceOverBearersOfOneLink();
    void waitsForTheBearer();
    void lastsWhenTheDaemonEnds();
    void lastsOverASecondBearerWhenTheDaemonEnds();
    void staysEndedWhenTheDaemonEnds();
    void staysEndedWhenTheModemIsGone();
    void tellsWhatAPortMovedUnwatched();
    void keepsWhoseAConnectionIs();
    void keepsWhoseAnUnwrittenConnectionIsAndItsHours();
    void tellsHomeAndRoamingApartWithoutAnEnd();
    void tellsTheHoursApart();
    void resumesTheHours();

private:
    QStringList hours() const;
    std::string profileOfOpenRow() const { return openRowsIn(m_path).front().profile; }
};

void RecordedPortsTest::theApnIsTheProfile()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, "internet.example");
    connectLink(3, "wwan0", 0, 0);
    QCOMPARE(profileOfOpenRow(), std::string("internet.example"));
    m_links->tell(downLink(3, "wwan0", 1, 2));
    QCOMPARE(firstRecord().profile, std::string("internet.example"));
}

void RecordedPortsTest::anApnThatIsKnownLateIsTheProfileToo()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    QCOMPARE(profileOfOpenRow(), std::string("wwan0"));
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, "internet.example");
    m_links->tell(downLink(3, "wwan0", 1, 2));
    QCOMPARE(firstRecord().profile, std::string("internet.example"));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 1 down 2 normal"));
}

void RecordedPortsTest::theUsersProfileCountsMore()
{
    QVERIFY(start());
    m_recorder->setProfileName("mine");
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, "internet.example");
    connectLink(3, "wwan0", 0, 0);
    QCOMPARE(profileOfOpenRow(), std::string("mine"));
}

void RecordedPortsTest::anInterfaceWithoutAModemKeepsItsName()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan1", true, "internet.example");
    connectLink(3, "wwan0", 0, 0);
    QCOMPARE(profileOfOpenRow(), std::string("wwan0"));
}

void RecordedPortsTest::recordsAPortWhateverItIsCalled()
{
    QVERIFY(start());
    connectLink(3, "enx0c5b8f279a64", 100, 200);
    QVERIFY(openRowsIn(m_path).empty());
    m_ports->comeAvailable();
    m_ports->tell("enx0c5b8f279a64", true, "internet.example");
    QTRY_COMPARE(m_connections->size(), 1);
    m_links->tell(downLink(3, "enx0c5b8f279a64", 105, 206));
    QCOMPARE(recordsIn(m_path), QStringList("enx0c5b8f279a64 up 5 down 6 normal"));
}

void RecordedPortsTest::endsWhenTheBearerStopsUsingThePort()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("usb0", true, "internet.example");
    connectLink(3, "usb0", 100, 200);
    m_links->requests.clear();
    m_clock->pass(7000);
    m_ports->tell("usb0", false);
    QCOMPARE(m_links->requests, (std::vector<int>{3, 3}));
    m_clock->pass(2000);
    m_links->tell(runningLink(3, "usb0", 150, 260));
    QCOMPARE(recordsIn(m_path), QStringList("usb0 up 50 down 60 normal"));
    const Connection ended = firstRecord();
    QCOMPARE(ended.connectedSeconds, std::int64_t{7});
    QCOMPARE(ended.profile, std::string("internet.example"));
    QVERIFY(openRowsIn(m_path).empty());
}

/// The link itself stays as it is all the time.
void RecordedPortsTest::takesNoOlderCountersForTheLast()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("usb0", true, "internet.example");
    connectLink(3, "usb0", 100, 200);
    m_links->toCome = {runningLink(3, "usb0", 120, 230)};
    m_ports->tell("usb0", false);
    m_links->deliverPending();
    QVERIFY(recordsIn(m_path).isEmpty());
    m_links->tell(runningLink(3, "usb0", 150, 260));
    QCOMPARE(recordsIn(m_path), QStringList("usb0 up 50 down 60 normal"));
}

void RecordedPortsTest::countsEveryByteOnceOverBearersOfOneLink()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("usb0", true, "first");
    connectLink(3, "usb0", 100, 200);
    m_ports->tell("usb0", false);
    m_links->tell(runningLink(3, "usb0", 150, 260));
    m_links->tell(runningLink(3, "usb0", 150, 260));
    m_ports->tell("usb0", true, "second");
    m_links->tell(downLink(3, "usb0", 157, 268));
    QCOMPARE(recordsIn(m_path),
             QStringList({"usb0 up 50 down 60 normal", "usb0 up 7 down 8 normal"}));
    QCOMPARE(connectionsIn(m_path).back().profile, std::string("second"));
}

void RecordedPortsTest::waitsForTheBearer()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan0", false);
    connectLink(3, "wwan0", 100, 200);
    QVERIFY(openRowsIn(m_path).empty());
    m_links->tell(runningLink(3, "wwan0", 101, 202));
    m_ports->tell("wwan0", true, "internet.example");
    m_links->tell(downLink(3, "wwan0", 110, 220));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 10 down 20 normal"));
}

void RecordedPortsTest::lastsWhenTheDaemonEnds()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("enx0c5b8f279a64", true, "internet.example");
    connectLink(3, "enx0c5b8f279a64", 100, 200);
    m_ports->goAway();
    m_links->tell(runningLink(3, "enx0c5b8f279a64", 103, 204));
    QVERIFY(recordsIn(m_path).isEmpty());
    m_links->tell(downLink(3, "enx0c5b8f279a64", 105, 206));
    QCOMPARE(recordsIn(m_path), QStringList("enx0c5b8f279a64 up 5 down 6 normal"));
    QCOMPARE(firstRecord().profile, std::string("internet.example"));
}

void RecordedPortsTest::lastsOverASecondBearerWhenTheDaemonEnds()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, "internet.example");
    connectLink(3, "wwan0", 100, 200);
    m_ports->tell("wwan0", false);
    m_links->tell(runningLink(3, "wwan0", 150, 260));
    m_ports->tell("wwan0", true, "internet.example");
    m_ports->goAway();
    m_links->tell(runningLink(3, "wwan0", 157, 268));
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    m_links->tell(downLink(3, "wwan0", 160, 270));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 50 down 60 normal", "wwan0 up 10 down 10 normal"}));
}

void RecordedPortsTest::staysEndedWhenTheDaemonEnds()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, "internet.example");
    connectLink(3, "wwan0", 100, 200);
    m_ports->tell("wwan0", false);
    m_links->tell(runningLink(3, "wwan0", 150, 260));
    m_ports->goAway();
    m_links->tell(runningLink(3, "wwan0", 150, 260));
    QVERIFY(openRowsIn(m_path).empty());
    m_links->tell(downLink(3, "wwan0", 150, 260));
    m_links->tell(runningLink(3, "wwan0", 150, 260));
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
}

void RecordedPortsTest::staysEndedWhenTheModemIsGone()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, "internet.example");
    connectLink(3, "wwan0", 100, 200);
    m_ports->tell("wwan0", false);
    m_links->tell(runningLink(3, "wwan0", 150, 260));
    m_ports->forget("wwan0");
    m_links->tell(runningLink(3, "wwan0", 150, 260));
    QVERIFY(openRowsIn(m_path).empty());
    m_ports->tell("wwan0", true, "internet.example");
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
}

void RecordedPortsTest::tellsWhatAPortMovedUnwatched()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("usb0", true, "internet.example");
    connectLink(3, "usb0", 100, 200);
    m_links->tell(downLink(3, "usb0", 150, 260));
    m_recorder.reset();
    m_clockAtStart.pass(60000);
    m_atStart = {runningLink(3, "usb0", 250, 460), addressOn(3)};
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("usb0", true, "internet.example");
    m_links->tell(downLink(3, "usb0", 255, 466));
    QCOMPARE(recordsIn(m_path),
             QStringList({"usb0 up 50 down 60 normal", "usb0 up 100 down 200 not watched",
                          "usb0 up 5 down 6 normal"}));
}

/// "HOUR home|roaming UPLOADED DOWNLOADED", hours counted from that of the clock's start.
QStringList RecordedPortsTest::hours() const
{
    const auto store = history::Store::openForReading(m_path.toStdString());
    const auto all = store.value().hours();
    QStringList texts;
    for (const history::ConnectionHour &hour : all.value())
        texts << QStringLiteral("%1 %2 %3 %4")
                     .arg((hour.utc - firstHour) / history::secondsPerHour)
                     .arg(hour.isRoaming ? "roaming" : "home")
                     .arg(hour.uploadedBytes)
                     .arg(hour.downloadedBytes);
    return texts;
}

void RecordedPortsTest::keepsWhoseAConnectionIs()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, subscriberOf(modem::Roaming::Roaming));
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(downLink(3, "wwan0", 1, 2));
    QCOMPARE(firstRecord().profile, std::string("internet.example"));
    QCOMPARE(ownerOf(firstRecord()), roamingOwner);
    QCOMPARE(hours(), QStringList("0 roaming 1 2"));
}

/// Also while it is kept beside a history that cannot be written.
void RecordedPortsTest::keepsWhoseAnUnwrittenConnectionIsAndItsHours()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, subscriberOf(modem::Roaming::Roaming));
    m_ports->tell("wwan1", true, subscriberOf(modem::Roaming::Roaming));
    {
        const StoreLock lock(m_path);
        connectLink(3, "wwan0", 0, 0);
        connectLink(4, "wwan1", 0, 0);
        m_links->tell(runningLink(3, "wwan0", 1, 2));
        m_links->tell(runningLink(4, "wwan1", 100, 200));
        m_clock->pass(3600000);
        m_ports->tell("wwan0", true, subscriberOf(modem::Roaming::Home));
        m_links->tell(downLink(3, "wwan0", 11, 22));
        // The other one lasts.
        m_links->toCome = {runningLink(4, "wwan1", 130, 240)};
        m_recorder.reset();
    }
    QVERIFY(QFile::exists(m_path + "-unwritten"));
    QVERIFY(start());
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 11 down 22 normal", "wwan1 up 130 down 240 recovered"}));
    for (const Connection &connection : connectionsIn(m_path))
        QCOMPARE(ownerOf(connection), roamingOwner);
    QCOMPARE(hours(), QStringList({"0 roaming 1 2", "0 roaming 100 200", "1 home 10 20",
                                   "1 roaming 30 40"}));
}

void RecordedPortsTest::tellsHomeAndRoamingApartWithoutAnEnd()
{
    QVERIFY(start());
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, subscriberOf(modem::Roaming::Home));
    connectLink(3, "wwan0", 0, 0);
    // What the kernel has counted by then is from home.
    m_links->toCome = {runningLink(3, "wwan0", 10, 20)};
    m_ports->tell("wwan0", true, subscriberOf(modem::Roaming::Roaming));
    m_links->tell(downLink(3, "wwan0", 11, 22));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 11 down 22 normal"));
    QCOMPARE(firstRecord().roaming, std::string(history::atHome));
    QCOMPARE(hours(), QStringList({"0 home 10 20", "0 roaming 1 2"}));
}

void RecordedPortsTest::tellsTheHoursApart()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(runningLink(3, "wwan0", 10, 20));
    // A checkpoint between the hours must not lose what comes before or after it.
    const auto isInStore = [this] {
        m_links->tell(runningLink(3, "wwan0", 10, 20));
        return openRowsIn(m_path).front().uploadedBytes == 10;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isInStore(), checkpointTimeout);
    m_clock->pass(3600000);
    m_links->tell(runningLink(3, "wwan0", 15, 26));
    m_clock->pass(7200000);
    m_links->tell(downLink(3, "wwan0", 16, 28));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 16 down 28 normal"));
    QCOMPARE(hours(), QStringList({"0 home 10 20", "1 home 5 6", "3 home 1 2"}));
}

/// Also where the row is of a version that knew no hours: these count at its start.
void RecordedPortsTest::resumesTheHours()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    m_atStart = {runningLink(3, "wwan0", 1010, 2020), addressOn(3)};
    QVERIFY(start());
    m_links->toCome = {runningLink(3, "wwan0", 1011, 2022)};
    m_recorder.reset();
    m_clockAtStart.pass(3600000);
    m_atStart = {runningLink(3, "wwan0", 1020, 2030), addressOn(3)};
    QVERIFY(start());
    m_links->tell(downLink(3, "wwan0", 1021, 2032));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 1011 down 2012 normal"));
    QCOMPARE(hours(), QStringList({"-1 home 100 200", "0 home 901 1802", "1 home 10 10"}));
}

QTEST_GUILESS_MAIN(RecordedPortsTest)

#include "tst_recordedports.moc"
