// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <QTest>

#include <cstdio>

using history::Connection;
using history::Store;

class StoreTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        qunsetenv("NETINFO_STORE");
        StoreTestCase::cleanup();
    }

    void theNamedStoreIsTheDefault();
    void theDefaultLiesInTheDataFolder();
    void theDefaultLiesInTheHomeFolderWithoutADataFolder();
    void keepsEveryFieldOfAConnection();
    void listsByStartTimeThenByKey();
    void findsItsRecordsAfterReopening();
    void readsAsEmptyWhileThereIsNoFile();
    void seesTheFileThatIsMadeLater();
    void doesNotWriteToAFileThatIsNotToBeMade();
    void followsAFileThatHasBeenReplaced();
    void doesNotMixAReplacedFileWithTheFormerLog();
    void neverUsesAKeyTwice();

    void knowsWhetherItsConnectionsAreTheSame();
    void leavesOpenConnectionsOutOfTheFingerprint();
    void tellsWhetherAnythingHasBeenWritten();
    void knowsWhatItsConnectionsAreOf();

    void removesTheConnectionsWithTheseKeys();
    void removesAllOrNone();
    void removingNothingRemovesNothing();
};

void StoreTest::theNamedStoreIsTheDefault()
{
    qputenv("NETINFO_STORE", "/somewhere/else.db");
    QCOMPARE(Store::defaultPath(), std::string("/somewhere/else.db"));
}

void StoreTest::theDefaultLiesInTheDataFolder()
{
    QCOMPARE(Store::defaultPath(),
             qgetenv("XDG_DATA_HOME").toStdString() + "/refdialer/connections.db");
}

void StoreTest::theDefaultLiesInTheHomeFolderWithoutADataFolder()
{
    const QByteArray dataFolder = qgetenv("XDG_DATA_HOME");
    const std::string expected =
        qgetenv("HOME").toStdString() + "/.local/share/refdialer/connections.db";
    qunsetenv("XDG_DATA_HOME");
    const std::string withoutFolder = Store::defaultPath();
    qputenv("XDG_DATA_HOME", "relative/folder");
    const std::string withRelativeFolder = Store::defaultPath();
    qputenv("XDG_DATA_HOME", dataFolder);
    QCOMPARE(withoutFolder, expected);
    QCOMPARE(withRelativeFolder, expected);
}

void StoreTest::keepsEveryFieldOfAConnection()
{
    Connection added;
    added.profile = "internet.\xC3\xA4\xF0\x9F\x93\xB6";
    added.startUtc = 1700000000;
    added.endUtc = 1700003600;
    added.connectedSeconds = 3599;
    added.uploadedBytes = 123456789012;
    added.downloadedBytes = 987654321098765;
    added.ending = "lost carrier";
    added.interfaceName = "wwan0";
    Store store = storeWith(m_path, {});
    const auto key = store.add(added);
    QVERIFY(key);

    const auto listed = store.list();
    QVERIFY(listed);
    QCOMPARE(listed.value().size(), std::size_t(1));
    const Connection &kept = listed.value().front();
    QCOMPARE(kept.key, key.value());
    QCOMPARE(kept.profile, added.profile);
    QCOMPARE(kept.startUtc, added.startUtc);
    QCOMPARE(kept.endUtc, added.endUtc);
    QCOMPARE(kept.connectedSeconds, added.connectedSeconds);
    QCOMPARE(kept.uploadedBytes, added.uploadedBytes);
    QCOMPARE(kept.downloadedBytes, added.downloadedBytes);
    QCOMPARE(kept.ending, added.ending);
    QCOMPARE(kept.interfaceName, added.interfaceName);
}

void StoreTest::listsByStartTimeThenByKey()
{
    const Store store =
        storeWith(m_path, {connection("late", 300, 310), connection("first", 100, 900),
                           connection("second", 100, 200), connection("early", 50, 60)});
    QCOMPARE(outcomeOf(store.list()), QString("early first second late"));
}

void StoreTest::findsItsRecordsAfterReopening()
{
    storeWith(m_path, numberedConnections(3));
    QCOMPARE(profilesIn(m_path), QString("0 1 2"));
}

void StoreTest::readsAsEmptyWhileThereIsNoFile()
{
    QCOMPARE(profilesIn(m_path), QString());
    QVERIFY(!QFile::exists(QString::fromStdString(m_path)));
}

