// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "StoreSamples.h"

#include <QTemporaryDir>
#include <QTest>

#include <limits>

using history::Connection;
using history::Result;
using history::Store;
using history::TimeRange;
using history::Totals;

/// What the store lists and adds up for a span of time.
class StoreTotalsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath("connections.db").toStdString();
    }

    void listsWhatStartsInTheRange_data();
    void listsWhatStartsInTheRange();
    void addsUpEverythingInOneGroup();
    void countsWhatStartsInTheRangeOnly();
    void tellsProfilesApartByTheirBytes();
    void putsAConnectionWhollyInThePeriodOfItsStart();
    void leavesOutWhatHasNoPeriod();
    void leavesOpenConnectionsOut();
    void hasNoGroupWithoutConnections();
    void addsExactlyPastTheWholeNumbersOfADouble();
    void refusesASumThatDoesNotFit_data();
    void refusesASumThatDoesNotFit();

private:
    Store store(const std::vector<Connection> &connections) const
    {
        return storeWith(m_path, connections);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::string m_path;
};

namespace
{

using Profiles = Store::Profiles;

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();

int onePeriod(std::int64_t)
{
    return 0;
}

Connection volume(const std::string &profile, std::int64_t start, std::int64_t uploaded,
                  std::int64_t downloaded)
{
    Connection result = connection(profile, start, start + 10);
    result.uploadedBytes = uploaded;
    result.downloadedBytes = downloaded;
    return result;
}

/// One line for each group: profile, period, number, seconds, sent, received.
QStringList linesOf(const Result<std::vector<Totals>> &result)
{
    if (!result)
        return {QString::fromStdString(result.error().message)};
    QStringList lines;
    for (const Totals &each : result.value())
        lines.append(QString("%1|%2|%3|%4|%5|%6")
                         .arg(QString::fromStdString(each.profile))
                         .arg(each.period)
                         .arg(each.connections)
                         .arg(each.connectedSeconds)
                         .arg(each.uploadedBytes)
                         .arg(each.downloadedBytes));
    return lines;
}

} // namespace

void StoreTotalsTest::listsWhatStartsInTheRange_data()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("until");
    QTest::addColumn<QString>("profiles");

    const TimeRange always;
    QTest::newRow("always") << qint64(always.fromUtc) << qint64(always.untilUtc) << "a b c d";
    QTest::newRow("the start belongs to the range, its end does not")
        << qint64(1000) << qint64(2000) << "b";
    QTest::newRow("from a time on") << qint64(1000) << qint64(always.untilUtc) << "b c d";
    QTest::newRow("up to a time") << qint64(always.fromUtc) << qint64(2001) << "a b c";
    QTest::newRow("a time without connections") << qint64(1001) << qint64(2000) << "";
    QTest::newRow("no time at all") << qint64(1000) << qint64(1000) << "";
    QTest::newRow("the last second that a record can have")
        << qint64(2147483647) << qint64(2147483648) << "d";
}

void StoreTotalsTest::listsWhatStartsInTheRange()
{
    QFETCH(qint64, from);
    QFETCH(qint64, until);
    const Store history =
        store({connection("a", 0, 5000), connection("b", 1000, 5000), connection("c", 2000, 2001),
               connection("d", 2147483647, 2147483647)});
    QTEST(outcomeOf(history.list({from, until})), "profiles");
}

void StoreTotalsTest::addsUpEverythingInOneGroup()
{
    const Store history =
        store({volume("a", 100, 1, 20), volume("b", 200, 300, 4000), volume("a", 300, 50000, 6)});
    QCOMPARE(linesOf(history.totals({}, Profiles::Together, onePeriod)),
             QStringList{"|0|3|30|50301|4026"});
}

void StoreTotalsTest::countsWhatStartsInTheRangeOnly()
{
    const Store history =
        store({volume("a", 99, 1, 1), volume("a", 100, 2, 3), volume("a", 200, 4, 4)});
    QCOMPARE(linesOf(history.totals({100, 200}, Profiles::Apart, onePeriod)),
             QStringList{"a|0|1|10|2|3"});
}

void StoreTotalsTest::tellsProfilesApartByTheirBytes()
{
    const Store history = store({volume("internet", 100, 1, 1), volume("Internet", 200, 2, 2),
                                 volume("", 300, 4, 4), volume("internet ", 400, 8, 8),
                                 volume("\xC3\xA4", 500, 16, 16), volume("internet", 600, 32, 32)});
    QCOMPARE(linesOf(history.totals({}, Profiles::Apart, onePeriod)),
             (QStringList{"|0|1|10|4|4", "Internet|0|1|10|2|2", "internet|0|2|20|33|33",
                          "internet |0|1|10|8|8", "ä|0|1|10|16|16"}));
}

