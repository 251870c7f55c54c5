// SPDX-License-Identifier: MIT
#include "KoraStatistics.h"

#include "KoraStatus.h"
#include "StatisticsStore.h"
#include "StorePeer.h"
#include "StoreSamples.h"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

using refhost::Connection;
using refhost::StatisticsStore;

namespace
{

struct Listed {
    int status = -1;
    std::vector<_KORA_ST_CONNRECORD> records;
};

Listed list()
{
    Listed listed;
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = -1;
    listed.status = KORA_Statistics_GetAllConnRecord(&records, &count);
    listed.records.assign(records, records + count);
    KORA_Statistics_ReleaseConnRecord(records);
    return listed;
}

QString profileOf(const _KORA_ST_CONNRECORD &record)
{
    return QString::fromUtf16(record.szProfileName);
}

int removeAt(int index)
{
    return KORA_Statistics_ConnRecord_RemoveRecord(index);
}

template <std::size_t Size>
bool isZeroFrom(const char (&field)[Size], std::size_t start)
{
    return std::all_of(field + start, field + Size, [](char byte) { return byte == 0; });
}

} // namespace

class KoraStatisticsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        useStore("connections.db");
    }
    void cleanup()
    {
        // Away from this folder, before it is deleted.
        qputenv("NETINFO_STORE", "/nonexistent/connections.db");
        list();
        m_folder.reset();
    }

    void withoutAFileTheListIsEmptyAndNoFileIsMade();
    void writesEveryFieldAsText();
    void takesTheExtremes();
    void cutsALongProfile_data();
    void cutsALongProfile();
    void replacesWhatIsNotUtf8_data();
    void replacesWhatIsNotUtf8();
    void leavesNothingBehindTheTexts();
    void endsLongExtraTexts();

    void theLastRecordHasTheNewestEnd();
    void theHighestKeyIsTheLastAmongEqualEnds();
    void withoutARecordThereIsNoLastOne();

    void refusesNullPointers();
    void releasesNull();

    void anIndexMeansThePlaceInTheListHandedOut();
    void removingTheFirstPlaceAgainAndAgainEmptiesTheList();
    void aPlaceThatIsGoneMeansTheNextRecordStillThere();
    void aConnectionRecordedMeanwhileSurvives();
    void whatTheListDoesNotHaveCannotBeRemoved();
    void nothingCanBeRemovedBeforeAList();
    void twoProcessesRemoveAtOnce();
    void aRecordRemovedElsewhereCountsAsGone();
    void theStoreItselfLeavesTheNumberingAlone();
    void aFailedListLeavesTheNumberingAlone();
    void aListOfAnotherStoreRemovesNothing();
    void followsTheStoreThatIsNamed();
    void sawNothingOfAReplacedFile();

private:
    void useStore(const char *name)
    {
        m_path = m_folder->filePath(name).toStdString();
        qputenv("NETINFO_STORE", m_path.c_str());
    }

    /// The only record of a store with this connection alone.
    _KORA_ST_CONNRECORD handedOut(const Connection &connection)
    {
        storeWith(m_path, {connection});
        const Listed listed = list();
        if (listed.status != refhost::KoraOk || listed.records.size() != 1)
            qFatal("status %d, %zu records", listed.status, listed.records.size());
        return listed.records.front();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::string m_path;
};

void KoraStatisticsTest::withoutAFileTheListIsEmptyAndNoFileIsMade()
{
    _KORA_ST_CONNRECORD record = {};
    _KORA_ST_CONNRECORD *records = &record;
    int count = -1;
    QCOMPARE(KORA_Statistics_GetAllConnRecord(&records, &count), int(refhost::KoraOk));
    QCOMPARE(count, 0);
    QVERIFY(!records);
    QCOMPARE(removeAt(0), int(refhost::KoraNoSuchRecord));
    QVERIFY(!QFile::exists(QString::fromStdString(m_path)));
}

