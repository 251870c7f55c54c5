// SPDX-License-Identifier: MIT
#include "history/SchemaUpgrade.h"
#include "history/Store.h"

#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <SQLiteCpp/Database.h>

#include <QScopeGuard>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <random>
#include <tuple>

using namespace history;

namespace
{

constexpr std::int64_t firstHour = 1700002800;

OpenConnection begun(std::int64_t link)
{
    OpenConnection connection;
    connection.bootId = "boot";
    connection.interfaceIndex = link;
    connection.profile = "internet";
    connection.operatorName = "Operator";
    connection.sim = "89490200001234567890";
    connection.startUtc = firstHour + 100;
    connection.updatedUtc = connection.startUtc;
    return connection;
}

Connection finishedFrom(const OpenConnection &open)
{
    Connection connection;
    static_cast<history::ConnectionBase &>(connection) = open;
    connection.endUtc = open.updatedUtc;
    return connection;
}

QString hoursIn(const Store &store, const history::TimeRange &range = {})
{
    const auto hours = store.hours(range);
    if (!hours)
        return QString::fromStdString(hours.error().message);
    QStringList texts;
    for (const auto &each : hours.value())
        texts.append(QString("%1%2 %3 %4 %5/%6")
                         .arg(each.isOpen ? "open" : "", QString::fromStdString(each.profile))
                         .arg(each.utc - firstHour)
                         .arg(each.isRoaming ? "roaming" : "home")
                         .arg(each.uploadedBytes)
                         .arg(each.downloadedBytes));
    return texts.join(", ");
}

/// With a connection in it.
void makeEarlierStore(const std::string &path, int version)
{
    makeStoreOfVersion(path, version);
    runSql(path, "INSERT INTO connection (profile, start_utc, end_utc, connected_seconds,"
                 " uploaded_bytes, downloaded_bytes, ending, interface_name)"
                 " VALUES ('old', 1700002900, 1700002960, 60, 7, 8, 'normal', 'ppp0')");
}

} // namespace

class HoursTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void keepWhatAnOpenConnectionMoves();
    void becomeTheFinishedConnections();
    void haveToAddUp();
    void areRefusedBetweenTheHours();
    void goWithTheirConnection();
    void goWithEachOfManyConnections();
    void countAtTheStartWithoutAny();
    void areExamined();
    void agreeWithAModel();
    void areThereInAStoreOfEachVersion_data();
    void areThereInAStoreOfEachVersion();
    void importOfAnEarlierVersionsRecordAddsNothing();
};

void HoursTest::keepWhatAnOpenConnectionMoves()
{
    Store store = storeWith(m_path, {});
    OpenConnection open = store.begin(begun(1)).value();
    open.uploadedBytes = 5;
    open.downloadedBytes = 50;
    open.hours = {{firstHour, false, 5, 50}};
    QVERIFY(store.checkpoint(open));
    open.uploadedBytes = 9;
    open.hours = {{firstHour, true, 1, 0}, {firstHour + 3600, true, 3, 0}};
    QVERIFY(store.checkpoint(open));
    QVERIFY(store.checkpoint(open)); // again, as after an answer that was lost
    QCOMPARE(hoursIn(store), QString("openinternet 0 home 5/50, openinternet 0 roaming 1/0, "
                                     "openinternet 3600 roaming 3/0"));
    QCOMPARE(hoursIn(store, {firstHour + 3600, firstHour + 7200}),
             QString("openinternet 3600 roaming 3/0"));
    QCOMPARE(store.listOpen().value().front().hours.size(), std::size_t(3));
    QCOMPARE(store.begin(begun(1)).value().hours.size(), std::size_t(3));
    const auto hour = store.hours().value().front();
    QCOMPARE(hour.operatorName, std::string("Operator"));
    QCOMPARE(hour.sim, std::string("89490200001234567890"));
}

void HoursTest::becomeTheFinishedConnections()
{
    Store store = storeWith(m_path, {});
    OpenConnection open = store.begin(begun(1)).value();
    open.uploadedBytes = 5;
    open.hours = {{firstHour, false, 5, 0}};
    QVERIFY(store.checkpoint(open));
    Connection finished = finishedFrom(open);
    finished.uploadedBytes = 11;
    finished.hours = {{firstHour, false, 6, 0}, {firstHour + 3600, false, 5, 0}};
    QVERIFY(store.finish(open, finished));
    QCOMPARE(hoursIn(store), QString("internet 0 home 6/0, internet 3600 home 5/0"));
    QCOMPARE(store.begin(begun(1)).value().hours.size(), std::size_t(0));
}