void StoreTotalsTest::putsAConnectionWhollyInThePeriodOfItsStart()
{
    const Store history =
        store({volume("b", 1999, 1, 2), volume("a", 2000, 3, 4), volume("b", 2500, 5, 6)});
    const auto thousand = [](std::int64_t startUtc) { return static_cast<int>(startUtc / 1000); };
    QCOMPARE(linesOf(history.totals({}, Profiles::Apart, thousand)),
             (QStringList{"a|2|1|10|3|4", "b|1|1|10|1|2", "b|2|1|10|5|6"}));
    QCOMPARE(linesOf(history.totals({}, Profiles::Together, thousand)),
             (QStringList{"|1|1|10|1|2", "|2|2|20|8|10"}));
}

void StoreTotalsTest::leavesOutWhatHasNoPeriod()
{
    const Store history = store({volume("a", 100, 1, 1), volume("a", 200, 2, 2)});
    const auto late = [](std::int64_t startUtc) {
        return startUtc < 200 ? std::optional<int>() : 7;
    };
    QCOMPARE(linesOf(history.totals({}, Profiles::Apart, late)), QStringList{"a|7|1|10|2|2"});
}

void StoreTotalsTest::leavesOpenConnectionsOut()
{
    Store history = store({volume("a", 100, 1, 1)});
    history::OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.profile = "a";
    open.startUtc = 100;
    open.uploadedBytes = 1000;
    open.updatedUtc = 110;
    open.connectedSeconds = 10;
    const auto begun = history.begin(open);
    QVERIFY(begun);
    QCOMPARE(linesOf(history.totals({}, Profiles::Apart, onePeriod)), QStringList{"a|0|1|10|1|1"});
    QVERIFY(history.finish(begun.value(), volume("a", 100, 1000, 2)));
    QCOMPARE(linesOf(history.totals({}, Profiles::Apart, onePeriod)),
             QStringList{"a|0|2|20|1001|3"});
}

void StoreTotalsTest::hasNoGroupWithoutConnections()
{
    const auto missing = Store::openForReading(m_path);
    QVERIFY(missing);
    QCOMPARE(linesOf(missing.value().totals({}, Profiles::Together, onePeriod)), QStringList());
    const Store history = store({volume("a", 100, 1, 1)});
    QCOMPARE(linesOf(history.totals({101, 200}, Profiles::Apart, onePeriod)), QStringList());
}

void StoreTotalsTest::addsExactlyPastTheWholeNumbersOfADouble()
{
    constexpr std::int64_t twoTo53 = 9007199254740992;
    const Store history = store({volume("a", 100, twoTo53, most - 1), volume("a", 200, 1, 1)});
    QCOMPARE(linesOf(history.totals({}, Profiles::Apart, onePeriod)),
             QStringList{"a|0|2|20|9007199254740993|9223372036854775807"});
}

void StoreTotalsTest::refusesASumThatDoesNotFit_data()
{
    QTest::addColumn<qint64>("uploaded");
    QTest::addColumn<qint64>("downloaded");
    QTest::addColumn<QString>("what");
    QTest::newRow("sent") << qint64(most) << qint64(0) << "bytes sent";
    QTest::newRow("received") << qint64(0) << qint64(most) << "bytes received";
}

void StoreTotalsTest::refusesASumThatDoesNotFit()
{
    QFETCH(qint64, uploaded);
    QFETCH(qint64, downloaded);
    QFETCH(QString, what);
    const Store history = store({volume("a", 100, uploaded, downloaded), volume("b", 200, 1, 1)});
    const auto sums = history.totals({}, Profiles::Together, onePeriod);
    QVERIFY(!sums);
    QVERIFY(sums.error().kind == history::StoreError::Kind::SumTooLarge);
    const QString message = QString::fromStdString(sums.error().message);
    QVERIFY2(message.contains(what), qPrintable(message));
    QVERIFY2(message.contains(QString::fromStdString(m_path)), qPrintable(message));
    QVERIFY(history.totals({}, Profiles::Apart, onePeriod));
}

QTEST_GUILESS_MAIN(StoreTotalsTest)

#include "tst_storetotals.moc"
