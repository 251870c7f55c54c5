// SPDX-License-Identifier: MIT
// A program that is killed leaves its log beside the store; what becomes of it when
// the file is another one by then, and that it is never lost when it is not.
#include "StorePeer.h"
#include "StoreSamples.h"
#include "history/Store.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <functional>
#include <memory>

using history::Store;

namespace
{

using Restorer = std::function<void(const QString &backup, const QString &path)>;

constexpr int pageSize = 4096;

/// Where the table begins in the store; 1 for what is no table.
int firstPageOf(const QString &table, const QString &path)
{
    const SQLite::Database database(path.toStdString());
    SQLite::Statement pages(database, "SELECT rootpage FROM sqlite_schema WHERE name = ?"
                                      " UNION ALL SELECT 1");
    pages.bind(1, table.toStdString());
    return pages.executeStep() ? pages.getColumn(0).getInt() : 0;
}

/// What the first change in the log makes of the page.
QByteArray loggedPage(const QByteArray &log, int page)
{
    int frame = 32;
    while (frame < log.size() && log.at(frame + 3) != page)
        frame += 24 + pageSize;
    return log.mid(frame + 24, pageSize);
}

/// The log with another byte in each page.
QByteArray withOtherPages(QByteArray log)
{
    constexpr int place = 100;
    for (int frame = 32; frame + 24 + place < log.size(); frame += 24 + pageSize)
        log[frame + 24 + place] = char(log.at(frame + 24 + place) ^ 1);
    return log;
}

void copyOver(const QString &from, const QString &to)
{
    writeFile(to, contentsOf(from));
}

void setWrittenLongAgo(const QString &path)
{
    const std::array<timespec, 2> times = {timespec{1000000000, 0}, timespec{1000000000, 0}};
    QCOMPARE(utimensat(AT_FDCWD, qPrintable(path), times.data(), 0), 0);
}

} // namespace

Q_DECLARE_METATYPE(Restorer)

class RestoredBackupTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath("connections.db");
        m_log = m_path + "-wal";
        m_backup = m_folder->filePath("backup.db");
    }
    void cleanup() { m_folder.reset(); }

    void aLogOfAFormerFileIsNotPlayed_data();
    void aLogOfAFormerFileIsNotPlayed();
    void aLogThatLeftAPageAsItWasIsNotPlayed();
    void aLogIsPlayedIntoItsFile_data();
    void aLogIsPlayedIntoItsFile();
    void aLogIsPlayedOnWhereItWasInterrupted_data();
    void aLogIsPlayedOnWhereItWasInterrupted();
    void aLogThatAnotherProgramHasPlayedIsNoObstacle();
    void onlyWholeChangesOfALogCount_data();
    void onlyWholeChangesOfALogCount();
    void aLogIsPlayedWhereAPowerCutHasTakenTimesBack();
    void aLogThatTheUserVouchesForIsPlayed();

private:
    /// A whole connection of a recorder, whose key will be `key`.
    void record(StorePeer &peer, int key, int start)
    {
        QCOMPARE(peer.tell(QString("begin %1 %2").arg(m_path).arg(start)),
                 QString("ok %1").arg(key));
        QCOMPARE(peer.tell(QString("checkpoint %1 %2 500").arg(m_path).arg(key)),
                 QString("ok %1").arg(key));
        QVERIFY(
            peer.tell(QString("finish %1 %2 %3").arg(m_path).arg(key).arg(start)).startsWith("ok"));
    }

    /// Files that are written in one tick of the clock have the same time.
    void awaitTimeAfterTheLog()
    {
        const QString probe = m_folder->filePath("probe");
        const auto isLater = [&] {
            writeFile(probe, "now");
            return QFileInfo(probe).lastModified() > QFileInfo(m_log).lastModified();
        };
        QTRY_VERIFY(isLater());
    }

    void checkThatTheLogIsRefused();

    /// Makes a store, keeps a copy of it, and leaves it with a log in which there are
    /// `count` connections more.
    void leaveALog(int count)
    {
        storeWith(m_path.toStdString(), {connection("kept", 10000000, 10000001)});
        copyOver(m_path, m_backup);
        StorePeer peer;
        QCOMPARE(peer.tell(QString("hold %1 %2").arg(m_path).arg(count)),
                 QString("ok %1").arg(count));
        peer.kill();
        QVERIFY(QFileInfo(m_log).size() > 0);
        awaitTimeAfterTheLog();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    QString m_log;
    QString m_backup;
};

