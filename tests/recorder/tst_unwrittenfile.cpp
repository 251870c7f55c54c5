// SPDX-License-Identifier: MIT
#include "recorder/ConnectionRecorder.h"

#include "FakeClock.h"
#include "FakeLinks.h"
#include "FakePorts.h"
#include "RecordText.h"
#include "StoreLock.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <optional>
#include <vector>

using history::Store;
using recorder::ConnectionRecorder;
using recorder::LinkNews;
using recorder::LinkReport;
using recorder::Problem;

namespace
{

std::vector<std::string> originsIn(const QByteArray &file)
{
    const QByteArray name = "\"origin\": \"";
    std::vector<std::string> origins;
    for (auto at = file.indexOf(name); at >= 0; at = file.indexOf(name, at + 1))
        origins.push_back(file.mid(at + name.size(), 36).toStdString());
    return origins;
}

/// A link leads nowhere.
bool make(unsigned type, const QByteArray &path)
{
    if (type == S_IFLNK)
        return symlink("nowhere", path.constData()) == 0;
    if (type == S_IFDIR)
        return mkdir(path.constData(), S_IRWXU) == 0;
    return mknod(path.constData(), type | S_IRUSR | S_IWUSR, 0) == 0;
}

} // namespace

/// What a recorder cannot write when it ends, and the next one takes over.
class UnwrittenFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void keepsWhatEndedWhileTheStoreWasLocked();
    void isOfItsUserAlone();
    void keepsWhatLasts();
    void keepsAConnectionThatCouldNotEvenBegin_data();
    void keepsAConnectionThatCouldNotEvenBegin();
    void keepsWhatIsStillInItForALaterStart();
    void isTakenOverOnceHoweverOftenItIsThere();
    void isTakenOverWhereItWasLeftOff();
    void letsWhatHadBeenLeftBeforeComeFirst_data();
    void letsWhatHadBeenLeftBeforeComeFirst();
    void leavesWhatOtherLinksHaveLeftAlone();
    void leavesAFileThatItCannotReadAlone_data();
    void leavesAFileThatItCannotReadAlone();
    void leavesWhatIsNoFileAlone_data();
    void leavesWhatIsNoFileAlone();
    void leavesAFileThatHasComeMeanwhileAlone();
    void saysSoWhereNothingCanBeKept();
    void isNotThereWhereNothingIsLeft();

private:
    void start(const std::vector<LinkNews> &links = {});
    void end();
    void lock() { m_lock.emplace(m_path); }
    void unlock() { m_lock.reset(); }
    QString filePath() const { return m_path + QStringLiteral("-unwritten"); }
    QString secondPath() const { return m_path + QStringLiteral("-unwritten-2"); }
    QByteArray file() const;
    void putFile(const QByteArray &text) { putFile(filePath(), text); }
    static void putFile(const QString &path, const QByteArray &text);
    void isKeptInTheSecondFile();
    void runSql(const std::string &sql);
    /// Leaves one connection of wwan0 and one of ppp0 in the file.
    void leaveTwo();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    FakeClock m_clock;
    FakeLinks *m_links = nullptr; ///< the recorder's
    std::optional<StoreLock> m_lock;
    std::unique_ptr<ConnectionRecorder> m_recorder;
    std::unique_ptr<QSignalSpy> m_failures;
};

void UnwrittenFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_clock = FakeClock();
    QVERIFY(Store::openOrCreate(m_path.toStdString()));
}

void UnwrittenFileTest::cleanup()
{
    unlock();
    m_recorder.reset();
    m_folder.reset();
}

void UnwrittenFileTest::start(const std::vector<LinkNews> &links)
{
    auto source = std::make_unique<FakeLinks>();
    m_links = source.get();
    m_links->atStart = links;
    m_recorder = std::make_unique<ConnectionRecorder>(m_path, QStringList(), std::move(source),
                                                      std::make_unique<FakePorts>(),
                                                      std::make_unique<FakeClock>(m_clock));
    m_failures = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::failed);
    QVERIFY(m_recorder->start());
}

