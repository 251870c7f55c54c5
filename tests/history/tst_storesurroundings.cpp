// SPDX-License-Identifier: MIT
// What the disk, the permissions and other processes can do to a store.
#include "StorePeer.h"
#include "StoreSamples.h"
#include "history/Store.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <initializer_list>

using history::Store;

namespace
{

/// Whether an answer is an error of this kind whose sentence has all of `parts`.
bool isFailure(const QString &answer, const QString &kind, std::initializer_list<QString> parts)
{
    bool isAsExpected = answer.startsWith("failed " + kind + ' ');
    for (const QString &part : parts)
        isAsExpected = isAsExpected && answer.contains(part);
    if (!isAsExpected)
        qWarning("the answer is: %s", qPrintable(answer));
    return isAsExpected;
}

} // namespace

class StoreSurroundingsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        // Other users may pass through, so that only the tested folder stops them.
        QCOMPARE(chmod(qPrintable(m_folder->path()), 0711), 0);
        m_place = m_folder->filePath("place");
        QVERIFY(QDir().mkdir(m_place));
        m_path = m_place + "/connections.db";
    }
    void cleanup()
    {
        chmod(qPrintable(m_place), 0700);
        m_folder.reset();
    }

    void aFolderThatMayNotBeReadIsAnError();
    void aFolderThatMayNotBeWrittenIsAnError();
    void aStoreThatMayNotBeWrittenIsRead();
    void aStoreThatMayNotBeWrittenFollowsTheOneWhoMay();
    void aLogThatMayNotBeWrittenIsRead_data();
    void aLogThatMayNotBeWrittenIsRead();
    void aFileThatMayNotBeReadIsAnError();
    void aFolderBelowAFileIsAnError();
    void aFolderIsNoStore();
    void aReadOnlyDiskIsReadAndNotWritten();
    void aFullDiskLosesNothing();
    void aFullDiskTakesNoNewStore();
    void anOpenConnectionOutlastsAFullDisk();
    void aFullDiskKeepsWhatIsToBeRemoved();
    void aLockedStoreIsAnErrorUntilItIsReleased();
    void manyProcessesMakeTheSameStoreAtOnce();
    void twoStoresOfOneProcessShareTheFile();

private:
    /// A peer that the permissions bind, whoever runs the tests.
    std::unique_ptr<StorePeer> boundPeer() const
    {
        auto peer = std::make_unique<StorePeer>();
        if (geteuid() == 0 && peer->tell("become-nobody") != "ok")
            return nullptr;
        return peer;
    }

    /// Gives the peer a small disk of its own, or skips the test.
    bool mountsSmallDisk(StorePeer &peer) const
    {
        const QString answer = peer.tell("mount-small-disk " + m_place);
        if (answer != "ok")
            QTest::qSkip(qPrintable("no disk of memory can be mounted: " + answer), __FILE__,
                         __LINE__);
        return answer == "ok";
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_place;
    QString m_path;
};

void StoreSurroundingsTest::aFolderThatMayNotBeReadIsAnError()
{
    storeWith(m_path.toStdString(), numberedConnections(1));
    const QByteArray before = contentsOf(m_path);
    QCOMPARE(chmod(qPrintable(m_place), 0), 0);
    const auto peer = boundPeer();
    QVERIFY(peer);
    for (const char *const command : {"count %1", "add %1 7"})
        QVERIFY(isFailure(peer->tell(QString(command).arg(m_path)), "CannotOpen",
                          {m_path, "Permission denied", "check "}));
    QCOMPARE(chmod(qPrintable(m_place), 0700), 0);
    QCOMPARE(contentsOf(m_path), before);
}

