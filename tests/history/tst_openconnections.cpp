// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "KoraStatistics.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <SQLiteCpp/Database.h>

#include <QTest>

#include <limits>
#include <memory>

using history::Connection;
using history::OpenConnection;
using history::Result;
using history::Store;
using history::StoreError;

namespace
{

OpenConnection openConnection(const std::string &bootId, std::int64_t interfaceIndex)
{
    OpenConnection connection;
    connection.bootId = bootId;
    connection.interfaceIndex = interfaceIndex;
    connection.interfaceName = "wwan0";
    connection.profile = "internet";
    connection.startUtc = 1700000000;
    connection.startBootMilliseconds = 123456;
    connection.baseUploaded = 11;
    connection.baseDownloaded = 22;
    connection.updatedUtc = 1700000000;
    return connection;
}

std::int64_t rowsIn(const std::string &path, const std::string &table)
{
    return SQLite::Database(path).execAndGet("SELECT count(*) FROM " + table).getInt64();
}

/// Every field of the rows, one line each.
QString fieldsOf(const std::vector<OpenConnection> &connections)
{
    QString text;
    for (const OpenConnection &each : connections) {
        text += QString::fromStdString(each.bootId + ' ' + each.interfaceName + ' ' + each.profile +
                                       ' ' + each.ending);
        for (const std::int64_t value :
             {each.key, each.interfaceIndex, each.startUtc, each.startBootMilliseconds,
              each.baseUploaded, each.baseDownloaded, each.uploadedBytes, each.downloadedBytes,
              each.updatedUtc, each.connectedSeconds})
            text += QStringLiteral(" %1").arg(value);
        text += QLatin1Char('\n');
    }
    return text;
}

/// A store as the first version of the schema had it.
void makeFirstVersion(const std::string &path)
{
    runSql(path, "CREATE TABLE connection (key INTEGER PRIMARY KEY AUTOINCREMENT,"
                 " profile TEXT NOT NULL, start_utc INTEGER NOT NULL, end_utc INTEGER NOT NULL,"
                 " connected_seconds INTEGER NOT NULL, uploaded_bytes INTEGER NOT NULL,"
                 " downloaded_bytes INTEGER NOT NULL, ending TEXT NOT NULL,"
                 " interface_name TEXT NOT NULL) STRICT;"
                 "CREATE INDEX connection_by_start ON connection (start_utc);"
                 "CREATE INDEX connection_by_end ON connection (end_utc);"
                 "INSERT INTO connection VALUES (7, 'old', 10, 20, 10, 1, 2, 'normal', 'ppp0');"
                 "PRAGMA application_id = 1380205384; PRAGMA user_version = 1");
}

} // namespace

class OpenConnectionsTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        StoreTestCase::init();
        qputenv("NETINFO_STORE", QByteArray::fromStdString(m_path));
    }
    void cleanup()
    {
        qunsetenv("NETINFO_STORE");
        StoreTestCase::cleanup();
    }

    void upgradesAStoreOfTheFirstVersion();
    void leavesAStoreOfTheFirstVersionAsItIsWhenTheUpgradeFails();
    void keepsEveryFieldOfAConnectionThatHasBegun();
    void isInNoListBeforeItIsFinished();
    void removingAllFinishedConnectionsLeavesItOpen();
    void numberingSkipsIt();
    void aLinkHasOneOpenConnectionAtMost();
    void checkpointChangesWhatMayChange();
    void keepsWhatTheLinkShowed();
    void checkpointOfNoOpenConnectionIsAnError();
    void theSameKeyOfAnotherConnectionMeansNothing();
    void finishingMovesItIntoTheList();
    void finishingWhatAnotherProcessHasFinishedAddsNothing();
    void finishingInAStoreThatHasBeenReplacedAddsIt();
    void finishingWithValuesOutOfRangeLeavesItOpen();
    void refusesValuesOutsideTheirRange();

private:
    Store open() { return storeWith(m_path, {}); }
};

void OpenConnectionsTest::upgradesAStoreOfTheFirstVersion()
{
    makeFirstVersion(m_path);
    Store store = open();
    QVERIFY(store.begin(openConnection("boot", 3)));
    const auto list = store.list();
    QVERIFY(list);
    QCOMPARE(list.value().size(), std::size_t{1});
    QCOMPARE(list.value().front().key, std::int64_t{7});
    QCOMPARE(list.value().front().profile, std::string("old"));
    const std::string recent = m_path + ".new";
    storeWith(recent, {});
    QCOMPARE(versionOf(m_path), versionOf(recent));
}

