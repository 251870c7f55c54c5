// SPDX-License-Identifier: MIT
// A file in the place of the store that is none, or not one to be used: refused
// without a byte being changed.
#include "KoraStatistics.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "history/Store.h"
#include "history/StoreSchema.h"
#include "refhost/libsdk/KoraStatus.h"

#include <SQLiteCpp/Database.h>

#include <QDir>
#include <QTest>

#include <sys/stat.h>

#include <functional>

using history::Connection;
using history::Store;

namespace
{

/// Every file of a folder with its contents, but for SQLite's index of a log and
/// an empty log, which hold no data.
QMap<QString, QByteArray> snapshotOf(const QString &folder)
{
    QMap<QString, QByteArray> snapshot;
    for (const QString &name : QDir(folder).entryList(QDir::Files)) {
        const QByteArray contents = contentsOf(folder + '/' + name);
        if (!name.endsWith("-shm") && !(name.endsWith("-wal") && contents.isEmpty()))
            snapshot.insert(name, contents);
    }
    return snapshot;
}

void replaceBytes(const QString &path, qint64 offset, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(offset));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

using Maker = std::function<void(const QString &)>;

/// Copies a database and its log while they are in use, as a crash leaves them.
void makeWithLog(const QString &path, const char *sql)
{
    const std::string live = path.toStdString() + ".live";
    {
        SQLite::Database database(live, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        database.exec("PRAGMA journal_mode = WAL");
        database.exec(sql);
        QVERIFY(QFile::copy(QString::fromStdString(live), path));
        QVERIFY(QFile::copy(QString::fromStdString(live + "-wal"), path + "-wal"));
    }
    QVERIFY(QFile::remove(QString::fromStdString(live)));
}

} // namespace

Q_DECLARE_METATYPE(Maker)

class RefusedFileTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        StoreTestCase::init();
        qputenv("NETINFO_STORE", m_path.c_str());
    }
    void cleanup()
    {
        qunsetenv("NETINFO_STORE");
        StoreTestCase::cleanup();
    }

    void refusesAndKeepsUntouched_data();
    void refusesAndKeepsUntouched();
    void saysWhatIsInTheStoresPlace_data();
    void saysWhatIsInTheStoresPlace();
    void refusesAPathThatIsNotUtf8();
    void refusesToWriteToAFileDamagedElsewhere();
    void isLeftAloneOnceANewerProgramHasUpgradedIt();

private:
    QString file() const { return QString::fromStdString(m_path); }
};