void KoraStatisticsTest::writesEveryFieldAsText()
{
    Connection given = connection("internet.\xC3\xA4", 1700000000, 1700003600);
    given.connectedSeconds = 3599;
    given.uploadedBytes = 1536;
    given.downloadedBytes = 5368709120;
    given.ending = "lost";
    given.interfaceName = "wwan0";
    const _KORA_ST_CONNRECORD record = handedOut(given);
    QCOMPARE(profileOf(record), QString::fromUtf8("internet.\xC3\xA4"));
    QCOMPARE(record.szStartTime, "1700000000");
    QCOMPARE(record.szEndTime, "1700003600");
    QCOMPARE(record.szDuration, "3599");
    QCOMPARE(record.szUploadBytes, "1536");
    QCOMPARE(record.szDownloadBytes, "5368709120");
    QCOMPARE(record.szExtraText1, "lost");
    QCOMPARE(record.szExtraText2, "wwan0");
}

void KoraStatisticsTest::takesTheExtremes()
{
    Connection given = connection("", 0, 2147483647);
    given.uploadedBytes = std::numeric_limits<std::int64_t>::max();
    const _KORA_ST_CONNRECORD record = handedOut(given);
    QCOMPARE(profileOf(record), QString());
    QCOMPARE(record.szStartTime, "0");
    QCOMPARE(record.szEndTime, "2147483647");
    QCOMPARE(record.szDuration, "2147483647");
    QCOMPARE(record.szUploadBytes, "9223372036854775807");
    QCOMPARE(record.szDownloadBytes, "0");
}

void KoraStatisticsTest::cutsALongProfile_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const QString &given, const QString &shown) {
        QTest::newRow(name) << given << shown;
    };
    const QString antenna = QString::fromUtf8("\xF0\x9F\x93\xB6");
    const QString euro = QString::fromUtf8("\xE2\x82\xAC");
    row("127 units are whole", QString(127, 'a'), QString(127, 'a'));
    row("128 units lose one", QString(128, 'a'), QString(127, 'a'));
    row("thousands of units", QString(9000, 'a'), QString(127, 'a'));
    row("thousands of long characters", euro.repeated(5000), euro.repeated(127));
    row("a pair that fits", QString(125, 'a') + antenna, QString(125, 'a') + antenna);
    row("a pair across the end", QString(126, 'a') + antenna, QString(126, 'a'));
    row("nothing but pairs", antenna.repeated(2000), antenna.repeated(63));
}

void KoraStatisticsTest::cutsALongProfile()
{
    QFETCH(QString, given);
    QFETCH(QString, shown);
    const _KORA_ST_CONNRECORD record =
        handedOut(connection(given.toUtf8().toStdString(), 1, 2));
    QCOMPARE(profileOf(record), shown);
    QCOMPARE(record.szProfileName[127], char16_t(0));
}

void KoraStatisticsTest::replacesWhatIsNotUtf8_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QString>("shown");
    const QString bad(1, QChar(0xfffd));
    QTest::newRow("a stray byte") << QByteArray("a\xFF" "b") << "a" + bad + "b";
    QTest::newRow("a continuation without a start") << QByteArray("a\x80" "b") << "a" + bad + "b";
    QTest::newRow("an overlong character") << QByteArray("a\xC0\xAF" "b") << "a" + bad + "b";
    QTest::newRow("half a surrogate pair") << QByteArray("a\xED\xA0\x80" "b") << "a" + bad + "b";
    QTest::newRow("a character cut off") << QByteArray("a\xE2\x82") << "a" + bad;
    QTest::newRow("nothing but stray bytes")
        << QByteArray(1000, '\xFF') << QString(127, QChar(0xfffd));
}

void KoraStatisticsTest::replacesWhatIsNotUtf8()
{
    QFETCH(QByteArray, given);
    QFETCH(QString, shown);
    const _KORA_ST_CONNRECORD record = handedOut(connection(given.toStdString(), 1, 2));
    QCOMPARE(profileOf(record), shown);
}

void KoraStatisticsTest::leavesNothingBehindTheTexts()
{
    const _KORA_ST_CONNRECORD record = handedOut(connection("ab", 10, 12));
    QVERIFY(std::all_of(record.szProfileName + 2, record.szProfileName + 128,
                        [](char16_t unit) { return unit == 0; }));
    QVERIFY(isZeroFrom(record.szStartTime, 2));
    QVERIFY(isZeroFrom(record.szEndTime, 2));
    QVERIFY(isZeroFrom(record.szDuration, 1));
    QVERIFY(isZeroFrom(record.szUploadBytes, 1));
    QVERIFY(isZeroFrom(record.szDownloadBytes, 1));
    QVERIFY(isZeroFrom(record.szExtraText1, std::strlen("normal")));
    QVERIFY(isZeroFrom(record.szExtraText2, 0));
}

