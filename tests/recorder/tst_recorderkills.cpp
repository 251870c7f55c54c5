// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "NetworkNamespace.h"
#include "RecordText.h"
#include "StoreLock.h"
#include "VethPair.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

using history::OpenConnection;
using history::Store;

namespace
{

constexpr int recordersAtOnce = 25;
/// Longer than it takes until a recorder writes again what has passed.
constexpr int longestLife = 7000;
/// About what it takes until a recorder has begun its row.
constexpr int earlyDeath = 150;
constexpr qint64 oldestAllowed = 5000;

/// How a recorder ends: killed, or by itself, also where it cannot write then.
enum class End { Kill, Quit, QuitLocked };

/// A recorder in a process and a store of its own, which ends once before the last.
class Victim
{
public:
    /// What it is to live, in milliseconds, and how it is to end.
    Victim(int life, End end)
        : m_life(life)
        , m_end(end)
    {
    }
    ~Victim() { kill(); }
    Victim(const Victim &) = delete;
    Victim &operator=(const Victim &) = delete;

    bool isToDieEarly() const { return m_life < earlyDeath; }
    int life() const { return m_life; }
    bool isToBeKilled() const { return m_end == End::Kill; }

    bool start()
    {
        m_process = std::make_unique<QProcess>();
        m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process->start(QStringLiteral(RECORDER_PEER), {path()});
        m_age.start();
        return m_process->waitForStarted();
    }
    bool isRunning() const { return m_process != nullptr; }
    bool isConnected() const { return m_process->bytesAvailable() > 0; }
    bool isDue() const { return isRunning() && m_age.elapsed() >= m_life; }

    /// False if it had ended by itself.
    bool kill()
    {
        if (!m_process)
            return true;
        m_process->kill();
        m_process->waitForFinished();
        const bool isKilled = m_process->exitStatus() == QProcess::CrashExit;
        m_process.reset();
        return isKilled;
    }

    /// False if it did not end as it was told.
    bool quit()
    {
        std::optional<StoreLock> lock;
        if (m_end == End::QuitLocked)
            lock.emplace(path());
        m_process->closeWriteChannel();
        const bool hasQuit =
            m_process->waitForFinished() && m_process->exitStatus() == QProcess::NormalExit;
        m_process.reset();
        return hasQuit;
    }

    qint64 recordedBytes() const
    {
        qint64 bytes = 0;
        for (const history::Connection &each : connectionsIn(path()))
            bytes += each.uploadedBytes;
        return bytes;
    }
    /// Whether a recorder has kept what the line's counters showed.
    bool hasSeenTheLine() const
    {
        const auto store = Store::openForReading(path().toStdString());
        return store && !store.value().listSeen().value().empty();
    }
    /// Nothing while there is no store.
    std::vector<OpenConnection> openRows() const
    {
        const auto store = Store::openForReading(path().toStdString());
        return store ? store.value().listOpen().value() : std::vector<OpenConnection>();
    }
    bool hasFile() const { return QFileInfo::exists(path()); }
    QString integrity() const
    {
        const SQLite::Database store(path().toStdString(), SQLite::OPEN_READWRITE);
        SQLite::Statement check(store, "PRAGMA integrity_check");
        return check.executeStep() ? QString::fromStdString(check.getColumn(0)) : QString();
    }

private:
    QString path() const { return m_folder.filePath(QStringLiteral("connections.db")); }

    const int m_life;
    const End m_end;
    const QTemporaryDir m_folder;
    QElapsedTimer m_age;
    std::unique_ptr<QProcess> m_process;
};

using Victims = std::vector<std::unique_ptr<Victim>>;

/// What has been sent since the line went up, and when.
class Traffic
{
public:
    Traffic() { m_clock.start(); }

    qint64 now() const { return m_clock.elapsed(); }
    qint64 bytes() const { return m_sent.empty() ? 0 : m_sent.back().bytes; }
    void add(qint64 bytes) { m_sent.push_back({now(), this->bytes() + bytes}); }
    /// For how long, at this time, a row with so many bytes had lacked some.
    qint64 age(qint64 bytes, qint64 time) const
    {
        const auto missing = std::find_if(m_sent.begin(), m_sent.end(),
                                          [bytes](const Sent &each) { return each.bytes > bytes; });
        return missing == m_sent.end() ? 0 : std::max<qint64>(time - missing->time, 0);
    }

private:
    struct Sent {
        qint64 time;
        qint64 bytes; ///< in all
    };

    QElapsedTimer m_clock;
    std::vector<Sent> m_sent;
};

} // namespace

/// Recorders that are killed at any moment of a connection, and the next ones, which
/// resume it.
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
    static void killWhatDiesEarly(const Victims &victims);
    static bool startTheOthers(const Victims &victims);
    bool upload(int count, int size);
    void endTheOthersInTurn(campaign::Random &random, const Victims &victims);
    void killAndMeasure(Victim &victim);
    void goOnUnwatched(campaign::Random &random);
    void checkWhatIsLeft(const Victims &victims) const;
    void goOn(const Victims &victims);
    void round(campaign::Random &random);

    const QString m_obstacle;
    std::optional<VethPair> m_line;
    std::optional<Traffic> m_traffic;
    qint64 m_oldest = 0; ///< of all that was left, in milliseconds
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