void RefusedFileTest::refusesAndKeepsUntouched_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("status");

    const auto row = [](const char *name, const char *kind, int status, const Maker &make) {
        QTest::newRow(name) << make << QString(kind) << status;
    };
    row("a text file", "NotAStore", refhost::KoraNotAStore, [](const QString &path) {
        writeFile(path, "Dear diary, today I was online for three hours.\n");
    });
    row("a long text file", "NotAStore", refhost::KoraNotAStore,
        [](const QString &path) { writeFile(path, QByteArray(8192, 'x')); });
    row("a file of zeros", "NotAStore", refhost::KoraNotAStore,
        [](const QString &path) { writeFile(path, QByteArray(8192, '\0')); });
    row("a file of zeros beside an empty journal", "NotAStore", refhost::KoraNotAStore,
        [](const QString &path) {
            writeFile(path, QByteArray(8192, '\0'));
            writeFile(path + "-journal", {});
        });
    row("another program's database", "NotAStore", refhost::KoraNotAStore,
        [](const QString &path) { runSql(path.toStdString(), "CREATE TABLE notes (text)"); });
    // A number whose last byte is zero, as if there was none.
    row("another program's database of 256 views on a page", "NotAStore", refhost::KoraNotAStore,
        [](const QString &path) {
            std::string sql = "PRAGMA page_size = 65536; BEGIN;";
            for (int i = 0; i < 256; ++i)
                sql += "CREATE VIEW notes" + std::to_string(i) + " AS SELECT 1;";
            runSql(path.toStdString(), sql + "COMMIT");
        });
    row("another program's database with a mark", "NotAStore", refhost::KoraNotAStore,
        [](const QString &path) {
            runSql(path.toStdString(), "PRAGMA application_id = 77; PRAGMA user_version = 1");
        });
    row("another program's database without a mark but with a version", "NotAStore",
        refhost::KoraNotAStore,
        [](const QString &path) { runSql(path.toStdString(), "PRAGMA user_version = 1"); });
    row("another program's database after its crash", "NotAStore", refhost::KoraNotAStore,
        [](const QString &path) {
            makeWithLog(path, "CREATE TABLE notes (text); INSERT INTO notes VALUES ('mine')");
        });
    row("a newer store", "NewerStore", refhost::KoraNewerStore, [](const QString &path) {
        makeStore(path.toStdString());
        runSql(path.toStdString(), "PRAGMA user_version = 1000");
    });
    row("a store made newer just before a crash", "NewerStore", refhost::KoraNewerStore,
        [](const QString &path) {
            const std::string live = path.toStdString() + ".live";
            storeWith(live, numberedConnections(3));
            makeWithLog(path, "PRAGMA user_version = 1000");
        });
    row("a store's mark alone", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        runSql(path.toStdString(),
               "PRAGMA application_id = " + std::to_string(history::storeApplicationId));
    });
    row("a store without a version", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        makeStore(path.toStdString());
        runSql(path.toStdString(), "PRAGMA user_version = 0");
    });
    row("a store with a page overwritten", "Damaged", refhost::KoraDamaged,
        [](const QString &path) {
            makeStore(path.toStdString());
            replaceBytes(path, 4096, QByteArray(4096, '\x5a'));
        });
    row("a store cut in the middle", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        makeStore(path.toStdString());
        QVERIFY(QFile::resize(path, QFileInfo(path).size() / 2 / 4096 * 4096));
    });
    row("a store without its table", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        makeStore(path.toStdString());
        runSql(path.toStdString(), "ALTER TABLE connection RENAME TO elsewhere");
    });
    row("a store emptied beside its log", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        writeFile(path, {});
        writeFile(path + "-wal", "records that were not yet in the file");
    });
}

void RefusedFileTest::refusesAndKeepsUntouched()
{
    QFETCH(Maker, make);
    QFETCH(QString, kind);
    QFETCH(int, status);
    make(file());
    const auto before = snapshotOf(m_folder->path());

    QCOMPARE(profilesIn(m_path), kind);
    {
        auto store = Store::openOrCreate(m_path);
        const history::StoreError error =
            store ? store.value().add(connection("p", 1, 2)).error() : store.error();
        const QString sentence = QString::fromStdString(error.message);
        QVERIFY2(sentence.contains('"' + file() + '"'), qPrintable(sentence));
        QVERIFY2(sentence.contains("left as "), qPrintable(sentence));
        QCOMPARE(outcomeOf(history::Result<std::int64_t>(error)), kind);
    }
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = -1;
    QCOMPARE(KORA_Statistics_GetAllConnRecord(&records, &count), status);
    QCOMPARE(records, nullptr);
    QCOMPARE(count, 0);
    _KORA_ST_CONNRECORD last = {};
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&last), status);

    // Lets the four functions give up the file, which they otherwise keep open.
    qputenv("NETINFO_STORE", (file() + ".none").toLocal8Bit());
    KORA_Statistics_GetAllConnRecord(&records, &count);
    QCOMPARE(snapshotOf(m_folder->path()), before);
}

