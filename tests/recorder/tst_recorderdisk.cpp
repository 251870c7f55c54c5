// SPDX-License-Identifier: MIT
#include "recorder/ConnectionRecorder.h"

#include "FakeClock.h"
#include "FakeLinks.h"
#include "FakePorts.h"
#include "RecordText.h"

#include <QCoreApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sched.h>
#include <sys/mount.h>

#include <memory>

using history::Store;
using recorder::ConnectionRecorder;

/// A recorder whose disk is full.
class RecorderDiskTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void recordsOnceThereIsSpaceAndSaysSo_data();
    void recordsOnceThereIsSpaceAndSaysSo();

private:
    void fillDisk();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    QString m_filling;
};

void RecorderDiskTest::initTestCase()
{
    if (unshare(CLONE_NEWNS) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        QSKIP("a disk of its own is not permitted", "");
    mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
}

void RecorderDiskTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    if (mount("none", qPrintable(m_folder->path()), "tmpfs", 0, "size=300k,mode=0700") != 0)
        QSKIP("a disk of its own cannot be mounted", "");
    m_path = m_folder->filePath("connections.db");
    m_filling = m_folder->filePath("filling");
}

void RecorderDiskTest::cleanup()
{
    umount2(qPrintable(m_folder->path()), MNT_DETACH);
    m_folder.reset();
}

void RecorderDiskTest::fillDisk()
{
    QFile filling(m_filling);
    QVERIFY(filling.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray page(4096, 'x');
    while (filling.write(page) == page.size()) {
    }
}

void RecorderDiskTest::recordsOnceThereIsSpaceAndSaysSo_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("into a history that is there") << true;
    QTest::newRow("into a new one") << false;
}

void RecorderDiskTest::recordsOnceThereIsSpaceAndSaysSo()
{
    QFETCH(bool, isThere);
    if (isThere)
        QVERIFY(Store::openOrCreate(m_path.toStdString()));
    fillDisk();
    auto source = std::make_unique<FakeLinks>();
    FakeLinks *const links = source.get();
    links->atStart = {runningLink(3, "ppp0", 0, 0), addressOn(3)};
    ConnectionRecorder recorder(m_path, {}, std::move(source), std::make_unique<FakePorts>(),
                                std::make_unique<FakeClock>(), shortIntervals);
    QSignalSpy failures(&recorder, &ConnectionRecorder::failed);
    QSignalSpy successes(&recorder, &ConnectionRecorder::succeeded);
    recorder.start();
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(lastProblemSeenBy(failures).reason.contains("the disk is full"));
    QVERIFY(successes.isEmpty());
    QVERIFY(QFile::remove(m_filling));
    QTRY_COMPARE_WITH_TIMEOUT(successes.size(), 1, 30000);
    QTRY_COMPARE_WITH_TIMEOUT(openRowsIn(m_path).size(), std::size_t{1}, 30000);
    links->tell(goneLink(3, "ppp0", 5, 6));
    QTRY_COMPARE(recordsIn(m_path), QStringList("ppp0 up 5 down 6 normal"));
}

QTEST_GUILESS_MAIN(RecorderDiskTest)

#include "tst_recorderdisk.moc"