void KoraStatisticsTest::endsLongExtraTexts()
{
    storeWith(m_path, {connection("p", 1, 2)});
    // Another program may write more than this library lets in.
    runSql(m_path, "UPDATE connection SET ending = 'abcdefghijklmnopqrstuvwxyz0123456789',"
                   " interface_name = ending || ending || ending || ending || ending || ending");
    const Listed listed = list();
    QCOMPARE(listed.records.size(), std::size_t(1));
    QCOMPARE(listed.records[0].szExtraText1, "abcdefghijklmnopqrstuvwxyz01234");
    QCOMPARE(listed.records[0].szExtraText2, "normalnormalnormalnormalnormaln");
}

void KoraStatisticsTest::theLastRecordHasTheNewestEnd()
{
    storeWith(m_path, {connection("started last", 300, 310), connection("ended last", 100, 900),
                       connection("neither", 200, 400)});
    _KORA_ST_CONNRECORD record = {};
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&record), int(refhost::KoraOk));
    QCOMPARE(profileOf(record), QString("ended last"));
    QCOMPARE(record.szDuration, "800");
}

void KoraStatisticsTest::theHighestKeyIsTheLastAmongEqualEnds()
{
    storeWith(m_path, {connection("first", 800, 900), connection("second", 100, 900)});
    _KORA_ST_CONNRECORD record = {};
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&record), int(refhost::KoraOk));
    QCOMPARE(profileOf(record), QString("second"));
}

void KoraStatisticsTest::withoutARecordThereIsNoLastOne()
{
    _KORA_ST_CONNRECORD record = {};
    std::strcpy(record.szDuration, "before");
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&record), int(refhost::KoraNoSuchRecord));
    storeWith(m_path, {});
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&record), int(refhost::KoraNoSuchRecord));
    QCOMPARE(record.szDuration, "before");
}

void KoraStatisticsTest::refusesNullPointers()
{
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = 0;
    QCOMPARE(KORA_Statistics_GetAllConnRecord(nullptr, &count), int(refhost::KoraBadArgument));
    QCOMPARE(KORA_Statistics_GetAllConnRecord(&records, nullptr), int(refhost::KoraBadArgument));
    QCOMPARE(KORA_Statistics_GetLastConnRecord(nullptr), int(refhost::KoraBadArgument));
}

void KoraStatisticsTest::releasesNull()
{
    QCOMPARE(KORA_Statistics_ReleaseConnRecord(nullptr), int(refhost::KoraOk));
}

void KoraStatisticsTest::anIndexMeansThePlaceInTheListHandedOut()
{
    storeWith(m_path, numberedConnections(11));
    QCOMPARE(list().records.size(), std::size_t(11));
    QCOMPARE(removeAt(5), int(refhost::KoraOk));
    QCOMPARE(removeAt(9), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_path), QString("0 1 2 3 4 6 7 8 10"));
}

void KoraStatisticsTest::removingTheFirstPlaceAgainAndAgainEmptiesTheList()
{
    storeWith(m_path, numberedConnections(50));
    list();
    for (int i = 0; i < 50; ++i)
        QCOMPARE(removeAt(0), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_path), QString());
    QCOMPARE(removeAt(0), int(refhost::KoraNoSuchRecord));
}

void KoraStatisticsTest::aPlaceThatIsGoneMeansTheNextRecordStillThere()
{
    storeWith(m_path, numberedConnections(5));
    list();
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
    QCOMPARE(removeAt(3), int(refhost::KoraOk));
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_path), QString("0 1"));
    QCOMPARE(removeAt(2), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_path), QString("0 1"));
}

void KoraStatisticsTest::aConnectionRecordedMeanwhileSurvives()
{
    StatisticsStore store = storeWith(m_path, numberedConnections(3));
    list();
    // It sorts before all others, so it would be the first in a newer list.
    QVERIFY(store.add(connection("meanwhile", 1, 2)));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(removeAt(0), int(refhost::KoraOk));
    QCOMPARE(removeAt(0), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_path), QString("meanwhile"));
}