void RefusedFileTest::saysWhatIsInTheStoresPlace_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QString>("what");
    QTest::newRow("less than a header")
        << Maker([](const QString &path) { writeFile(path, "Dear diary"); }) << "some other file";
    QTest::newRow("more than a header")
        << Maker([](const QString &path) { writeFile(path, QByteArray(8192, 'x')); })
        << "some other file";
    QTest::newRow("another program's")
        << Maker([](auto &path) { runSql(path.toStdString(), "CREATE TABLE notes (text)"); })
        << "a database of another program";
    QTest::newRow("a pipe") << Maker([](const QString &path) {
        QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
    }) << "a device";
}

void RefusedFileTest::saysWhatIsInTheStoresPlace()
{
    QFETCH(Maker, make);
    QFETCH(QString, what);
    make(file());
    const auto store = Store::openOrCreate(m_path);
    QCOMPARE(outcomeOf(store), QString("NotAStore"));
    QCOMPARE(QString::fromStdString(store.error().message),
             QString("\"%1\" is not a connection history but %2; it was left as it is, move it "
                     "away or name another file.")
                 .arg(file(), what));
}

void RefusedFileTest::refusesAPathThatIsNotUtf8()
{
    const std::string path = m_folder->filePath("conn\xC3\xA4 ").toStdString() + "\xE4.db";
    for (const auto open : {Store::openForReading, Store::openOrCreate}) {
        const auto store = open(path);
        QCOMPARE(outcomeOf(store), QString("CannotOpen"));
        const QString shown = m_folder->filePath(QString::fromUtf8("conn\xC3\xA4 \xEF\xBF\xBD.db"));
        const QString sentence = QString::fromStdString(store.error().message);
        QVERIFY2(
            sentence.contains('"' + shown + "\" cannot be opened because its path is not UTF-8"),
            qPrintable(sentence));
    }
    qputenv("NETINFO_STORE", path.c_str());
    _KORA_ST_CONNRECORD last = {};
    QCOMPARE(KORA_Statistics_GetLastConnRecord(&last), int(refhost::KoraCannotOpen));
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void RefusedFileTest::refusesToWriteToAFileDamagedElsewhere()
{
    makeStore(m_path);
    // The last page belongs to an index that adding at this place does not read.
    replaceBytes(file(), QFileInfo(file()).size() - 4096, QByteArray(64, '\x7f'));
    const QByteArray before = contentsOf(file());
    {
        auto store = Store::openOrCreate(m_path);
        QVERIFY(store);
        QCOMPARE(outcomeOf(store.value().add(connection("p", 1, 2))), QString("Damaged"));
        QCOMPARE(outcomeOf(store.value().remove({1})), QString("Damaged"));
    }
    QCOMPARE(contentsOf(file()), before);
}

void RefusedFileTest::isLeftAloneOnceANewerProgramHasUpgradedIt()
{
    Store store = storeWith(m_path, numberedConnections(3));
    const auto open = store.begin({});
    QVERIFY(open);
    const std::string version = std::to_string(versionOf(m_path));
    runSql(m_path, "PRAGMA user_version = 1000");
    const Connection given = connection("p", 1, 2);
    QCOMPARE(outcomeOf(store.add(given)), QString("NewerStore"));
    QCOMPARE(outcomeOf(store.addMissing({given})), QString("NewerStore"));
    QCOMPARE(outcomeOf(store.remove({1})), QString("NewerStore"));
    QCOMPARE(outcomeOf(store.checkpoint(open.value())), QString("NewerStore"));
    QCOMPARE(outcomeOf(store.finish(open.value(), given)), QString("NewerStore"));
    QCOMPARE(outcomeOf(store.list()), QString("NewerStore"));
    history::OpenConnection another;
    another.bootId = "another";
    QVERIFY(!store.begin(another));
    runSql(m_path, "PRAGMA user_version = " + version);
    QCOMPARE(profilesIn(m_path), QString("0 1 2"));
    QCOMPARE(store.listOpen().value().size(), std::size_t(1));
}

QTEST_GUILESS_MAIN(RefusedFileTest)

#include "tst_refusedfile.moc"
