// SPDX-License-Identifier: MIT
// What becomes of the file in the place of the store: made, taken as it is, or
// refused without a byte being changed.
#include "KoraStatistics.h"
#include "StoreSamples.h"
#include "history/Store.h"
#include "refhost/libsdk/KoraStatus.h"

#include <SQLiteCpp/Database.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

#include <functional>

using history::Connection;
using history::Store;

namespace
{

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return stat(qPrintable(path), &status) == 0 ? status.st_mode & 07777U : 0;
}

/// Sets the process's umask while it lives.
class Umask
{
public:
    explicit Umask(mode_t mask)
        : m_before(umask(mask))
    {
    }
    ~Umask() { umask(m_before); }
    Umask(const Umask &) = delete;
    Umask &operator=(const Umask &) = delete;

private:
    mode_t m_before;
};

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

void makeEmptyDatabase(const QString &path)
{
    runSql(path.toStdString(), "PRAGMA journal_mode = WAL");
}

void makeStore(const QString &path)
{
    storeWith(path.toStdString(), numberedConnections(300));
}

} // namespace

Q_DECLARE_METATYPE(Maker)

class StoreFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath("connections.db");
        qputenv("NETINFO_STORE", m_path.toLocal8Bit());
    }
    void cleanup()
    {
        qunsetenv("NETINFO_STORE");
        m_folder.reset();
    }

    void isPrivateWhateverTheUmask_data();
    void isPrivateWhateverTheUmask();
    void keepsTheModeOfAFolderThatIsThere();
    void takesTheAccessOfOthersAway();
    void writesAheadAndKeepsIntegers();
    void marksItsFile();
    void isWholeBeforeItsLog_data();
    void isWholeBeforeItsLog();
    void listsWithoutSorting();

    void takesANewFile_data();
    void takesANewFile();
    void leavesAnEmptyFileEmptyWhenOnlyReading();
    void followsALinkToTheFile();
    void refusesAndKeepsUntouched_data();
    void refusesAndKeepsUntouched();
    void saysWhatIsInTheStoresPlace_data();
    void saysWhatIsInTheStoresPlace();
    void refusesAPathThatIsNotUtf8();
    void refusesToWriteToAFileDamagedElsewhere();
    void keepsWhatACrashLeftInTheLog();
    void isLeftAloneOnceANewerProgramHasUpgradedIt();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void StoreFileTest::isPrivateWhateverTheUmask_data()
{
    QTest::addColumn<unsigned>("mask");
    QTest::newRow("one that takes nothing") << 0U;
    QTest::newRow("the usual one") << 0022U;
    QTest::newRow("one that takes everything from others") << 0077U;
    QTest::newRow("one that takes everything") << 0777U;
}

void StoreFileTest::isPrivateWhateverTheUmask()
{
    QFETCH(unsigned, mask);
    const Umask umask(mask);
    const QString outer = m_folder->filePath("outer");
    const QString inner = outer + "/inner";
    const QString path = inner + "/connections.db";
    const Store store = storeWith(path.toStdString(), numberedConnections(1));
    QCOMPARE(modeOf(outer), mode_t(0700));
    QCOMPARE(modeOf(inner), mode_t(0700));
    QCOMPARE(modeOf(path), mode_t(0600));
    QCOMPARE(modeOf(path + "-wal"), mode_t(0600));
    QCOMPARE(modeOf(path + "-shm"), mode_t(0600));
}

void StoreFileTest::keepsTheModeOfAFolderThatIsThere()
{
    const QString folder = m_folder->filePath("shared");
    QVERIFY(QDir().mkdir(folder));
    QCOMPARE(chmod(qPrintable(folder), 0750), 0);
    storeWith(folder.toStdString() + "/connections.db", {});
    QCOMPARE(modeOf(folder), mode_t(0750));
}

void StoreFileTest::takesTheAccessOfOthersAway()
{
    makeStore(m_path);
    QCOMPARE(chmod(qPrintable(m_path), 0664), 0);
    // A first program has opened it so, and SQLite has given the mode to its own files.
    SQLite::Database first(m_path.toStdString(), SQLite::OPEN_READWRITE);
    first.exec("DELETE FROM connection WHERE key = 1");
    const QString link = m_folder->filePath("link.db");
    QVERIFY(QFile::link(m_path, link));
    const auto store = Store::openOrCreate(link.toStdString());
    QVERIFY(store);
    for (const char *const suffix : {"", "-wal", "-shm"})
        QCOMPARE(modeOf(m_path + suffix), mode_t(0600));
}

