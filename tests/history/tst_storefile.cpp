// SPDX-License-Identifier: MIT
// The file in the place of the store: made, or taken as it is.
#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "history/Store.h"
#include "history/StoreSchema.h"

#include <SQLiteCpp/Database.h>

#include <QDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <functional>

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

using Maker = std::function<void(const QString &)>;

void makeEmptyDatabase(const QString &path)
{
    runSql(path.toStdString(), "PRAGMA journal_mode = WAL");
}

} // namespace

Q_DECLARE_METATYPE(Maker)

class StoreFileTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void isPrivateWhateverTheUmask_data();
    void isPrivateWhateverTheUmask();
    void keepsTheModeOfAFolderThatIsThere();
    void takesTheAccessOfOthersAway();
    void leavesAFileOfSomebodyElseItsAccess();
    void writesAheadAndKeepsIntegers();
    void marksItsFile();
    void isWholeBeforeItsLog_data();
    void isWholeBeforeItsLog();
    void listsWithoutSorting();

    void takesANewFile_data();
    void takesANewFile();
    void leavesAnEmptyFileEmptyWhenOnlyReading();
    void followsALinkToTheFile();
    void refusesALinkThatLeadsNowhere();
    void takesAnyNameForAName_data();
    void takesAnyNameForAName();
    void keepsWhatACrashLeftInTheLog();
    void makesAnewWhatAPowerCutLeftHalfMade();

private:
    QString file() const { return QString::fromStdString(m_path); }
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
    QCOMPARE(chmod(qPrintable(file()), 0664), 0);
    // A first program has opened it so, and SQLite has given the mode to its own files.
    SQLite::Database first(m_path, SQLite::OPEN_READWRITE);
    first.exec("DELETE FROM connection WHERE key = 1");
    const QString link = m_folder->filePath("link.db");
    QVERIFY(QFile::link(file(), link));
    const auto store = Store::openOrCreate(link.toStdString());
    QVERIFY(store);
    for (const char *const suffix : {"", "-wal", "-shm"})
        QCOMPARE(modeOf(file() + suffix), mode_t(0600));
}

void StoreFileTest::leavesAFileOfSomebodyElseItsAccess()
{
    if (geteuid() != 0)
        QSKIP("only root can give a file away", "");
    makeStore(m_path);
    constexpr uid_t somebody = 65534;
    QCOMPARE(chown(m_path.c_str(), somebody, somebody), 0);
    QCOMPARE(chmod(m_path.c_str(), 0664), 0);
    QVERIFY(Store::openOrCreate(m_path));
    QCOMPARE(modeOf(file()), mode_t(0664));
}

void StoreFileTest::writesAheadAndKeepsIntegers()
{
    const Store store = storeWith(m_path, numberedConnections(1));
    SQLite::Database database(m_path);
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
    const QByteArray contents = contentsOf(file());
    QCOMPARE(contents.mid(68, 4), QByteArray("RDCH"));
    const auto version = static_cast<char>(history::storeSchema().size());
    QCOMPARE(contents.mid(60, 4), QByteArray(3, '\0') + version);
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
    make(file());
    const Store store = storeWith(m_path, {});
    // What a crash can leave of it: the file alone.
    const QString copy = m_folder->filePath("copy.db");
    QVERIFY(QFile::copy(file(), copy));
    QCOMPARE(contentsOf(copy).mid(68, 4), QByteArray("RDCH"));
    storeWith(copy.toStdString(), {connection("kept", 1, 2)});
    QCOMPARE(profilesIn(copy.toStdString()), QString("kept"));
}

void StoreFileTest::listsWithoutSorting()
{
    makeStore(m_path);
    SQLite::Database database(m_path);
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
    make(file());
    storeWith(m_path, {connection("p", 1, 2)});
    QCOMPARE(profilesIn(m_path), QString("p"));
    QCOMPARE(contentsOf(file()).mid(68, 4), QByteArray("RDCH"));
}

void StoreFileTest::leavesAnEmptyFileEmptyWhenOnlyReading()
{
    writeFile(file(), {});
    QCOMPARE(profilesIn(m_path), QString());
    QCOMPARE(contentsOf(file()), QByteArray());
}

void StoreFileTest::followsALinkToTheFile()
{
    makeStore(m_path);
    const QString link = m_folder->filePath("link.db");
    QVERIFY(QFile::link(file(), link));
    storeWith(link.toStdString(), {connection("through the link", 1, 2)});
    QVERIFY(profilesIn(m_path).startsWith("through the link 0 1 2"));
}

void StoreFileTest::refusesALinkThatLeadsNowhere()
{
    QVERIFY(QFile::link(m_folder->filePath("gone.db"), file()));
    const auto store = Store::openOrCreate(m_path);
    QCOMPARE(outcomeOf(store), QString("CannotOpen"));
    const QString sentence = QString::fromStdString(store.error().message);
    QVERIFY2(sentence.contains("No such file or directory"), qPrintable(sentence));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::System),
             QStringList("connections.db"));
}

void StoreFileTest::takesAnyNameForAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("what SQLite reads as a parameter") << "mobile?mode=memory";
    QTest::newRow("what ends a name there") << "mobile#1";
    QTest::newRow("what stands for a letter there") << "mobile%41";
    QTest::newRow("a blank and a letter of two bytes") << QString::fromUtf8("mob\xC3\xAEle 1");
}

void StoreFileTest::takesAnyNameForAName()
{
    QFETCH(QString, name);
    const QString path = m_folder->filePath(name);
    storeWith(path.toStdString(), {connection("kept", 1, 2)});
    QCOMPARE(profilesIn(path.toStdString()), QString("kept"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(name));
}

void StoreFileTest::keepsWhatACrashLeftInTheLog()
{
    const QString copy = m_folder->filePath("copy.db");
    {
        const Store store = storeWith(m_path, numberedConnections(3));
        QVERIFY(QFile::copy(file(), copy));
        QVERIFY(QFile::copy(file() + "-wal", copy + "-wal"));
    }
    QCOMPARE(profilesIn(copy.toStdString()), QString("0 1 2"));
}

/// The journal is on the disk before the file is written, whose sectors get there in any
/// order.
void StoreFileTest::makesAnewWhatAPowerCutLeftHalfMade()
{
    writeFile(file(), QByteArray(512, '\0') + QByteArray(7680, 'x'));
    const QByteArray journalOfAnEmptyFile =
        QByteArray::fromHex("d9d505f920a163d7" // its mark
                            "00000000"         // no page is to be put back
                            "00000000"
                            "00000000"   // the file had none
                            "00000200"   // bytes of a sector, to the end of which it has zeros
                            "00001000"); // bytes of a page
    writeFile(file() + "-journal",
              journalOfAnEmptyFile + QByteArray(512 - journalOfAnEmptyFile.size(), '\0'));
    storeWith(m_path, {connection("new", 1, 2)});
    QCOMPARE(profilesIn(m_path), QString("new"));
}

QTEST_GUILESS_MAIN(StoreFileTest)

#include "tst_storefile.moc"