void RestoredBackupTest::aLogOfAFormerFileIsNotPlayed_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Restorer>("restore");
    const Restorer renamed = [](const QString &backup, const QString &path) {
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::copy(backup, backup + ".copy"));
        QVERIFY(QFile::rename(backup + ".copy", path));
    };
    const Restorer aged = [](const QString &backup, const QString &path) {
        copyOver(backup, path);
        setWrittenLongAgo(path);
    };
    // With the log, it is no database any more.
    const Restorer compacted = [](const QString &backup, const QString &path) {
        runSql(backup.toStdString(), "VACUUM");
        copyOver(backup, path);
    };
    QTest::newRow("a backup copied over it") << 2 << Restorer(copyOver);
    QTest::newRow("a backup in its place") << 2 << renamed;
    QTest::newRow("a backup with its old time") << 2 << aged;
    QTest::newRow("a backup that was compacted") << 2 << compacted;
    // So much that the log was played into the former file, too.
    QTest::newRow("a backup copied over a larger file") << 20000 << Restorer(copyOver);
}

void RestoredBackupTest::checkThatTheLogIsRefused()
{
    const QByteArray log = contentsOf(m_log);

    for (const auto open : {Store::openForReading, Store::openForRecording}) {
        const auto store = open(m_path.toStdString());
        QCOMPARE(outcomeOf(store), QString("CannotOpen"));
        const QString sentence = QString::fromStdString(store.error().message);
        QVERIFY2(sentence.contains('"' + m_log + '"'), qPrintable(sentence));
        QVERIFY2(sentence.contains("move the log away"), qPrintable(sentence));
        QVERIFY2(sentence.contains("touch the log"), qPrintable(sentence));
    }
    QCOMPARE(contentsOf(m_path), contentsOf(m_backup));
    QCOMPARE(contentsOf(m_log), log);
}

void RestoredBackupTest::aLogOfAFormerFileIsNotPlayed()
{
    QFETCH(int, count);
    QFETCH(Restorer, restore);
    leaveALog(count);
    restore(m_backup, m_path);
    checkThatTheLogIsRefused();
    QVERIFY(QFile::rename(m_log, m_log + ".former"));
    QCOMPARE(profilesIn(m_path.toStdString()), QString("kept"));
}

/// An open connection that comes and goes leaves its page with the same bytes as the
/// one before has left.
void RestoredBackupTest::aLogThatLeftAPageAsItWasIsNotPlayed()
{
    storeWith(m_path.toStdString(), {connection("kept", 10000000, 10000001)});
    StorePeer recorder;
    record(recorder, 1, 1000);
    copyOver(m_path, m_backup);
    QCOMPARE(recorder.tell("hold " + m_path + " 0"), QString("ok 0"));
    record(recorder, 2, 2000);
    recorder.kill();
    awaitTimeAfterTheLog();
    copyOver(m_backup, m_path);
    checkThatTheLogIsRefused();
}

void RestoredBackupTest::aLogIsPlayedIntoItsFile_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Restorer>("change");
    const Restorer none = [](const QString &, const QString &) {};
    QTest::newRow("nothing was changed") << 2 << none;
    QTest::newRow("it was large enough to be played in part") << 20000 << none;
    QTest::newRow("the file has another mode") << 2 << Restorer([](auto &, const QString &path) {
        QCOMPARE(chmod(qPrintable(path), 0640), 0);
    });
    QTest::newRow("both were copied back") << 2 << Restorer([](auto &, const QString &path) {
        const QByteArray log = contentsOf(path + "-wal");
        copyOver(path, path);
        writeFile(path + "-wal", log);
    });
    QTest::newRow("both were copied into the place") << 2 << Restorer([](auto &, auto &path) {
        for (const QString &each : {path + "-wal", path}) {
            QVERIFY(QFile::copy(each, each + ".copy"));
            QVERIFY(QFile::remove(each));
            QVERIFY(QFile::rename(each + ".copy", each));
        }
    });
    // Archives keep whole seconds, and the copies may be given the numbers of the originals.
    QTest::newRow("both were put back with their old times")
        << 2 << Restorer([](auto &, const QString &path) {
               setWrittenLongAgo(path);
               setWrittenLongAgo(path + "-wal");
           });
}

void RestoredBackupTest::aLogIsPlayedIntoItsFile()
{
    QFETCH(int, count);
    QFETCH(Restorer, change);
    leaveALog(count);
    change(m_backup, m_path);
    const QString profiles = profilesIn(m_path.toStdString());
    QCOMPARE(profiles.count("peer"), count);
    QVERIFY(profiles.endsWith(" kept"));
}