void StoreFileTest::writesAheadAndKeepsIntegers()
{
    const Store store = storeWith(m_path.toStdString(), numberedConnections(1));
    SQLite::Database database(m_path.toStdString());
    QCOMPARE(database.execAndGet("PRAGMA journal_mode").getString(), std::string("wal"));
    QCOMPARE(database
                 .execAndGet("SELECT typeof(start_utc) || typeof(end_utc) ||"
                             " typeof(connected_seconds) || typeof(uploaded_bytes) ||"
                             " typeof(downloaded_bytes) FROM connection")
                 .getString(),
             std::string("integerintegerintegerintegerinteger"));
}

void StoreFileTest::marksItsFile()
{
    makeStore(m_path);
    const QByteArray contents = contentsOf(m_path);
    QCOMPARE(contents.mid(68, 4), QByteArray("RDCH"));
    QCOMPARE(contents.mid(60, 4), QByteArray("\0\0\0\5", 4));
}

void StoreFileTest::isWholeBeforeItsLog_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("no file at first") << Maker([](const QString &) {});
    QTest::newRow("an empty database that writes ahead at first") << Maker(makeEmptyDatabase);
}

void StoreFileTest::isWholeBeforeItsLog()
{
    QFETCH(Maker, make);
    make(m_path);
    const Store store = storeWith(m_path.toStdString(), {});
    // What a crash can leave of it: the file alone.
    const QString copy = m_folder->filePath("copy.db");
    QVERIFY(QFile::copy(m_path, copy));
    QCOMPARE(contentsOf(copy).mid(68, 4), QByteArray("RDCH"));
    storeWith(copy.toStdString(), {connection("kept", 1, 2)});
    QCOMPARE(profilesIn(copy.toStdString()), QString("kept"));
}

void StoreFileTest::listsWithoutSorting()
{
    makeStore(m_path);
    SQLite::Database database(m_path.toStdString());
    for (const char *const order : {"start_utc, key", "end_utc DESC, key DESC LIMIT 1"}) {
        SQLite::Statement plan(database, std::string("EXPLAIN QUERY PLAN SELECT * FROM connection "
                                                     "ORDER BY ") +
                                             order);
        QString steps;
        while (plan.executeStep())
            steps += QString::fromStdString(plan.getColumn(3).getString()) + '\n';
        QVERIFY2(steps.contains("USING INDEX"), qPrintable(steps));
        QVERIFY2(!steps.contains("TEMP B-TREE"), qPrintable(steps));
    }
}

void StoreFileTest::takesANewFile_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("an empty file") << Maker([](const QString &path) { writeFile(path, {}); });
    QTest::newRow("a database without tables")
        << Maker([](const QString &path) { runSql(path.toStdString(), "VACUUM"); });
    QTest::newRow("a database without tables that writes ahead") << Maker(makeEmptyDatabase);
}

void StoreFileTest::takesANewFile()
{
    QFETCH(Maker, make);
    make(m_path);
    storeWith(m_path.toStdString(), {connection("p", 1, 2)});
    QCOMPARE(profilesIn(m_path.toStdString()), QString("p"));
    QCOMPARE(contentsOf(m_path).mid(68, 4), QByteArray("RDCH"));
}

void StoreFileTest::leavesAnEmptyFileEmptyWhenOnlyReading()
{
    writeFile(m_path, {});
    QCOMPARE(profilesIn(m_path.toStdString()), QString());
    QCOMPARE(contentsOf(m_path), QByteArray());
}

void StoreFileTest::followsALinkToTheFile()
{
    makeStore(m_path);
    const QString link = m_folder->filePath("link.db");
    QVERIFY(QFile::link(m_path, link));
    storeWith(link.toStdString(), {connection("through the link", 1, 2)});
    QVERIFY(profilesIn(m_path.toStdString()).startsWith("through the link 0 1 2"));
}

