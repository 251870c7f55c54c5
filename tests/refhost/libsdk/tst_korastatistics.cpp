// SPDX-License-Identifier: MIT
#include "KoraStatistics.h"

#include "NamedStore.h"
#include "StoreSamples.h"
#include "refhost/libsdk/KoraStatus.h"

#include <QProcess>
#include <QTest>

#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <limits>
#include <thread>
#include <vector>

using history::Connection;

namespace
{

QString profileOf(const _KORA_ST_CONNRECORD &record)
{
    return QString::fromUtf16(record.szProfileName);
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
    void init() { m_store = std::make_unique<NamedStore>(); }
    void cleanup() { m_store.reset(); }

    void withoutAFileTheListIsEmptyAndNoFileIsMade();
    void writesEveryFieldAsText();
    void takesTheExtremes();
    void writesLaterTimesAs32BitsWithASign_data();
    void writesLaterTimesAs32BitsWithASign();
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
    void takesCallsFromManyThreads();
    void servesAHostInC();
    void keepsTheStoreOpenBetweenCalls();

private:
    /// The only record of a store with this connection alone.
    _KORA_ST_CONNRECORD handedOut(const Connection &connection)
    {
        storeWith(m_store->path(), {connection});
        const HandedOut listed = handOut();
        if (listed.status != refhost::KoraOk || listed.records.size() != 1)
            qFatal("status %d, %zu records", listed.status, listed.records.size());
        return listed.records.front();
    }

    std::unique_ptr<NamedStore> m_store;
};

void KoraStatisticsTest::withoutAFileTheListIsEmptyAndNoFileIsMade()
{
    _KORA_ST_CONNRECORD record = {};
    _KORA_ST_CONNRECORD *records = &record;
    int count = -1;
    QCOMPARE(KORA_Statistics_GetAllConnRecord(&records, &count), int(refhost::KoraOk));
    QCOMPARE(count, 0);
    QVERIFY(!records);
    QCOMPARE(KORA_Statistics_ConnRecord_RemoveRecord(0), int(refhost::KoraNoSuchRecord));
    QVERIFY(!QFile::exists(QString::fromStdString(m_store->path())));
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
    Connection given = connection("", 0, 4294967295);
    given.connectedSeconds = 2147483647;
    given.uploadedBytes = std::numeric_limits<std::int64_t>::max();
    const _KORA_ST_CONNRECORD record = handedOut(given);
    QCOMPARE(profileOf(record), QString());
    QCOMPARE(record.szStartTime, "0");
    QCOMPARE(record.szEndTime, "-1");
    QCOMPARE(record.szDuration, "2147483647");
    QCOMPARE(record.szUploadBytes, "9223372036854775807");
    QCOMPARE(record.szDownloadBytes, "0");
}

void KoraStatisticsTest::writesLaterTimesAs32BitsWithASign_data()
{
    QTest::addColumn<qint64>("time");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("the last positive one") << qint64(2147483647) << QByteArray("2147483647");
    QTest::newRow("the first negative one") << qint64(2147483648) << QByteArray("-2147483648");
    QTest::newRow("the last one") << qint64(4294967295) << QByteArray("-1");
}

void KoraStatisticsTest::writesLaterTimesAs32BitsWithASign()
{
    QFETCH(qint64, time);
    QFETCH(QByteArray, text);
    const _KORA_ST_CONNRECORD record = handedOut(connection("p", time, time));
    QCOMPARE(QByteArray(record.szStartTime), text);
    QCOMPARE(QByteArray(record.szEndTime), text);
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
    const _KORA_ST_CONNRECORD record = handedOut(connection(given.toUtf8().toStdString(), 1, 2));
    QCOMPARE(profileOf(record), shown);
    QCOMPARE(record.szProfileName[127], char16_t(0));
}

void KoraStatisticsTest::replacesWhatIsNotUtf8_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QString>("shown");
    const QString bad(1, QChar(0xfffd));
    QTest::newRow("a stray byte") << QByteArray("a\xFF"
                                                "b")
                                  << "a" + bad + "b";
    QTest::newRow("a continuation without a start") << QByteArray("a\x80"
                                                                  "b")
                                                    << "a" + bad + "b";
    QTest::newRow("an overlong character") << QByteArray("a\xC0\xAF"
                                                         "b")
                                           << "a" + bad + "b";
    QTest::newRow("half a surrogate pair") << QByteArray("a\xED\xA0\x80"
                                                         "b")
                                           << "a" + bad + "b";
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
    storeWith(m_store->path(), {connection("p", 1, 2)});
    // Another program may write more than this library lets in.
    runSql(m_store->path(),
           "UPDATE connection SET ending = 'abcdefghijklmnopqrstuvwxyz0123456789',"
           " interface_name = ending || ending || ending || ending || ending || ending");
    const HandedOut listed = handOut();
    QCOMPARE(listed.records.size(), std::size_t(1));
    QCOMPARE(listed.records[0].szExtraText1, "abcdefghijklmnopqrstuvwxyz01234");
    QCOMPARE(listed.records[0].szExtraText2, "normalnormalnormalnormalnormaln");
}