void KoraStatisticsTest::whatTheListDoesNotHaveCannotBeRemoved()
{
    storeWith(m_path, numberedConnections(3));
    list();
    for (const int index : {3, 4, -1, std::numeric_limits<int>::max(),
                            std::numeric_limits<int>::min()})
        QCOMPARE(removeAt(index), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_path), QString("0 1 2"));
}

void KoraStatisticsTest::nothingCanBeRemovedBeforeAList()
{
    storeWith(m_path, numberedConnections(3));
    // The environment of this process reaches the new one.
    StorePeer fresh;
    QCOMPARE(fresh.tell("remove 0"), QString("ok %1").arg(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_path), QString("0 1 2"));
}

void KoraStatisticsTest::twoProcessesRemoveAtOnce()
{
    constexpr int removals = 40;
    storeWith(m_path, numberedConnections(2 * removals + 5));
    std::array<StorePeer, 2> peers;
    for (StorePeer &peer : peers)
        QCOMPARE(peer.tell("list"), QString("ok %1").arg(2 * removals + 5));
    for (int i = 0; i < removals; ++i) {
        for (StorePeer &peer : peers)
            peer.send("remove 0");
        for (StorePeer &peer : peers)
            QCOMPARE(peer.answer(), QString("ok 0"));
    }
    // Each removal took one record, and none was taken twice.
    QCOMPARE(profilesIn(m_path), QString("80 81 82 83 84"));
}

void KoraStatisticsTest::aRecordRemovedElsewhereCountsAsGone()
{
    storeWith(m_path, numberedConnections(4));
    list();
    StorePeer peer;
    QCOMPARE(peer.tell("list"), QString("ok 4"));
    QCOMPARE(peer.tell("remove 1"), QString("ok 0"));
    QCOMPARE(peer.tell("remove 2"), QString("ok 0"));
    QCOMPARE(removeAt(1), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_path), QString("0"));
    QCOMPARE(removeAt(1), int(refhost::KoraNoSuchRecord));
    QCOMPARE(removeAt(0), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_path), QString());
}

void KoraStatisticsTest::theStoreItselfLeavesTheNumberingAlone()
{
    StatisticsStore store = storeWith(m_path, numberedConnections(4));
    list();
    const auto listed = store.list();
    QVERIFY(listed);
    QVERIFY(store.remove({listed.value()[0].key}));
    QVERIFY(store.list());
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_path), QString("1 3"));
}

void KoraStatisticsTest::aFailedListLeavesTheNumberingAlone()
{
    storeWith(m_path, numberedConnections(4));
    list();
    const std::string store = m_path;
    useStore("diary.txt");
    writeFile(QString::fromStdString(m_path), "not a store");
    QCOMPARE(list().status, int(refhost::KoraNotAStore));
    qputenv("NETINFO_STORE", store.c_str());
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
    QCOMPARE(profilesIn(store), QString("0 1 3"));
}

void KoraStatisticsTest::aListOfAnotherStoreRemovesNothing()
{
    storeWith(m_path, numberedConnections(4));
    list();
    useStore("other.db");
    storeWith(m_path, numberedConnections(4));
    QCOMPARE(removeAt(2), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_path), QString("0 1 2 3"));
}

void KoraStatisticsTest::followsTheStoreThatIsNamed()
{
    storeWith(m_path, numberedConnections(4));
    QCOMPARE(list().records.size(), std::size_t(4));
    useStore("other.db");
    storeWith(m_path, numberedConnections(2));
    QCOMPARE(list().records.size(), std::size_t(2));
    QCOMPARE(removeAt(1), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_path), QString("0"));
}

void KoraStatisticsTest::sawNothingOfAReplacedFile()
{
    storeWith(m_path, numberedConnections(4));
    const std::string other = m_path + ".other";
    storeWith(other, numberedConnections(4));
    list();
    QCOMPARE(std::rename(other.c_str(), m_path.c_str()), 0);
    QCOMPARE(removeAt(2), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_path), QString("0 1 2 3"));
    QCOMPARE(list().records.size(), std::size_t(4));
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
}

QTEST_GUILESS_MAIN(KoraStatisticsTest)

#include "tst_korastatistics.moc"