void HoursTest::haveToAddUp()
{
    Store store = storeWith(m_path, {});
    OpenConnection open = store.begin(begun(1)).value();
    open.uploadedBytes = 5;
    open.hours = {{firstHour, false, 4, 0}};
    QCOMPARE(outcomeOf(store.checkpoint(open)), QString("BadRecord"));
    QCOMPARE(hoursIn(store), QString("openinternet 100 home 0/0"));
    open.hours = {{firstHour, false, 5, 0}};
    QVERIFY(store.checkpoint(open));
    Connection finished = finishedFrom(open);
    finished.downloadedBytes = 1;
    QCOMPARE(outcomeOf(store.finish(open, finished)), QString("BadRecord"));
    QCOMPARE(outcomeOf(store.addMissing({finished})), QString("BadRecord"));
    QCOMPARE(hoursIn(store), QString("openinternet 0 home 5/0"));
}

void HoursTest::areRefusedBetweenTheHours()
{
    Store store = storeWith(m_path, {});
    Connection given = connection("p", 1, 2);
    given.hours = {{1, false, 0, 0}};
    QCOMPARE(outcomeOf(store.add(given)), QString("BadRecord"));
    given.hours = {{0, false, -1, 0}};
    QCOMPARE(outcomeOf(store.add(given)), QString("BadRecord"));
}

void HoursTest::goWithTheirConnection()
{
    Store store = storeWith(m_path, {});
    Connection given = connection("p", firstHour, firstHour + 10);
    given.uploadedBytes = 5;
    given.hours = {{firstHour, false, 5, 0}};
    QCOMPARE(outcomeOf(store.addMissing({given})), QString("1"));
    QVERIFY(store.remove({store.list().value().front().key}));
    QCOMPARE(hoursIn(store), QString());
    QCOMPARE(SQLite::Database(m_path).execAndGet("SELECT count(*) FROM connection_hour").getInt(),
             0);
}

void HoursTest::goWithEachOfManyConnections()
{
    Store store = storeWith(m_path, {});
    std::vector<Connection> given = numberedConnections(40);
    for (Connection &each : given) {
        each.uploadedBytes = 5;
        each.hours = {{firstHour, false, 5, 0}};
    }
    QCOMPARE(outcomeOf(store.addMissing(given)), QString("40"));
    QCOMPARE(hoursIn(store).count(" 0 home 5/0"), 40);
}

void HoursTest::countAtTheStartWithoutAny()
{
    Connection given = connection("p", firstHour + 1800, firstHour + 7200);
    given.downloadedBytes = 9;
    const Store store = storeWith(m_path, {given});
    QCOMPARE(hoursIn(store), QString("p 1800 home 0/9"));
    QCOMPARE(hoursIn(store, {firstHour + 1801, firstHour + 9000}), QString());
}

void HoursTest::areExamined()
{
    Store store = storeWith(m_path, {});
    Connection given = connection("p", firstHour, firstHour + 10);
    given.uploadedBytes = 5;
    given.hours = {{firstHour, false, 5, 0}};
    QVERIFY(store.add(given));
    QVERIFY(store.begin(begun(1)));
    QVERIFY(store.examine().value().problems.empty());
    runSql(m_path, "UPDATE connection_hour SET uploaded_bytes = 4;"
                   "INSERT INTO open_connection_hour VALUES (1, 0, 0, 1, 0)");
    const auto problems = store.examine().value().problems;
    QCOMPARE(problems.size(), std::size_t(2));
    QCOMPARE(problems.front(), std::string("Key 1: Its hours do not add up to its byte counts."));
}