void StoreTest::seesTheFileThatIsMadeLater()
{
    const auto reader = Store::openForReading(m_path);
    QVERIFY(reader);
    const Store writer = storeWith(m_path, numberedConnections(2));
    QCOMPARE(outcomeOf(reader.value().list()), QString("0 1"));
}

void StoreTest::doesNotWriteToAFileThatIsNotToBeMade()
{
    auto reader = Store::openForReading(m_path);
    QVERIFY(reader);
    QCOMPARE(outcomeOf(reader.value().add(connection("p", 1, 2))), QString("CannotOpen"));
    QCOMPARE(outcomeOf(reader.value().remove({1})), QString("NoSuchRecord"));
    QVERIFY(!QFile::exists(QString::fromStdString(m_path)));
}

void StoreTest::followsAFileThatHasBeenReplaced()
{
    const std::string copy = m_path + ".new";
    storeWith(copy, {connection("new", 1, 2)});
    storeWith(m_path, {connection("old", 1, 2)});
    Store store = storeWith(m_path, {});
    QCOMPARE(outcomeOf(store.list()), QString("old"));
    QCOMPARE(std::rename(copy.c_str(), m_path.c_str()), 0);
    QCOMPARE(outcomeOf(store.list()), QString("new"));
    QVERIFY(store.add(connection("newer", 3, 4)));
    QCOMPARE(profilesIn(m_path), QString("new newer"));
}

void StoreTest::doesNotMixAReplacedFileWithTheFormerLog()
{
    const std::string copy = m_path + ".new";
    storeWith(copy, {connection("new", 1, 2)});
    Store store = storeWith(m_path, {connection("old", 1, 2)});
    QCOMPARE(std::rename(copy.c_str(), m_path.c_str()), 0);
    for (int i = 0; i < 2; ++i) {
        const auto added = store.add(connection("newer", 3, 4));
        QCOMPARE(outcomeOf(added), QString("CannotOpen"));
        QVERIFY(QString::fromStdString(added.error().message).contains("connections.db-wal"));
    }
    QCOMPARE(std::remove((m_path + "-wal").c_str()), 0);
    QCOMPARE(outcomeOf(store.list()), QString("new"));
}

void StoreTest::neverUsesAKeyTwice()
{
    Store store = storeWith(m_path, {});
    const auto first = store.add(connection("first", 1, 2));
    QVERIFY(first);
    QVERIFY(store.remove({first.value()}));
    const auto second = store.add(connection("second", 1, 2));
    QVERIFY(second);
    QVERIFY(second.value() > first.value());
}

void StoreTest::knowsWhetherItsConnectionsAreTheSame()
{
    auto watching = Store::openForReading(m_path);
    const auto fingerprint = [&watching] { return watching.value().fingerprint().value(); };
    QCOMPARE(fingerprint(), std::uint64_t(0));
    auto writing = Store::openOrCreate(m_path);
    const auto first = writing.value().add(connection("first", 100, 100));
    const auto second = writing.value().add(connection("second", 200, 200));
    std::uint64_t expected = 0;
    const auto listed = watching.value().list();
    for (const Connection &stored : listed.value())
        expected += Store::fingerprintOf(stored);
    QCOMPARE(fingerprint(), expected);
    QCOMPARE(writing.value().fingerprint().value(), expected);

    runSql(m_path, "UPDATE connection SET uploaded_bytes = 1 WHERE profile = 'first'");
    QVERIFY(fingerprint() != expected);
    QVERIFY(writing.value().remove({first.value(), second.value()}));
    QCOMPARE(fingerprint(), std::uint64_t(0));
    QCOMPARE(writing.value().fingerprint().value(), std::uint64_t(0));
    // The same again is another connection.
    QVERIFY(writing.value().add(connection("first", 100, 100)));
    QVERIFY(writing.value().add(connection("second", 200, 200)));
    QVERIFY(fingerprint() != expected);
    QVERIFY(writing.value().fingerprint().value() == fingerprint());

    QVERIFY(QFile::remove(QString::fromStdString(m_path)));
    QCOMPARE(fingerprint(), std::uint64_t(0));
}