void StoreSurroundingsTest::aFolderThatMayNotBeWrittenIsAnError()
{
    QCOMPARE(chmod(qPrintable(m_place), 0555), 0);
    const auto peer = boundPeer();
    QVERIFY(peer);
    QVERIFY(
        isFailure(peer->tell("add " + m_path + " 7"), "CannotOpen", {m_path, "Permission denied"}));
    const QString folder = m_place + "/folder";
    QVERIFY(isFailure(peer->tell("add " + folder + "/connections.db 7"), "CannotOpen",
                      {folder + '"', "Permission denied"}));
    QCOMPARE(peer->tell("count " + m_path), QString("ok 0"));
    QVERIFY(!QFile::exists(m_path));
}

void StoreSurroundingsTest::aStoreThatMayNotBeWrittenIsRead()
{
    storeWith(m_path.toStdString(), numberedConnections(2));
    QCOMPARE(chmod(qPrintable(m_path), 0444), 0);
    QCOMPARE(chmod(qPrintable(m_place), 0555), 0);
    const auto peer = boundPeer();
    QVERIFY(peer);
    QCOMPARE(peer->tell("count " + m_path), QString("ok 2"));
    QVERIFY(
        isFailure(peer->tell("add " + m_path + " 7"), "CannotOpen", {m_path, "Permission denied"}));
    QCOMPARE(QDir(m_place).entryList(QDir::Files), QStringList{"connections.db"});
}

void StoreSurroundingsTest::aStoreThatMayNotBeWrittenFollowsTheOneWhoMay()
{
    storeWith(m_path.toStdString(), numberedConnections(2));
    QCOMPARE(chmod(qPrintable(m_path), 0444), 0);
    QCOMPARE(chmod(qPrintable(m_place), 0555), 0);
    qputenv("NETINFO_STORE", m_path.toUtf8()); // for the new process
    const auto peer = boundPeer();
    qunsetenv("NETINFO_STORE");
    QVERIFY(peer);
    QCOMPARE(peer->tell("list"), QString("ok 2"));
    QCOMPARE(chmod(qPrintable(m_path), 0644), 0);
    QCOMPARE(chmod(qPrintable(m_place), 0755), 0);
    storeWith(m_path.toStdString(), numberedConnections(1));
    QCOMPARE(chmod(qPrintable(m_path), 0644), 0); // others may read it for once
    QCOMPARE(peer->tell("list"), QString("ok 3"));
}

void StoreSurroundingsTest::aLogThatMayNotBeWrittenIsRead_data()
{
    QTest::addColumn<bool>("hasIndex");
    QTest::newRow("with its index") << true;
    QTest::newRow("as a copy without its index") << false;
}

void StoreSurroundingsTest::aLogThatMayNotBeWrittenIsRead()
{
    QFETCH(bool, hasIndex);
    {
        StorePeer writer;
        QCOMPARE(writer.tell("hold " + m_path + " 3"), QString("ok 3"));
        writer.kill();
    }
    if (!hasIndex)
        QVERIFY(QFile::remove(m_path + "-shm"));
    for (const QString &name : QDir(m_place).entryList(QDir::Files))
        QCOMPARE(chmod(qPrintable(m_place + '/' + name), 0444), 0);
    QCOMPARE(chmod(qPrintable(m_place), 0555), 0);
    const auto peer = boundPeer();
    QVERIFY(peer);
    QCOMPARE(peer->tell("count " + m_path), QString("ok 3"));
}

void StoreSurroundingsTest::aFileThatMayNotBeReadIsAnError()
{
    storeWith(m_path.toStdString(), numberedConnections(1));
    QCOMPARE(chmod(qPrintable(m_path), 0), 0);
    QCOMPARE(chmod(qPrintable(m_place), 0777), 0);
    const auto peer = boundPeer();
    QVERIFY(peer);
    for (const char *const command : {"count %1", "add %1 7"})
        QVERIFY(isFailure(peer->tell(QString(command).arg(m_path)), "CannotOpen",
                          {m_path, "Permission denied"}));
}

