// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "PowerVfs.h"
#include "StorePrograms.h"

#include <QTemporaryDir>
#include <QTest>

#include <sqlite3.h>

#include <algorithm>

/// What is left of a store on a disk whose power fails at random moments.
class tst_PowerCuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void losesNothingThatWasKept();
    void noticesADiskThatDoesNotSync();
};

namespace
{

constexpr int cutsPerStore = 20;

/// So that the power fails also while a log is being played.
extern "C" int playLogOften(sqlite3 *database, char ** /*error*/,
                            const sqlite3_api_routines * /*functions*/)
{
    return sqlite3_wal_autocheckpoint(database, 10);
}

struct Outcome {
    QString complaint;
    int touched = 0;
};

/// Cuts the power of a store's disk, also while the store is made and while it recovers,
/// until something is wrong with it.
Outcome cutPower(campaign::Random &random, PowerDisk &disk, int cuts)
{
    const PowerVfs vfs(disk);
    const QTemporaryDir folder;
    StorePrograms programs(random, disk, folder.filePath("connections.db").toStdString());
    for (int cut = 0; cut < cuts; ++cut) {
        disk.cutAt(random.between(1, random.once(3) ? 30 : 200));
        const QString complaint = programs.run();
        if (!complaint.isEmpty())
            return {QStringLiteral("cut %1: %2").arg(cut).arg(complaint)};
        disk.restart();
    }
    return {programs.start(), programs.touched()};
}

} // namespace

void tst_PowerCuts::initTestCase()
{
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(playLogOften));
}

void tst_PowerCuts::losesNothingThatWasKept()
{
    const int cuts = campaign::count(20);
    const std::uint64_t seed = campaign::seed(20260103);
    campaign::Random random(seed);
    PowerDisk disk(seed);
    int touched = 0;
    for (int cut = 0; cut < cuts; cut += cutsPerStore) {
        const Outcome outcome = cutPower(random, disk, std::min(cutsPerStore, cuts - cut));
        touched += outcome.touched;
        QVERIFY2(
            outcome.complaint.isEmpty(),
            qPrintable(QStringLiteral("store after %1 cuts, %2").arg(cut).arg(outcome.complaint)));
    }
    qInfo("%d cuts, after %d of them the user was to touch the log", cuts, touched);
}

void tst_PowerCuts::noticesADiskThatDoesNotSync()
{
    const std::uint64_t seed = campaign::seed(20260104);
    campaign::Random random(seed);
    PowerDisk disk(seed);
    disk.ignoreSyncs();
    QVERIFY(!cutPower(random, disk, 5 * cutsPerStore).complaint.isEmpty());
}

QTEST_GUILESS_MAIN(tst_PowerCuts)
#include "tst_powercuts.moc"