void StoreTest::leavesOpenConnectionsOutOfTheFingerprint()
{
    auto writing = Store::openOrCreate(m_path);
    QVERIFY(writing.value().add(connection("finished", 100, 100)));
    const auto watching = Store::openForReading(m_path);
    const std::uint64_t before = watching.value().fingerprint().value();
    history::OpenConnection open;
    open.bootId = "boot";
    auto begun = writing.value().begin(open).value();
    QCOMPARE(watching.value().fingerprint().value(), before);
    begun.uploadedBytes = 100;
    QVERIFY(writing.value().checkpoint(begun));
    QCOMPARE(watching.value().fingerprint().value(), before);
    QVERIFY(writing.value().finish(begun, connection("open", 200, 200)));
    QVERIFY(watching.value().fingerprint().value() != before);
}

void StoreTest::tellsWhetherAnythingHasBeenWritten()
{
    const auto watching = Store::openForReading(m_path);
    QCOMPARE(watching.value().revision().value(), std::uint64_t(0));
    std::uint64_t former = 0;
    const auto isNew = [&] {
        const std::uint64_t revision = watching.value().revision().value();
        return std::exchange(former, revision) != revision;
    };
    auto writing = Store::openOrCreate(m_path);
    QVERIFY(isNew());
    QVERIFY(!isNew());
    QVERIFY(writing.value().add(connection("finished", 100, 100)));
    QVERIFY(isNew());
    history::OpenConnection open;
    open.bootId = "boot";
    QVERIFY(writing.value().begin(open));
    QVERIFY(isNew());
    runSql(m_path, "INSERT INTO plan (name, covers, covered, network, counts, month_day) VALUES"
                   " ('plan', 'everything', '', 'both', 'both', 1)");
    QVERIFY(isNew());
    QVERIFY(!isNew());

    // What an own write changes is new as well, and so is another file.
    const std::uint64_t before = writing.value().revision().value();
    QVERIFY(writing.value().removePlan("plan").value());
    QVERIFY(writing.value().revision().value() != before);
    QVERIFY(isNew());
    QVERIFY(QFile::remove(QString::fromStdString(m_path)));
    QVERIFY(isNew());
    QCOMPARE(former, std::uint64_t(0));
}

void StoreTest::knowsWhatItsConnectionsAreOf()
{
    auto store = Store::openForReading(m_path);
    const auto overview = [&store] { return store.value().overview().value(); };
    QVERIFY(!overview().firstUtc);
    QVERIFY(overview().profiles.empty() && overview().sims.empty());
    QVERIFY(!overview().hasConnectionsWithoutSim);
    Connection withSim = connection("web", 300, 400);
    withSim.sim = "8949";
    storeWith(m_path, {withSim, connection("internet", 200, 300), connection("web", 400, 500)});
    QCOMPARE(overview().firstUtc.value(), std::int64_t(200));
    QCOMPARE(overview().profiles, std::vector<std::string>({"internet", "web"}));
    QCOMPARE(overview().sims, std::vector<std::string>({"8949"}));
    QVERIFY(overview().hasConnectionsWithoutSim);
    history::OpenConnection open;
    open.bootId = "boot";
    open.profile = "a new one";
    open.sim = "8948";
    open.startUtc = 100;
    QVERIFY(Store::openOrCreate(m_path).value().begin(open));
    QCOMPARE(overview().firstUtc.value(), std::int64_t(100));
    QCOMPARE(overview().profiles, std::vector<std::string>({"a new one", "internet", "web"}));
    QCOMPARE(overview().sims, std::vector<std::string>({"8948", "8949"}));
}

void StoreTest::removesTheConnectionsWithTheseKeys()
{
    Store store = storeWith(m_path, numberedConnections(5));
    const auto listed = store.list();
    QVERIFY(listed);
    const std::int64_t first = listed.value()[0].key;
    const std::int64_t fourth = listed.value()[3].key;
    QCOMPARE(outcomeOf(store.remove({fourth, first, fourth})), QString("2"));
    QCOMPARE(profilesIn(m_path), QString("1 2 4"));
}

void StoreTest::removesAllOrNone()
{
    Store store = storeWith(m_path, numberedConnections(3));
    const auto removed = store.remove({1, 77, 2});
    QCOMPARE(outcomeOf(removed), QString("NoSuchRecord"));
    QVERIFY(QString::fromStdString(removed.error().message).contains("77"));
    QCOMPARE(profilesIn(m_path), QString("0 1 2"));
}

void StoreTest::removingNothingRemovesNothing()
{
    Store store = storeWith(m_path, numberedConnections(2));
    QCOMPARE(outcomeOf(store.remove({})), QString("0"));
    QCOMPARE(profilesIn(m_path), QString("0 1"));
}

QTEST_GUILESS_MAIN(StoreTest)

#include "tst_store.moc"