void StoreSurroundingsTest::aFolderBelowAFileIsAnError()
{
    writeFile(m_path, "a file");
    const QString below = m_path + "/folder/connections.db";
    const auto store = Store::openOrCreate(below.toStdString());
    QCOMPARE(outcomeOf(store), QString("CannotOpen"));
    QVERIFY(QString::fromStdString(store.error().message).contains("Not a directory"));
    QCOMPARE(profilesIn(below.toStdString()), QString("CannotOpen"));
    QCOMPARE(contentsOf(m_path), QByteArray("a file"));
}

void StoreSurroundingsTest::aFolderIsNoStore()
{
    const auto store = Store::openOrCreate(m_place.toStdString());
    QCOMPARE(outcomeOf(store), QString("NotAStore"));
    QVERIFY(QString::fromStdString(store.error().message).contains("a folder"));
}

void StoreSurroundingsTest::aReadOnlyDiskIsReadAndNotWritten()
{
    qputenv("NETINFO_STORE", m_path.toUtf8()); // for the new process
    StorePeer peer;
    qunsetenv("NETINFO_STORE");
    if (!mountsSmallDisk(peer))
        return;
    QCOMPARE(peer.tell("add " + m_path + " 7"), QString("ok 1"));
    QCOMPARE(peer.tell("remount-read-only " + m_place), QString("ok"));
    const QString reason = "Read-only file system";
    QVERIFY(isFailure(peer.tell("add " + m_path + " 8"), "CannotOpen", {m_path, reason}));
    QCOMPARE(peer.tell("count " + m_path), QString("ok 1"));
    QCOMPARE(peer.tell("list"), QString("ok 1"));
    QVERIFY(peer.tell("remove 0") != QString("ok 0"));
    QCOMPARE(peer.tell("list"), QString("ok 1"));
    QVERIFY(isFailure(peer.tell("add " + m_path + ".new 8"), "CannotOpen", {m_path, reason}));
}

void StoreSurroundingsTest::aFullDiskLosesNothing()
{
    StorePeer peer;
    if (!mountsSmallDisk(peer))
        return;
    QCOMPARE(peer.tell("add " + m_path + " 7"), QString("ok 1"));
    QVERIFY(isFailure(peer.tell("add-many " + m_path + " 20000"), "WriteFailed",
                      {m_path, "the disk is full", "nothing was changed", "free some space"}));
    QCOMPARE(peer.tell("count " + m_path), QString("ok 1"));
    QCOMPARE(peer.tell("fill-disk " + m_place + "/filler"), QString("ok"));
    QVERIFY(isFailure(peer.tell("add " + m_path + " 8"), "WriteFailed", {"the disk is full"}));
    QCOMPARE(peer.tell("remove-file " + m_place + "/filler"), QString("ok"));
    QCOMPARE(peer.tell("count " + m_path), QString("ok 1"));
    QCOMPARE(peer.tell("add " + m_path + " 8"), QString("ok 2"));
}

void StoreSurroundingsTest::aFullDiskTakesNoNewStore()
{
    StorePeer peer;
    if (!mountsSmallDisk(peer))
        return;
    QCOMPARE(peer.tell("fill-disk " + m_place + "/filler"), QString("ok"));
    QVERIFY(isFailure(peer.tell("add " + m_path + " 8"), "WriteFailed", {"the disk is full"}));
    QCOMPARE(peer.tell("remove-file " + m_place + "/filler"), QString("ok"));
    QCOMPARE(peer.tell("add " + m_path + " 8"), QString("ok 1"));
}