void KoraStatisticsTest::theLastRecordHasTheNewestEnd()
{
    storeWith(m_store->path(),
              {connection("started last", 300, 310), connection("ended last", 100, 900),
               connection("neither", 200, 400)});
    _KORA_ST_CONNRECORD record = {};
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&record), int(refhost::KoraOk));
    QCOMPARE(profileOf(record), QString("ended last"));
    QCOMPARE(record.szDuration, "800");
}

void KoraStatisticsTest::theHighestKeyIsTheLastAmongEqualEnds()
{
    storeWith(m_store->path(), {connection("first", 800, 900), connection("second", 100, 900)});
    _KORA_ST_CONNRECORD record = {};
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&record), int(refhost::KoraOk));
    QCOMPARE(profileOf(record), QString("second"));
}

void KoraStatisticsTest::withoutARecordThereIsNoLastOne()
{
    _KORA_ST_CONNRECORD record = {};
    std::strcpy(record.szDuration, "before");
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&record), int(refhost::KoraNoSuchRecord));
    storeWith(m_store->path(), {});
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

void KoraStatisticsTest::takesCallsFromManyThreads()
{
    constexpr int threadCount = 4;
    constexpr int rounds = 200;
    constexpr int recordCount = threadCount * rounds;
    auto filled = storeWith(m_store->path(), {});
    QVERIFY(filled.addMissing(numberedConnections(recordCount + 1)));
    QCOMPARE(handOut().records.size(), std::size_t(recordCount + 1));
    std::atomic<int> failures = 0;
    const auto work = [&failures] {
        for (int i = 0; i < rounds; ++i) {
            _KORA_ST_CONNRECORD last = {};
            failures += KORA_Statistics_GetLastConnRecord(&last) == refhost::KoraOk ? 0 : 1;
            failures += KORA_Statistics_ConnRecord_RemoveRecord(0) == refhost::KoraOk ? 0 : 1;
            failures += handOut().status == refhost::KoraOk ? 0 : 1;
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back(work);
    for (std::thread &each : threads)
        each.join();
    QCOMPARE(failures.load(), 0);
    QCOMPARE(profilesIn(m_store->path()), QString::number(recordCount));
}

void KoraStatisticsTest::servesAHostInC()
{
    storeWith(m_store->path(), {connection("a", 10, 12), connection("b", 20, 25)});
    QProcess host;
    host.start(KORA_IN_C, QStringList());
    QVERIFY(host.waitForFinished());
    QCOMPARE(host.exitCode(), 0);
    QCOMPARE(host.readAllStandardOutput(), QByteArray("10 12\n20 25\n"));
}

void KoraStatisticsTest::keepsTheStoreOpenBetweenCalls()
{
    storeWith(m_store->path(), numberedConnections(5));
    handOut();
    const int events = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QVERIFY(inotify_add_watch(events, m_store->path().c_str(), IN_OPEN) >= 0);
    QCOMPARE(handOut().records.size(), std::size_t(5));
    QCOMPARE(KORA_Statistics_ConnRecord_RemoveRecord(0), int(refhost::KoraOk));
    _KORA_ST_CONNRECORD last = {};
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&last), int(refhost::KoraOk));
    std::array<char, 4096> seen = {};
    QCOMPARE(read(events, seen.data(), seen.size()), ssize_t(-1));
    // The watch does see who opens it.
    QCOMPARE(profilesIn(m_store->path()), QString("1 2 3 4"));
    QVERIFY(read(events, seen.data(), seen.size()) > 0);
    close(events);
}

QTEST_GUILESS_MAIN(KoraStatisticsTest)

#include "tst_korastatistics.moc"
