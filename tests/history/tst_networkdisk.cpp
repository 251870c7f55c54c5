// SPDX-License-Identifier: MIT
// A store on a disk that cannot have a log. The system's answer is this program's own:
// its statfs stands before the C library's.
#include "history/Store.h"

#include <SQLiteCpp/Database.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/statfs.h>

using history::Store;

namespace
{

constexpr long nfs = 0x6969;
constexpr long ext4 = 0xef53;
long theDisk = nfs;
int theBlockSize = 4096;

} // namespace

extern "C" int statfs(const char * /*path*/, struct statfs *disk) noexcept
{
    *disk = {};
    disk->f_type = theDisk;
    disk->f_bsize = theBlockSize;
    return 0;
}

class NetworkDiskTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { theBlockSize = 4096; }

    void writesAheadOnlyWhereNoOtherMachineReads_data();
    void writesAheadOnlyWhereNoOtherMachineReads();
    void writesAheadOnlyWhereABlockHoldsAPageOfMemory_data();
    void writesAheadOnlyWhereABlockHoldsAPageOfMemory();
    void aStoreThatComesToANetworkDiskWritesAheadNoMore();

private:
    /// Adds a record while the store on this disk is open; whether it has a log then.
    bool hasLogOn(long disk)
    {
        theDisk = disk;
        auto store = Store::openOrCreate(m_path.toStdString());
        history::Connection connection;
        connection.startUtc = ++m_added;
        if (!store || !store.value().add(connection))
            qFatal("nothing was added");
        return QFile::exists(m_path + "-wal");
    }

    std::string journalMode() const
    {
        return SQLite::Database(m_path.toStdString()).execAndGet("PRAGMA journal_mode").getString();
    }

    std::size_t stored() const
    {
        return Store::openForReading(m_path.toStdString()).value().list().value().size();
    }

    QTemporaryDir m_folder;
    QString m_path;
    int m_added = 0;
};

void NetworkDiskTest::writesAheadOnlyWhereNoOtherMachineReads_data()
{
    QTest::addColumn<long>("disk");
    QTest::addColumn<bool>("hasLog");
    QTest::newRow("ext4") << ext4 << true;
    QTest::newRow("tmpfs") << 0x01021994L << true;
    QTest::newRow("btrfs") << 0x9123683eL << true;
    QTest::newRow("nfs") << nfs << false;
    QTest::newRow("cifs") << 0xff534d42L << false;
    QTest::newRow("smb2") << 0xfe534d42L << false;
    QTest::newRow("smb2 where numbers have a sign") << -28095166L << false;
    QTest::newRow("fuse") << 0x65735546L << false;
    QTest::newRow("9p") << 0x01021997L << false;
}

void NetworkDiskTest::writesAheadOnlyWhereNoOtherMachineReads()
{
    QFETCH(long, disk);
    QFETCH(bool, hasLog);
    m_path = m_folder.filePath(QString("%1.db").arg(disk));
    m_added = 0;
    QCOMPARE(hasLogOn(disk), hasLog);
    QCOMPARE(journalMode(), std::string(hasLog ? "wal" : "delete"));
    QCOMPARE(stored(), std::size_t(1));
}

void NetworkDiskTest::writesAheadOnlyWhereABlockHoldsAPageOfMemory_data()
{
    QTest::addColumn<int>("blockSize");
    QTest::addColumn<bool>("hasLog");
    QTest::newRow("1 KiB") << 1024 << false;
    QTest::newRow("2 KiB") << 2048 << false;
    QTest::newRow("4 KiB") << 4096 << true;
    QTest::newRow("64 KiB") << 65536 << true;
}

void NetworkDiskTest::writesAheadOnlyWhereABlockHoldsAPageOfMemory()
{
    QFETCH(int, blockSize);
    QFETCH(bool, hasLog);
    theBlockSize = blockSize;
    m_path = m_folder.filePath(QString("%1.db").arg(blockSize));
    m_added = 0;
    QCOMPARE(hasLogOn(ext4), hasLog);
    QCOMPARE(journalMode(), std::string(hasLog ? "wal" : "delete"));
    QCOMPARE(stored(), std::size_t(1));
}

void NetworkDiskTest::aStoreThatComesToANetworkDiskWritesAheadNoMore()
{
    m_path = m_folder.filePath("moved.db");
    m_added = 0;
    QVERIFY(hasLogOn(ext4));
    QVERIFY(!hasLogOn(nfs));
    QCOMPARE(journalMode(), std::string("delete"));
    QVERIFY(hasLogOn(ext4));
    QCOMPARE(stored(), std::size_t(3));
}

QTEST_GUILESS_MAIN(NetworkDiskTest)

#include "tst_networkdisk.moc"