void OpenConnectionsTest::leavesAStoreOfTheFirstVersionAsItIsWhenTheUpgradeFails()
{
    makeFirstVersion(m_path);
    runSql(m_path, "CREATE TABLE open_connection (in_the_way TEXT)");
    QCOMPARE(outcomeOf(Store::openOrCreate(m_path)), QStringLiteral("Damaged"));
    QCOMPARE(SQLite::Database(m_path).execAndGet("PRAGMA user_version").getInt(), 1);
    QCOMPARE(rowsIn(m_path, "connection"), std::int64_t{1});
}

void OpenConnectionsTest::keepsEveryFieldOfAConnectionThatHasBegun()
{
    OpenConnection begun = openConnection("boot", 3);
    begun.uploadedBytes = 5;
    begun.downloadedBytes = 6;
    begun.connectedSeconds = 7;
    begun.ending = "counter reset";
    const auto stored = open().begin(begun);
    QVERIFY(stored);
    begun.key = stored.value().key;
    QVERIFY(begun.key > 0);
    QCOMPARE(fieldsOf({stored.value()}), fieldsOf({begun}));
    QCOMPARE(fieldsOf(open().listOpen().value()), fieldsOf({begun}));
}

void OpenConnectionsTest::isInNoListBeforeItIsFinished()
{
    Store store = storeWith(m_path, {connection("p", 1, 2)});
    QVERIFY(store.begin(openConnection("boot", 3)));
    QCOMPARE(outcomeOf(store.list()), QStringLiteral("p"));

    _KORA_ST_CONNRECORD *records = nullptr;
    int count = 0;
    QCOMPARE(KORA_Statistics_GetAllConnRecord(&records, &count), 0);
    QCOMPARE(count, 1);
    KORA_Statistics_ReleaseConnRecord(records);
    _KORA_ST_CONNRECORD last = {};
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&last), 0);
    QCOMPARE(last.szEndTime, "2");
}

void OpenConnectionsTest::removingAllFinishedConnectionsLeavesItOpen()
{
    Store store = storeWith(m_path, {connection("p", 1, 2)});
    const auto begun = store.begin(openConnection("boot", 3));
    QVERIFY(store.remove({store.list().value().front().key}));
    // Keys of the two kinds may be equal; the one does not stand for the other.
    QCOMPARE(outcomeOf(store.remove({begun.value().key})), QStringLiteral("NoSuchRecord"));
    QCOMPARE(store.listOpen().value().size(), std::size_t{1});
}

void OpenConnectionsTest::numberingSkipsIt()
{
    Store store = storeWith(m_path, numberedConnections(2));
    QVERIFY(store.begin(openConnection("boot", 3)));
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = 0;
    QCOMPARE(KORA_Statistics_GetAllConnRecord(&records, &count), 0);
    KORA_Statistics_ReleaseConnRecord(records);
    QCOMPARE(count, 2);
    QCOMPARE(KORA_Statistics_ConnRecord_RemoveRecord(0), 0);
    QCOMPARE(KORA_Statistics_ConnRecord_RemoveRecord(0), 0);
    QVERIFY(KORA_Statistics_ConnRecord_RemoveRecord(0) != 0);
    QCOMPARE(store.listOpen().value().size(), std::size_t{1});
}

void OpenConnectionsTest::aLinkHasOneOpenConnectionAtMost()
{
    Store store = open();
    const auto first = store.begin(openConnection("boot", 3));
    OpenConnection later = openConnection("boot", 3);
    later.startUtc += 60;
    const auto second = store.begin(later);
    QCOMPARE(fieldsOf({second.value()}), fieldsOf({first.value()}));
    QVERIFY(store.begin(openConnection("boot", 4)));
    QVERIFY(store.begin(openConnection("another boot", 3)));
    QCOMPARE(store.listOpen().value().size(), std::size_t{3});
}

void OpenConnectionsTest::checkpointChangesWhatMayChange()
{
    Store store = open();
    OpenConnection begun = store.begin(openConnection("boot", 3)).value();
    const OpenConnection other = store.begin(openConnection("boot", 4)).value();
    begun.interfaceName = "wwan1";
    begun.profile = "renamed";
    begun.baseUploaded = -1;
    begun.baseDownloaded = -2;
    begun.uploadedBytes = 1000;
    begun.downloadedBytes = 2000;
    begun.updatedUtc += 5;
    begun.connectedSeconds = 5;
    begun.ending = "counter reset";
    QCOMPARE(outcomeOf(store.checkpoint(begun)), QString::number(begun.key));
    QCOMPARE(fieldsOf(store.listOpen().value()), fieldsOf({begun, other}));
}