void UnwrittenFileTest::end()
{
    m_recorder.reset();
    m_clock.pass(60000);
}

QByteArray UnwrittenFileTest::file() const
{
    QFile file(filePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void UnwrittenFileTest::putFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void UnwrittenFileTest::runSql(const std::string &sql)
{
    SQLite::Database(m_path.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
}

void UnwrittenFileTest::leaveTwo()
{
    start({runningLink(3, "wwan0", 1000, 2000), addressOn(3)});
    lock();
    m_links->tell(downLink(3, "wwan0", 1005, 2006));
    m_links->tell(runningLink(4, "ppp0", 0, 0));
    m_links->tell(addressOn(4));
    m_links->tell(goneLink(4, "ppp0", 7, 8));
    end();
    unlock();
}

void UnwrittenFileTest::keepsWhatEndedWhileTheStoreWasLocked()
{
    leaveTwo();
    QCOMPARE(recordsIn(m_path), QStringList());
    start({downLink(3, "wwan0", 1005, 2006)});
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 5 down 6 normal", "ppp0 up 7 down 8 normal"}));
    QVERIFY(openRowsIn(m_path).empty());
    QVERIFY(!QFile::exists(filePath()));
}

void UnwrittenFileTest::isOfItsUserAlone()
{
    leaveTwo();
    const auto permissions = QFileInfo(filePath()).permissions();
    QVERIFY(!(permissions & (QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                             QFileDevice::ReadOther | QFileDevice::WriteOther)));
}

void UnwrittenFileTest::keepsWhatLasts()
{
    start({runningLink(3, "wwan0", 1000, 2000), addressOn(3)});
    lock();
    m_links->toCome = {runningLink(3, "wwan0", 1005, 2006)};
    end();
    unlock();
    // Its line is lost before anybody looks again.
    LinkReport again = runningLink(3, "wwan0", 1007, 2009);
    again.carrierLosses = 1;
    start({again, addressOn(3)});
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 5 down 6 recovered", "wwan0 up 2 down 3 not watched"}));
}

void UnwrittenFileTest::keepsAConnectionThatCouldNotEvenBegin_data()
{
    QTest::addColumn<bool>("isAddressReplaced");
    QTest::newRow("with one address") << false;
    QTest::newRow("with one that another has replaced") << true;
}

void UnwrittenFileTest::keepsAConnectionThatCouldNotEvenBegin()
{
    QFETCH(bool, isAddressReplaced);
    start({downLink(3, "wwan0", 1000, 2000)});
    lock();
    m_links->tell(addressOn(3));
    m_links->tell(runningLink(3, "wwan0", 1000, 2000));
    recorder::AddressReport address = addressOn(3);
    if (isAddressReplaced) {
        address.address = "another address";
        address.createdAt = 101;
        m_links->tell(address);
        m_links->tell(addressGoneFrom(3));
    }
    m_links->toCome = {runningLink(3, "wwan0", 1005, 2006)};
    end();
    unlock();
    start({runningLink(3, "wwan0", 1007, 2009), address});
    m_links->tell(downLink(3, "wwan0", 1008, 2010));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 8 down 10 normal"));
}

void UnwrittenFileTest::keepsWhatIsStillInItForALaterStart()
{
    leaveTwo();
    lock();
    start({runningLink(3, "wwan0", 1005, 2006), addressOn(3)});
    m_links->tell(downLink(3, "wwan0", 1006, 2008));
    end();
    unlock();
    start({downLink(3, "wwan0", 1006, 2008)});
    QCOMPARE(recordsIn(m_path), QStringList({"wwan0 up 5 down 6 normal", "ppp0 up 7 down 8 normal",
                                             "wwan0 up 1 down 2 normal"}));
}

/// As where its recorder was killed before it could remove it, even if the user has
/// removed what came from it.
void UnwrittenFileTest::isTakenOverOnceHoweverOftenItIsThere()
{
    leaveTwo();
    const QByteArray text = file();
    start();
    end();
    QCOMPARE(recordsIn(m_path).size(), 2);
    runSql("DELETE FROM connection");
    putFile(text);
    for (const std::string &origin : originsIn(text))
        runSql("INSERT INTO taken_over VALUES ('" + origin + "')");
    start();
    QCOMPARE(recordsIn(m_path), QStringList());
    QVERIFY(openRowsIn(m_path).empty());
    QVERIFY(!QFile::exists(filePath()));
}

void UnwrittenFileTest::isTakenOverWhereItWasLeftOff()
{
    leaveTwo();
    const QByteArray text = file();
    const std::string origin = originsIn(text).front();
    auto store = Store::openOrCreate(m_path.toStdString());
    // The first of the two is in the store already.
    const auto row = store.value().listOpen().value().front();
    history::Connection taken;
    taken.interfaceName = "taken over";
    taken.startUtc = 1;
    QVERIFY(store.value().finish(row, taken, origin));
    start({downLink(3, "wwan0", 1005, 2006)});
    QVERIFY(recordsIn(m_path).contains(QStringLiteral("taken over up 0 down 0 normal")));
    QVERIFY(recordsIn(m_path).contains(QStringLiteral("ppp0 up 7 down 8 normal")));
    QVERIFY(!recordsIn(m_path).contains(QStringLiteral("wwan0 up 5 down 6 normal")));
    QCOMPARE(store.value().wasTakenOver(origin).value(), false);
}

void UnwrittenFileTest::letsWhatHadBeenLeftBeforeComeFirst_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isConnectedAnew");
    QTest::addColumn<QStringList>("records");
    QTest::newRow("another connection's bytes")
        << QStringLiteral("wwan0") << true
        << QStringList({"wwan0 up 5 down 6 recovered", "wwan0 up 10 down 20 not watched",
                        "wwan0 up 1 down 2 normal"});
    QTest::newRow("another connection's bytes, of a PPP interface")
        << QStringLiteral("ppp0") << true
        << QStringList({"ppp0 up 5 down 6 recovered", "ppp0 up 10 down 20 not watched",
                        "ppp0 up 1 down 2 normal"});
    QTest::newRow("the same connection's")
        << QStringLiteral("wwan0") << false << QStringList("wwan0 up 16 down 28 normal");
}

void UnwrittenFileTest::letsWhatHadBeenLeftBeforeComeFirst()
{
    QFETCH(QString, name);
    QFETCH(bool, isConnectedAnew);
    const std::string link = name.toStdString();
    start({runningLink(3, link, 0, 0), addressOn(3)});
    m_links->toCome = {runningLink(3, link, 5, 6)};
    end();
    lock();
    LinkReport again = runningLink(3, link, 15, 26);
    again.carrierLosses = isConnectedAnew ? 1 : 0;
    start({again, addressOn(3)});
    m_links->tell(goneLink(3, link, 16, 28));
    end();
    unlock();
    start();
    QTEST(recordsIn(m_path), "records");
    QVERIFY(openRowsIn(m_path).empty());
}

void UnwrittenFileTest::leavesWhatOtherLinksHaveLeftAlone()
{
    start(
        {runningLink(3, "wwan0", 0, 0), addressOn(3), runningLink(4, "wwan1", 0, 0), addressOn(4)});
    end();
    lock();
    LinkReport again = runningLink(3, "wwan0", 15, 26);
    again.carrierLosses = 1;
    start({again, addressOn(3)});
    m_links->tell(goneLink(3, "wwan0", 16, 28));
    end();
    unlock();
    start({runningLink(4, "wwan1", 7, 8), addressOn(4)});
    m_links->tell(goneLink(4, "wwan1", 9, 10));
    QVERIFY(recordsIn(m_path).contains(QStringLiteral("wwan0 up 1 down 2 normal")));
    QVERIFY(recordsIn(m_path).contains(QStringLiteral("wwan1 up 9 down 10 normal")));
}

void UnwrittenFileTest::leavesAFileThatItCannotReadAlone_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("another program's") << QByteArray() << QByteArray("notes");
    QTest::newRow("of a newer version") << QByteArray("unwritten 1") << QByteArray("unwritten 2");
    QTest::newRow("a changed number") << QByteArray("\"5\"") << QByteArray("\"4\"");
    QTest::newRow("its end is missing") << QByteArray("]\n") << QByteArray();
}

void UnwrittenFileTest::leavesAFileThatItCannotReadAlone()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    leaveTwo();
    QByteArray text = file();
    if (from.isEmpty())
        text = to;
    else
        text.replace(from, to);
    QVERIFY(from.isEmpty() || text != file());
    putFile(text);
    start();
    QTRY_COMPARE(m_failures->size(), 1);
    QCOMPARE(lastProblemSeenBy(*m_failures).kind, Problem::Kind::UnwrittenUnreadable);
    QCOMPARE(lastProblemSeenBy(*m_failures).path, filePath());
    QCOMPARE(lastProblemSeenBy(*m_failures).obstacle, Problem::Obstacle::Damaged);
    isKeptInTheSecondFile();
    QCOMPARE(file(), text);
}