void RestoredBackupTest::aLogIsPlayedOnWhereItWasInterrupted_data()
{
    QTest::addColumn<QString>("table");
    QTest::newRow("at its first page") << "sqlite_schema";
    // A power cut may leave any page that was written.
    QTest::newRow("at the page that says which file the log is for") << "log_base";
}

void RestoredBackupTest::aLogIsPlayedOnWhereItWasInterrupted()
{
    QFETCH(QString, table);
    leaveALog(2);
    const int page = firstPageOf(table, m_backup);
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek((page - 1) * pageSize));
    QCOMPARE(file.write(loggedPage(contentsOf(m_log), page)), qint64(pageSize));
    file.close();
    QCOMPARE(profilesIn(m_path.toStdString()), QString("peer peer kept"));
}

/// What it writes itself does not say which file it is for.
void RestoredBackupTest::aLogThatAnotherProgramHasPlayedIsNoObstacle()
{
    storeWith(m_path.toStdString(), {connection("kept", 10000000, 10000001)});
    StorePeer peer;
    QCOMPARE(peer.tell("hold " + m_path + " 2"), QString("ok 2"));
    runSql(m_path.toStdString(), "PRAGMA wal_checkpoint; UPDATE connection SET profile = 'changed';"
                                 "PRAGMA wal_checkpoint");
    peer.kill();
    QVERIFY(QFileInfo(m_log).size() > 0);
    QCOMPARE(profilesIn(m_path.toStdString()), QString("changed changed changed"));
}

void RestoredBackupTest::onlyWholeChangesOfALogCount_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("profiles");
    constexpr int whole = 1 << 30;
    const QString kept = "peer kept";
    QTest::newRow("it is whole") << whole << 0 << QByteArray() << "CannotOpen";
    QTest::newRow("it ends within its header") << 20 << 0 << QByteArray() << kept;
    QTest::newRow("its pages have no size") << whole << 8 << QByteArray(4, '\0') << kept;
    QTest::newRow("its pages are larger than any") << whole << 8 << QByteArray(4, '\x7f') << kept;
    QTest::newRow("it ends within the head of a change") << 40 << 0 << QByteArray() << kept;
    QTest::newRow("it ends within a change") << -10 << 0 << QByteArray() << kept;
    QTest::newRow("its changes are those of an earlier one")
        << whole << 16 << QByteArray(8, 'x') << kept;
}

/// What it holds is another file's: this one's own changes are in the file already, which
/// another program has written since.
void RestoredBackupTest::onlyWholeChangesOfALogCount()
{
    QFETCH(int, size);
    QFETCH(int, offset);
    QFETCH(QByteArray, bytes);
    storeWith(m_path.toStdString(), {connection("kept", 10000000, 10000001)});
    StorePeer peer;
    QCOMPARE(peer.tell("hold " + m_path + " 1"), QString("ok 1"));
    runSql(m_path.toStdString(), "PRAGMA wal_checkpoint");
    peer.kill();
    const QByteArray log = withOtherPages(contentsOf(m_log));
    writeFile(
        m_log,
        log.left(size < 0 ? int(log.size()) + size : size).replace(offset, bytes.size(), bytes));
    awaitTimeAfterTheLog();
    copyOver(m_path, m_path);
    QTEST(profilesIn(m_path.toStdString()), "profiles");
}

void RestoredBackupTest::aLogIsPlayedWhereAPowerCutHasTakenTimesBack()
{
    storeWith(m_path.toStdString(), {connection("kept", 10000000, 10000001)});
    StorePeer peer;
    QCOMPARE(peer.tell("hold " + m_path + " 2"), QString("ok 2"));
    // Times on the disk that are older than the one in the log.
    runSql(m_path.toStdString(),
           "UPDATE log_base SET file_written_ns = file_written_ns + 3600 * 1000000000");
    peer.kill();
    setWrittenLongAgo(m_path);
    QCOMPARE(profilesIn(m_path.toStdString()), QString("peer peer kept"));
}

void RestoredBackupTest::aLogThatTheUserVouchesForIsPlayed()
{
    leaveALog(2);
    setWrittenLongAgo(m_path);
    checkThatTheLogIsRefused();
    QCOMPARE(utimensat(AT_FDCWD, qPrintable(m_log), nullptr, 0), 0);
    QCOMPARE(profilesIn(m_path.toStdString()), QString("peer peer kept"));
}

QTEST_GUILESS_MAIN(RestoredBackupTest)

#include "tst_restoredbackup.moc"