void HoursTest::agreeWithAModel()
{
    Store store = storeWith(m_path, {});
    std::mt19937 random(4711);
    const auto below = [&](unsigned int limit) {
        return static_cast<std::int64_t>(random() % limit);
    };
    std::map<std::tuple<std::int64_t, bool>, std::int64_t> model;
    std::map<std::int64_t, OpenConnection> open;
    std::int64_t now = firstHour;
    for (int step = 0; step < 400; ++step) {
        now += below(2000);
        const std::int64_t link = 1 + below(3);
        if (open.count(link) == 0) {
            open[link] = store.begin(begun(link)).value();
            continue;
        }
        if (below(10) == 0)
            store = std::move(Store::openOrCreate(m_path).value()); // restarted
        OpenConnection connection = store.begin(begun(link)).value();
        const bool isRoaming = below(3) == 0;
        const std::int64_t moved = below(100000);
        const std::int64_t hour = now - now % 3600;
        HourlyBytes changed = {hour, isRoaming, 0, 0};
        for (const HourlyBytes &each : connection.hours) {
            if (each.hourUtc == hour && each.isRoaming == isRoaming)
                changed = each;
        }
        changed.uploadedBytes += moved;
        connection.uploadedBytes += moved;
        connection.updatedUtc = now;
        connection.hours = {changed};
        model[{hour, isRoaming}] += moved;
        if (below(8) == 0) {
            QVERIFY(store.finish(connection, finishedFrom(connection)));
            open.erase(link);
        } else {
            QVERIFY(store.checkpoint(connection));
        }
    }
    const std::int64_t middle = firstHour + (now - firstHour) / 7200 * 3600;
    for (const history::TimeRange &range :
         {history::TimeRange(), history::TimeRange{middle, middle + 86400}}) {
        std::map<std::tuple<std::int64_t, bool>, std::int64_t> stored;
        const auto visited = store.visitHours(range, [&](const ConnectionHour &each) {
            if (each.uploadedBytes > 0)
                stored[{each.utc, each.isRoaming}] += each.uploadedBytes;
        });
        QCOMPARE(visited.value(), store.hours(range).value().size());
        auto expected = model;
        for (auto each = expected.begin(); each != expected.end();) {
            const std::int64_t hour = std::get<0>(each->first);
            const bool isIn = hour >= range.fromUtc && hour < range.untilUtc && each->second > 0;
            each = isIn ? std::next(each) : expected.erase(each);
        }
        QCOMPARE(stored, expected);
    }
}

void HoursTest::areThereInAStoreOfEachVersion_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<bool>("isReadOnly");
    for (int version = 1; version <= int(history::storeSchema().size()); ++version) {
        QTest::addRow("upgraded from %d", version) << version << false;
        QTest::addRow("read from %d", version) << version << true;
    }
}

void HoursTest::areThereInAStoreOfEachVersion()
{
    QFETCH(int, version);
    QFETCH(bool, isReadOnly);
    makeEarlierStore(m_path, version);
    const uid_t user = geteuid();
    if (isReadOnly) {
        // Somebody who may not write; root could.
        QCOMPARE(chmod(qPrintable(m_folder->path()), 0755), 0);
        QCOMPARE(chmod(m_path.c_str(), 0444), 0);
        QVERIFY(user != 0 || seteuid(65534) == 0);
    }
    const auto store = isReadOnly ? Store::openForReading(m_path) : Store::openOrCreate(m_path);
    const auto backToUser = qScopeGuard([&] { QCOMPARE(seteuid(user), 0); });
    QVERIFY2(store, store ? "" : store.error().message.c_str());
    QCOMPARE(outcomeOf(store.value().list()), QString("old"));
    QCOMPARE(hoursIn(store.value()), QString("old 100 home 7/8"));
    QVERIFY(store.value().listOpen());
    QCOMPARE(seteuid(user), 0);
    QCOMPARE(versionOf(m_path), isReadOnly ? version : int(history::storeSchema().size()));
}

void HoursTest::importOfAnEarlierVersionsRecordAddsNothing()
{
    Connection known = connection("p", 1, 2);
    known.sim = "89490200001234567890";
    known.roaming = history::abroad;
    Store store = storeWith(m_path, {known});
    QCOMPARE(outcomeOf(store.addMissing({connection("p", 1, 2)})), QString("0"));
    QCOMPARE(store.list().value().front().sim, known.sim);
}

QTEST_GUILESS_MAIN(HoursTest)

#include "tst_hours.moc"