void StoreFileTest::refusesAndKeepsUntouched_data()
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
    row("another program's database", "NotAStore", refhost::KoraNotAStore,
        [](const QString &path) { runSql(path.toStdString(), "CREATE TABLE notes (text)"); });
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
        makeStore(path);
        runSql(path.toStdString(), "PRAGMA user_version = 1000");
    });
    row("a store made newer just before a crash", "NewerStore", refhost::KoraNewerStore,
        [](const QString &path) {
            const std::string live = path.toStdString() + ".live";
            storeWith(live, numberedConnections(3));
            makeWithLog(path, "PRAGMA user_version = 1000");
        });
    row("a store without a version", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        makeStore(path);
        runSql(path.toStdString(), "PRAGMA user_version = 0");
    });
    row("a store with a page overwritten", "Damaged", refhost::KoraDamaged,
        [](const QString &path) {
            makeStore(path);
            replaceBytes(path, 4096, QByteArray(4096, '\x5a'));
        });
    row("a store cut in the middle", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        makeStore(path);
        QVERIFY(QFile::resize(path, QFileInfo(path).size() / 2 / 4096 * 4096));
    });
    row("a store without its table", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        makeStore(path);
        runSql(path.toStdString(), "ALTER TABLE connection RENAME TO elsewhere");
    });
    row("a store emptied beside its log", "Damaged", refhost::KoraDamaged, [](const QString &path) {
        writeFile(path, {});
        writeFile(path + "-wal", "records that were not yet in the file");
    });
}

void StoreFileTest::refusesAndKeepsUntouched()
{
    QFETCH(Maker, make);
    QFETCH(QString, kind);
    QFETCH(int, status);
    make(m_path);
    const auto before = snapshotOf(m_folder->path());

    QCOMPARE(profilesIn(m_path.toStdString()), kind);
    {
        auto store = Store::openOrCreate(m_path.toStdString());
        const history::StoreError error =
            store ? store.value().add(connection("p", 1, 2)).error() : store.error();
        const QString sentence = QString::fromStdString(error.message);
        QVERIFY2(sentence.contains('"' + m_path + '"'), qPrintable(sentence));
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
    qputenv("NETINFO_STORE", (m_path + ".none").toLocal8Bit());
    KORA_Statistics_GetAllConnRecord(&records, &count);
    QCOMPARE(snapshotOf(m_folder->path()), before);
}

void StoreFileTest::saysWhatIsInTheStoresPlace_data()
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
}

void StoreFileTest::saysWhatIsInTheStoresPlace()
{
    QFETCH(Maker, make);
    QFETCH(QString, what);
    make(m_path);
    const auto store = Store::openOrCreate(m_path.toStdString());
    QCOMPARE(outcomeOf(store), QString("NotAStore"));
    QCOMPARE(QString::fromStdString(store.error().message),
             QString("\"%1\" is not a connection history but %2; it was left as it is, move it "
                     "away or name another file.")
                 .arg(m_path, what));
}

void StoreFileTest::refusesAPathThatIsNotUtf8()
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

void StoreFileTest::refusesToWriteToAFileDamagedElsewhere()
{
    makeStore(m_path);
    // The last page belongs to an index that adding at this place does not read.
    replaceBytes(m_path, QFileInfo(m_path).size() - 4096, QByteArray(64, '\x7f'));
    const QByteArray before = contentsOf(m_path);
    {
        auto store = Store::openOrCreate(m_path.toStdString());
        QVERIFY(store);
        QCOMPARE(outcomeOf(store.value().add(connection("p", 1, 2))), QString("Damaged"));
        QCOMPARE(outcomeOf(store.value().remove({1})), QString("Damaged"));
    }
    QCOMPARE(contentsOf(m_path), before);
}

void StoreFileTest::keepsWhatACrashLeftInTheLog()
{
    const QString copy = m_folder->filePath("copy.db");
    {
        const Store store = storeWith(m_path.toStdString(), numberedConnections(3));
        QVERIFY(QFile::copy(m_path, copy));
        QVERIFY(QFile::copy(m_path + "-wal", copy + "-wal"));
    }
    QCOMPARE(profilesIn(copy.toStdString()), QString("0 1 2"));
}

void StoreFileTest::isLeftAloneOnceANewerProgramHasUpgradedIt()
{
    Store store = storeWith(m_path.toStdString(), numberedConnections(3));
    const auto open = store.begin({});
    QVERIFY(open);
    const std::string version = std::to_string(versionOf(m_path.toStdString()));
    runSql(m_path.toStdString(), "PRAGMA user_version = 1000");
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
    runSql(m_path.toStdString(), "PRAGMA user_version = " + version);
    QCOMPARE(profilesIn(m_path.toStdString()), QString("0 1 2"));
    QCOMPARE(store.listOpen().value().size(), std::size_t(1));
}

QTEST_GUILESS_MAIN(StoreFileTest)

#include "tst_storefile.moc"