/// Some before there is a row, a store or a file.
void RecorderKillsTest::killWhatDiesEarly(const Victims &victims)
{
    for (const auto &victim : victims) {
        if (!victim->isToDieEarly())
            continue;
        QVERIFY(victim->start());
        QTest::qWait(victim->life());
        QVERIFY(victim->kill());
    }
}

bool RecorderKillsTest::startTheOthers(const Victims &victims)
{
    const auto isConnected = [](const auto &victim) {
        return !victim->isRunning() || victim->isConnected();
    };
    for (const auto &victim : victims) {
        if (!victim->isToDieEarly() && !victim->start())
            return false;
    }
    return QTest::qWaitFor([&] { return std::all_of(victims.begin(), victims.end(), isConnected); },
                           60000);
}

bool RecorderKillsTest::upload(int count, int size)
{
    m_traffic->add(VethPair::bytesOf(count, size));
    return m_line->upload(count, size);
}

/// Each at the end of its life; bytes go over the line all the time.
void RecorderKillsTest::endTheOthersInTurn(campaign::Random &random, const Victims &victims)
{
    const auto isRunning = [](const auto &victim) { return victim->isRunning(); };
    while (std::any_of(victims.begin(), victims.end(), isRunning)) {
        QVERIFY(upload(random.between(1, 5), random.between(1, 1400)));
        for (const auto &victim : victims) {
            if (!victim->isDue())
                continue;
            if (victim->isToBeKilled())
                killAndMeasure(*victim);
            else
                QVERIFY(victim->quit());
        }
        QTest::qWait(20);
    }
}

void RecorderKillsTest::killAndMeasure(Victim &victim)
{
    const qint64 time = m_traffic->now();
    QVERIFY(victim.kill());
    const auto rows = victim.openRows();
    QCOMPARE(rows.size(), std::size_t{1});
    m_oldest = std::max(m_oldest, m_traffic->age(rows.front().uploadedBytes, time));
}

void RecorderKillsTest::checkWhatIsLeft(const Victims &victims) const
{
    for (const auto &victim : victims) {
        if (!victim->hasFile())
            continue;
        QCOMPARE(victim->integrity(), QStringLiteral("ok"));
        const auto rows = victim->openRows();
        QVERIFY(rows.size() <= 1);
        QVERIFY(rows.empty() || rows.front().uploadedBytes <= m_traffic->bytes());
    }
}

/// Nobody records; the line may be lost and come back, more than once.
void RecorderKillsTest::goOnUnwatched(campaign::Random &random)
{
    for (int i = random.below(3); i > 0; --i) {
        QVERIFY(m_line->goDown());
        QVERIFY(m_line->goUp());
        QVERIFY(upload(random.below(4), random.between(1, 1400)));
    }
}

/// Another recorder for each store: where the former one had seen the line, every byte
/// since then is in a record at the end, else those that this one sees.
void RecorderKillsTest::goOn(const Victims &victims)
{
    QVERIFY(upload(3, 300));
    std::vector<bool> hasSeenTheLine;
    for (const auto &victim : victims) {
        hasSeenTheLine.push_back(victim->hasSeenTheLine());
        QVERIFY(victim->start());
    }
    const auto isConnected = [](const auto &victim) { return victim->isConnected(); };
    QVERIFY(QTest::qWaitFor(
        [&] { return std::all_of(victims.begin(), victims.end(), isConnected); }, 60000));
    QVERIFY(upload(2, 200));
    QVERIFY(m_line->goDown());
    for (std::size_t i = 0; i < victims.size(); ++i) {
        QTRY_VERIFY_WITH_TIMEOUT(victims[i]->openRows().empty(), 60000);
        QCOMPARE(victims[i]->recordedBytes(),
                 hasSeenTheLine[i] ? m_traffic->bytes() : VethPair::bytesOf(2, 200));
    }
}

void RecorderKillsTest::round(campaign::Random &random)
{
    m_line.emplace();
    QVERIFY(m_line->goUp());
    m_traffic.emplace();
    Victims victims;
    for (int i = 0; i < recordersAtOnce; ++i) {
        const int longest = random.once(4) ? earlyDeath - 1 : longestLife;
        const int life = random.between(0, longest);
        const End end = random.oneOf(std::array{End::Kill, End::Kill, End::Quit, End::QuitLocked});
        victims.push_back(std::make_unique<Victim>(life, end));
    }
    killWhatDiesEarly(victims);
    QVERIFY(startTheOthers(victims));
    endTheOthersInTurn(random, victims);
    checkWhatIsLeft(victims);
    if (!QTest::currentTestFailed())
        goOnUnwatched(random);
    if (!QTest::currentTestFailed())
        goOn(victims);
}

void RecorderKillsTest::theNextRecorderGoesOnToTheByte()
{
    const int recorders = campaign::count(recordersAtOnce);
    campaign::Random random(campaign::seed(20260722));
    int ended = 0;
    for (; ended < recorders && !QTest::currentTestFailed(); ended += recordersAtOnce)
        round(random);
    qInfo("%d recorders killed or quit, what the killed left was at most %.1f seconds old", ended,
          static_cast<double>(m_oldest) / 1000);
    // The short form shares the machine with other tests, so it only tells the age.
    if (recorders > recordersAtOnce)
        QVERIFY(m_oldest <= oldestAllowed);
}

int main(int argc, char **argv)
{
    const QString obstacle = enterNetworkNamespace();
    const QCoreApplication application(argc, argv);
    RecorderKillsTest test(obstacle);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_recorderkills.moc"
