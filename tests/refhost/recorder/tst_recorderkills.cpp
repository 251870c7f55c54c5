// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "NetworkNamespace.h"
#include "RecordText.h"
#include "VethPair.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

namespace
{

constexpr int recordersAtOnce = 25;
/// Longer than it takes until a recorder writes again what has passed.
constexpr int longestLife = 7000;

/// A recorder in a process and a store of its own, killed once.
class Victim
{
public:
    explicit Victim(int life)
        : m_life(life)
    {
    }

    bool start()
    {
        m_process = std::make_unique<QProcess>();
        m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process->start(QStringLiteral(RECORDER_PEER), {path()});
        m_age.start();
        return m_process->waitForStarted();
    }
    bool isConnected() const { return m_process->bytesAvailable() > 0; }

    bool isDue() const { return m_process && m_age.elapsed() >= m_life; }
    /// Returns for how many milliseconds the store had not been written to.
    qint64 kill()
    {
        m_process->kill();
        const QDateTime now = QDateTime::currentDateTime();
        m_process->waitForFinished();
        const bool isKilled = m_process->exitStatus() == QProcess::CrashExit;
        m_process.reset();
        const QDateTime written = QFileInfo(path() + "-wal").lastModified();
        return isKilled && written.isValid() ? written.msecsTo(now) : -1;
    }
    bool isRunning() const { return m_process != nullptr; }

    QStringList records() const { return recordsIn(path()); }
    std::vector<refhost::OpenConnection> openRows() const { return openRowsIn(path()); }
    QString integrity() const
    {
        SQLite::Database store(path().toStdString(), SQLite::OPEN_READWRITE);
        return QString::fromStdString(store.execAndGet("PRAGMA integrity_check").getString());
    }

private:
    QString path() const { return m_folder.filePath(QStringLiteral("connections.db")); }

    const int m_life;
    const QTemporaryDir m_folder;
    QElapsedTimer m_age;
    std::unique_ptr<QProcess> m_process;
};

} // namespace

/// Recorders that are killed at any moment of a connection, and the next ones that
/// go on with it.
class RecorderKillsTest : public QObject
{
    Q_OBJECT

public:
    explicit RecorderKillsTest(QString obstacle)
        : m_obstacle(std::move(obstacle))
    {
    }

private slots:
    void initTestCase();
    void cleanup();

    void theNextRecorderGoesOnToTheByte();

private:
    using Victims = std::vector<std::unique_ptr<Victim>>;

    static bool startAll(const Victims &victims);
    bool upload(int count, int size);
    void killAllInTurn(campaign::Random &random, const Victims &victims);
    void checkWhatIsLeft(const Victims &victims) const;
    void round(campaign::Random &random);

    const QString m_obstacle;
    std::optional<VethPair> m_line;
    qint64 m_uploaded = 0;
    qint64 m_oldest = 0;
};

void RecorderKillsTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void RecorderKillsTest::cleanup()
{
    m_line.reset();
}

bool RecorderKillsTest::startAll(const Victims &victims)
{
    return std::all_of(victims.begin(), victims.end(),
                       [](const auto &victim) { return victim->start(); }) &&
           QTest::qWaitFor(
               [&victims] {
                   return std::all_of(victims.begin(), victims.end(),
                                      [](const auto &victim) { return victim->isConnected(); });
               },
               60000);
}

bool RecorderKillsTest::upload(int count, int size)
{
    m_uploaded += VethPair::bytesOf(count, size);
    return m_line->upload(count, size);
}

/// Each at the end of its life; bytes go over the line all the time.
void RecorderKillsTest::killAllInTurn(campaign::Random &random, const Victims &victims)
{
    const auto isRunning = [](const auto &victim) { return victim->isRunning(); };
    while (std::any_of(victims.begin(), victims.end(), isRunning)) {
        QVERIFY(upload(random.between(1, 5), random.between(1, 1400)));
        for (const auto &victim : victims) {
            if (!victim->isDue())
                continue;
            const qint64 age = victim->kill();
            QVERIFY(age >= 0);
            m_oldest = std::max(m_oldest, age);
        }
        QTest::qWait(20);
    }
}

void RecorderKillsTest::checkWhatIsLeft(const Victims &victims) const
{
    for (const auto &victim : victims) {
        QCOMPARE(victim->integrity(), QStringLiteral("ok"));
        QVERIFY(victim->records().isEmpty());
        const auto rows = victim->openRows();
        QCOMPARE(rows.size(), std::size_t{1});
        QVERIFY(rows.front().uploadedBytes <= m_uploaded);
    }
}

void RecorderKillsTest::round(campaign::Random &random)
{
    m_line.emplace();
    m_uploaded = 0;
    Victims victims;
    for (int i = 0; i < recordersAtOnce; ++i)
        victims.push_back(std::make_unique<Victim>(random.between(0, longestLife)));
    QVERIFY(m_line->goUp());
    QVERIFY(startAll(victims));
    killAllInTurn(random, victims);
    checkWhatIsLeft(victims);

    QVERIFY(upload(3, 300));
    QVERIFY(startAll(victims));
    QVERIFY(upload(2, 200));
    QVERIFY(m_line->goDown());
    const QStringList whole{QStringLiteral("wwan0 up %1 down 0 normal").arg(m_uploaded)};
    for (const auto &victim : victims) {
        QTRY_COMPARE_WITH_TIMEOUT(victim->records(), whole, 60000);
        QVERIFY(victim->openRows().empty());
        victim->kill();
    }
}

void RecorderKillsTest::theNextRecorderGoesOnToTheByte()
{
    const int kills = campaign::count(recordersAtOnce);
    campaign::Random random(campaign::seed(20260722));
    int killed = 0;
    for (; killed < kills; killed += recordersAtOnce) {
        round(random);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d recorders killed, what they left was at most %.1f seconds old", killed,
          static_cast<double>(m_oldest) / 1000);
}

int main(int argc, char **argv)
{
    const QString obstacle = enterNetworkNamespace();
    const QCoreApplication application(argc, argv);
    RecorderKillsTest test(obstacle);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_recorderkills.moc"
