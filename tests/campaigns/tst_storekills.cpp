// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "StoreWitness.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

/// What is left of a store whose writers are killed at random moments.
class tst_StoreKills : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesNothingThatWasAcknowledged();

private:
    using Writers = std::vector<std::unique_ptr<QProcess>>;
    Writers startWriters(campaign::Random &random, const QString &path, int round);
    QString killAtRandom(campaign::Random &random, Writers &writers);

    StoreWitness m_witness;
};

namespace
{

constexpr int roundsPerStore = 10;
constexpr int mostLines = 60;
constexpr int numbersPerWriter = 100000;

/// The writers run meanwhile: no sleep could be this short.
void letPass(int microseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.nsecsElapsed() < microseconds * 1000LL) {
    }
}

} // namespace

tst_StoreKills::Writers tst_StoreKills::startWriters(campaign::Random &random, const QString &path,
                                                     int round)
{
    const char *const umasks[] = {"0", "022", "077", "0777"};
    Writers writers;
    const int count = random.between(1, 2);
    for (int number = 0; number < count; ++number) {
        auto writer = std::make_unique<QProcess>();
        const int first = (2 * round + number + 1) * numbersPerWriter;
        writer->start(QStringLiteral(STORE_WRITER),
                      {path, QString::number(first), QLatin1String(random.oneOf(umasks))});
        writers.push_back(std::move(writer));
    }
    return writers;
}

/// Returns what a writer said that ended by itself; nothing if all were killed.
QString tst_StoreKills::killAtRandom(campaign::Random &random, Writers &writers)
{
    QString complaint;
    for (const auto &writer : writers) {
        // Some are killed while they still make the store.
        int lines = random.once(4) ? 0 : random.below(mostLines);
        if (lines == 0)
            writer->waitForStarted();
        for (; lines > 0; --lines) {
            while (!writer->canReadLine() && writer->waitForReadyRead()) {
            }
            m_witness.take(writer->readLine().trimmed());
        }
        letPass(random.below(3000));
        writer->kill();
        writer->waitForFinished();
        while (writer->canReadLine())
            m_witness.take(writer->readLine().trimmed());
        if (writer->exitStatus() != QProcess::CrashExit)
            complaint += QString::fromUtf8(writer->readAllStandardError());
    }
    return complaint;
}

void tst_StoreKills::losesNothingThatWasAcknowledged()
{
    const int kills = campaign::count(100);
    campaign::Random random(campaign::seed(20260102));
    std::unique_ptr<QTemporaryDir> folder;
    int killed = 0;
    int acknowledged = 0;
    for (int round = 0; killed < kills; ++round) {
        if (round % roundsPerStore == 0) {
            acknowledged += m_witness.acknowledged();
            m_witness.reset();
            folder = std::make_unique<QTemporaryDir>();
        }
        const QString path = folder->filePath(QStringLiteral("new/folder/connections.db"));
        Writers writers = startWriters(random, path, round % roundsPerStore);
        QString complaint = killAtRandom(random, writers);
        killed += static_cast<int>(writers.size());
        complaint += m_witness.complaint(path);
        QVERIFY2(complaint.isEmpty(),
                 qPrintable(QStringLiteral("round %1: %2").arg(round).arg(complaint)));
    }
    acknowledged += m_witness.acknowledged();
    qInfo("%d kills, %d acknowledged writes", killed, acknowledged);
    QVERIFY(acknowledged > kills);
}

QTEST_GUILESS_MAIN(tst_StoreKills)
#include "tst_storekills.moc"
