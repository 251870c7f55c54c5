// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <QTest>

#include <pwd.h>
#include <unistd.h>

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
    void theDefaultLiesInTheUsersFolderWithoutAnEnvironment();
    void keepsEveryFieldOfAConnection();
    void listsByStartTimeThenByKey();
    void findsItsRecordsAfterReopening();
    void readsAsEmptyWhileThereIsNoFile();
    void seesTheFileThatIsMadeLater();
    void doesNotWriteToAFileThatIsNotToBeMade();
    void followsAFileThatHasBeenReplaced();
    void doesNotMixAReplacedFileWithTheFormerLog();
    void neverUsesAKeyTwice();

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

void StoreTest::theDefaultLiesInTheUsersFolderWithoutAnEnvironment()
{
    const QByteArray dataFolder = qgetenv("XDG_DATA_HOME");
    const QByteArray home = qgetenv("HOME");
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("HOME");
    const std::string path = Store::defaultPath();
    qputenv("XDG_DATA_HOME", dataFolder);
    qputenv("HOME", home);
    QCOMPARE(path,
             getpwuid(getuid())->pw_dir + std::string("/.local/share/refdialer/connections.db"));
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