/// With each change of a connection, and with its end.
void OpenConnectionsTest::keepsWhatTheLinkShowed()
{
    Store store = open();
    const auto shown = [&store] {
        const auto seen = store.listSeen().value();
        return seen.size() == 1 ? seen.front().uploaded : -1;
    };
    OpenConnection begun = store.begin(openConnection("boot", 3)).value();
    QCOMPARE(shown(), std::int64_t{11});
    begun.uploadedBytes = 100;
    QVERIFY(store.checkpoint(begun));
    QCOMPARE(shown(), std::int64_t{111});
    begun.uploadedBytes = std::numeric_limits<std::int64_t>::max();
    QVERIFY(store.checkpoint(begun));
    QCOMPARE(shown(), std::int64_t{111});
    begun.uploadedBytes = 200;
    QVERIFY(store.finish(begun, connection("internet", 1700000000, 1700000060)));
    QCOMPARE(shown(), std::int64_t{211});
}

void OpenConnectionsTest::checkpointOfNoOpenConnectionIsAnError()
{
    Store store = open();
    OpenConnection unknown = openConnection("boot", 3);
    unknown.key = 99;
    const auto outcome = store.checkpoint(unknown);
    QVERIFY(!outcome);
    QVERIFY(outcome.error().kind == StoreError::Kind::NoSuchRecord);
    QCOMPARE(outcome.error().message,
             "The connection history \"" + m_path +
                 "\" has no open connection with the key 99; nothing was changed, another "
                 "program has finished it or the file has been replaced.");
}

/// As in a copy of an earlier day that was put in the store's place.
void OpenConnectionsTest::theSameKeyOfAnotherConnectionMeansNothing()
{
    Store store = open();
    const OpenConnection other = store.begin(openConnection("an earlier boot", 3)).value();
    OpenConnection own = openConnection("boot", 3);
    own.key = other.key;
    QCOMPARE(outcomeOf(store.checkpoint(own)), QStringLiteral("NoSuchRecord"));
    QVERIFY(store.finish(own, connection("internet", 1700000000, 1700000060)));
    QCOMPARE(outcomeOf(store.list()), QStringLiteral("internet"));
    QCOMPARE(fieldsOf(store.listOpen().value()), fieldsOf({other}));
}

void OpenConnectionsTest::finishingMovesItIntoTheList()
{
    Store store = open();
    const auto begun = store.begin(openConnection("boot", 3));
    Connection finished = connection("internet", 1700000000, 1700000060);
    finished.uploadedBytes = 17;
    const auto key = store.finish(begun.value(), finished);
    QVERIFY(key);
    QVERIFY(store.listOpen().value().empty());
    const auto list = store.list().value();
    QCOMPARE(list.size(), std::size_t{1});
    QCOMPARE(list.front().key, key.value());
    QCOMPARE(list.front().uploadedBytes, std::int64_t{17});
}

void OpenConnectionsTest::finishingWhatAnotherProcessHasFinishedAddsNothing()
{
    Store store = open();
    Store other = open();
    const auto begun = store.begin(openConnection("boot", 3));
    Connection finished = connection("internet", 1700000000, 1700000060);
    finished.interfaceName = "wwan0";
    QVERIFY(other.finish(begun.value(), finished));
    finished.endUtc += 1;
    QCOMPARE(outcomeOf(store.finish(begun.value(), finished)), QStringLiteral("0"));
    QCOMPARE(outcomeOf(store.list()), QStringLiteral("internet"));
}

void OpenConnectionsTest::finishingInAStoreThatHasBeenReplacedAddsIt()
{
    Store store = open();
    const auto begun = store.begin(openConnection("boot", 3));
    for (const char *const suffix : {"", "-wal", "-shm"})
        QFile::remove(QString::fromStdString(m_path + suffix));
    QVERIFY(store.finish(begun.value(), connection("internet", 1700000000, 1700000060)));
    QCOMPARE(profilesIn(m_path), QStringLiteral("internet"));
}

void OpenConnectionsTest::finishingWithValuesOutOfRangeLeavesItOpen()
{
    Store store = open();
    const auto begun = store.begin(openConnection("boot", 3));
    Connection finished = connection("internet", 1700000000, 1700000060);
    finished.downloadedBytes = -1;
    QCOMPARE(outcomeOf(store.finish(begun.value(), finished)), QStringLiteral("BadRecord"));
    QCOMPARE(store.listOpen().value().size(), std::size_t{1});
    QCOMPARE(rowsIn(m_path, "connection"), std::int64_t{0});
}

void OpenConnectionsTest::refusesValuesOutsideTheirRange()
{
    OpenConnection wrong = openConnection("boot", 3);
    wrong.uploadedBytes = -1;
    const auto outcome = open().begin(wrong);
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().message,
             std::string("The number of bytes sent of the open connection is -1, but must lie "
                         "between 0 and 9223372036854775807."));
    QVERIFY(open().listOpen().value().empty());
}

QTEST_GUILESS_MAIN(OpenConnectionsTest)

#include "tst_openconnections.moc"