/// What ends now is not lost for what stands in the place of the first one.
void UnwrittenFileTest::isKeptInTheSecondFile()
{
    m_links->tell(runningLink(5, "wwan1", 0, 0));
    m_links->tell(addressOn(5));
    lock();
    m_links->tell(goneLink(5, "wwan1", 8, 9));
    end();
    unlock();
    QVERIFY(QFile::exists(secondPath()));
    start();
    QVERIFY(recordsIn(m_path).contains(QStringLiteral("wwan1 up 8 down 9 normal")));
    QVERIFY(!QFile::exists(secondPath()));
}

void UnwrittenFileTest::leavesWhatIsNoFileAlone_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("a pipe") << unsigned{S_IFIFO};
    QTest::newRow("a folder") << unsigned{S_IFDIR};
    QTest::newRow("a link") << unsigned{S_IFLNK};
}

void UnwrittenFileTest::leavesWhatIsNoFileAlone()
{
    QFETCH(unsigned, type);
    QVERIFY(make(type, QFile::encodeName(filePath())));
    start();
    QTRY_COMPARE(m_failures->size(), 1);
    QCOMPARE(lastProblemSeenBy(*m_failures).kind, Problem::Kind::UnwrittenUnreadable);
    QCOMPARE(lastProblemSeenBy(*m_failures).obstacle, Problem::Obstacle::NotAFile);
    isKeptInTheSecondFile();
    QVERIFY(!QFileInfo(filePath()).isFile());
}

void UnwrittenFileTest::leavesAFileThatHasComeMeanwhileAlone()
{
    start();
    putFile("notes");
    isKeptInTheSecondFile();
    QCOMPARE(file(), QByteArray("notes"));
}

void UnwrittenFileTest::saysSoWhereNothingCanBeKept()
{
    putFile("notes");
    putFile(secondPath(), "more notes");
    start({runningLink(3, "wwan0", 0, 0), addressOn(3)});
    QTRY_COMPARE(m_failures->size(), 2);
    lock();
    m_links->tell(downLink(3, "wwan0", 5, 6));
    const auto loss = m_recorder->end();
    QVERIFY(loss);
    QCOMPARE(loss->kind, Problem::Kind::UnwrittenObstructed);
    QCOMPARE(loss->path, filePath());
    QCOMPARE(loss->otherPath, secondPath());
    QCOMPARE(file(), QByteArray("notes"));
}

void UnwrittenFileTest::isNotThereWhereNothingIsLeft()
{
    start({runningLink(3, "wwan0", 1000, 2000), addressOn(3)});
    end();
    QVERIFY(!QFile::exists(filePath()));
}

QTEST_GUILESS_MAIN(UnwrittenFileTest)

#include "tst_unwrittenfile.moc"