void StoreSurroundingsTest::anOpenConnectionOutlastsAFullDisk()
{
    StorePeer peer;
    if (!mountsSmallDisk(peer))
        return;
    const QString key = peer.tell("begin " + m_path + " 1000").section(' ', 1);
    QVERIFY(peer.tell("checkpoint " + m_path + " " + key + " 50").startsWith("ok"));
    QCOMPARE(peer.tell("fill-disk " + m_place + "/filler"), QString("ok"));
    QVERIFY(isFailure(peer.tell("checkpoint " + m_path + " " + key + " 60"), "WriteFailed",
                      {"the disk is full"}));
    QVERIFY(isFailure(peer.tell("finish " + m_path + " " + key + " 1000"), "WriteFailed",
                      {"the disk is full"}));
    QVERIFY(isFailure(peer.tell("begin " + m_path + " 2000"), "WriteFailed", {"the disk is full"}));
    QCOMPARE(peer.tell("remove-file " + m_place + "/filler"), QString("ok"));
    QCOMPARE(peer.tell("open-bytes " + m_path), QString("ok 50"));
    QCOMPARE(peer.tell("count " + m_path), QString("ok 0"));
    QVERIFY(peer.tell("finish " + m_path + " " + key + " 1000").startsWith("ok"));
    QCOMPARE(peer.tell("open-bytes " + m_path), QString("none"));
    QCOMPARE(peer.tell("count " + m_path), QString("ok 1"));
}

void StoreSurroundingsTest::aFullDiskKeepsWhatIsToBeRemoved()
{
    qputenv("NETINFO_STORE", m_path.toUtf8()); // for the new process
    StorePeer peer;
    qunsetenv("NETINFO_STORE");
    if (!mountsSmallDisk(peer))
        return;
    QCOMPARE(peer.tell("add " + m_path + " 7"), QString("ok 1"));
    QCOMPARE(peer.tell("list"), QString("ok 1"));
    QCOMPARE(peer.tell("fill-disk " + m_place + "/filler"), QString("ok"));
    QVERIFY(peer.tell("remove 0") != QString("ok 0"));
    QCOMPARE(peer.tell("remove-file " + m_place + "/filler"), QString("ok"));
    QCOMPARE(peer.tell("list"), QString("ok 1"));
    QCOMPARE(peer.tell("remove 0"), QString("ok 0"));
    QCOMPARE(peer.tell("list"), QString("ok 0"));
}

void StoreSurroundingsTest::aLockedStoreIsAnErrorUntilItIsReleased()
{
    storeWith(m_path.toStdString(), numberedConnections(1));
    auto peer = std::make_unique<StorePeer>();
    QCOMPARE(peer->tell("lock " + m_path), QString("ok"));
    const auto store = Store::openForReading(m_path.toStdString());
    QCOMPARE(outcomeOf(store), QString("Locked"));
    QVERIFY(QString::fromStdString(store.error().message).contains("locked by another program"));
    peer.reset();
    QCOMPARE(profilesIn(m_path.toStdString()), QString("0"));
}

void StoreSurroundingsTest::manyProcessesMakeTheSameStoreAtOnce()
{
    std::array<StorePeer, 6> peers;
    int second = 0;
    for (StorePeer &peer : peers)
        peer.send(QString("add %1 %2").arg(m_path).arg(++second));
    for (StorePeer &peer : peers) {
        const QString answer = peer.answer();
        QVERIFY2(answer.startsWith("ok "), qPrintable(answer));
    }
    QCOMPARE(profilesIn(m_path.toStdString()), QString("peer peer peer peer peer peer"));
}

void StoreSurroundingsTest::twoStoresOfOneProcessShareTheFile()
{
    Store first = storeWith(m_path.toStdString(), numberedConnections(1));
    // Opening and closing a second one must not take away the first one's locks:
    // the other process would then think itself alone and remove the log.
    QCOMPARE(profilesIn(m_path.toStdString()), QString("0"));
    StorePeer peer;
    QCOMPARE(peer.tell("add " + m_path + " 5000"), QString("ok 2"));
    QVERIFY(QFile::exists(m_path + "-wal"));
    QVERIFY(first.add(connection("mine", 6000, 6001)));
    QCOMPARE(profilesIn(m_path.toStdString()), QString("0 peer mine"));
}

QTEST_GUILESS_MAIN(StoreSurroundingsTest)

#include "tst_storesurroundings.moc"
