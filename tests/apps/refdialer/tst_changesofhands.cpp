// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "ConnrecordRun.h"
#include "HistoryProgram.h"
#include "NetworkNamespace.h"
#include "PrivateBus.h"
#include "RecordText.h"
#include "VethPair.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <csignal>
#include <memory>
#include <optional>
#include <vector>

namespace
{

constexpr int historiesAtOnce = 4;
constexpr int changesPerRound = 20;
/// Milliseconds, between one thing that happens to a history's programs and the next.
constexpr int longestRest = 1500;

/// A history, all that may record into it, and the bus on which they meet.
class House
{
public:
    House()
        : m_bus(m_folder.path())
    {
    }

    bool open()
    {
        if (!m_bus.start())
            return false;
        for (const auto kind : {HistoryProgram::Kind::Background, HistoryProgram::Kind::Window,
                                HistoryProgram::Kind::Background, HistoryProgram::Kind::Window,
                                HistoryProgram::Kind::WindowWithoutBus})
            m_programs.push_back(std::make_unique<HistoryProgram>(kind, path(), m_bus.address()));
        return m_programs.front()->start();
    }

    QString path() const { return m_folder.filePath("connections.db"); }
    int changes() const { return m_changes; }
    bool isRecorded() const { return recorder() != nullptr; }

    /// Notices who records.
    void look()
    {
        const HistoryProgram *const present = recorder();
        if (!present || present->process() == m_lastRecorder)
            return;
        m_lastRecorder = present->process();
        ++m_changes;
    }

    /// Somebody comes, goes or is killed, or all are, once it is time for that.
    bool live(campaign::Random &random)
    {
        if (m_sinceLast.isValid() && m_sinceLast.elapsed() < m_rest)
            return true;
        m_sinceLast.start();
        m_rest = random.below(longestRest);
        if (random.once(12))
            return endAll(random);
        HistoryProgram &one = *m_programs[std::size_t(random.below(int(m_programs.size())))];
        return one.isRunning() ? one.end(signal(random)) : one.start();
    }

    /// With nobody left but one who records.
    bool settle()
    {
        for (std::size_t i = 1; i < m_programs.size(); ++i) {
            if (!m_programs[i]->end(SIGTERM))
                return false;
        }
        HistoryProgram &last = *m_programs.front();
        return last.isRunning() || last.start();
    }

private:
    static int signal(campaign::Random &random)
    {
        return random.oneOf(std::array{SIGTERM, SIGKILL});
    }

    bool endAll(campaign::Random &random)
    {
        return std::all_of(m_programs.begin(), m_programs.end(),
                           [&random](const auto &each) { return each->end(signal(random)); });
    }

    /// As the lock's file says.
    const HistoryProgram *recorder() const
    {
        QFile lock(path() + ".recorder");
        if (!lock.open(QIODevice::ReadOnly))
            return nullptr;
        const qint64 process = lock.readLine().trimmed().toLongLong();
        const auto found =
            std::find_if(m_programs.begin(), m_programs.end(), [&](const auto &each) {
                return each->isRunning() && each->process() == process;
            });
        return found == m_programs.end() ? nullptr : found->get();
    }

    const QTemporaryDir m_folder;
    PrivateBus m_bus;
    std::vector<std::unique_ptr<HistoryProgram>> m_programs;
    qint64 m_lastRecorder = 0;
    int m_changes = 0;
    QElapsedTimer m_sinceLast;
    int m_rest = 0;
};

using Houses = std::vector<std::unique_ptr<House>>;

int changesIn(const Houses &houses)
{
    int changes = 0;
    for (const auto &house : houses)
        changes += house->changes();
    return changes;
}

struct Bytes {
    qint64 uploaded = 0;
    qint64 downloaded = 0;
};

Bytes recordedIn(const QString &path)
{
    Bytes sum;
    for (const history::Connection &connection : connectionsIn(path)) {
        sum.uploaded += connection.uploadedBytes;
        sum.downloaded += connection.downloadedBytes;
    }
    return sum;
}

} // namespace

/// Windows and recorders in the background come, go and are killed while bytes flow.
class ChangesOfHandsTest : public QObject
{
    Q_OBJECT

public:
    explicit ChangesOfHandsTest(QString obstacle)
        : m_obstacle(std::move(obstacle))
    {
    }

private slots:
    void initTestCase();
    void losesNoByteAndCountsNoneTwice();

private:
    void move(campaign::Random &random);
    void round(campaign::Random &random, int changes);
    void checkTotals(const Houses &houses) const;

    const QString m_obstacle;
    std::optional<VethPair> m_line;
    Bytes m_moved; ///< since the line went up
    int m_changes = 0;
};

void ChangesOfHandsTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void ChangesOfHandsTest::move(campaign::Random &random)
{
    const int size = random.between(1, 1400);
    const int up = random.between(1, 5);
    const int down = random.between(1, 5);
    QVERIFY(m_line->upload(up, size) && m_line->download(down, size));
    m_moved.uploaded += VethPair::bytesOf(up, size);
    m_moved.downloaded += VethPair::bytesOf(down, size);
}

/// The line's end tells everybody's last counters, and finishes the only connection.
void ChangesOfHandsTest::checkTotals(const Houses &houses) const
{
    for (const auto &house : houses) {
        QTRY_VERIFY_WITH_TIMEOUT(openRowsIn(house->path()).empty(), HistoryProgram::patience);
        const Bytes recorded = recordedIn(house->path());
        QCOMPARE(recorded.uploaded, m_moved.uploaded);
        QCOMPARE(recorded.downloaded, m_moved.downloaded);
        const ConnrecordRun check = connrecord({"--store", house->path(), "check"});
        QVERIFY2(check.exitCode == 0, check.error.constData());
    }
}

void ChangesOfHandsTest::round(campaign::Random &random, int changes)
{
    const auto isRecorded = [](const auto &house) { return house->isRecorded(); };
    m_line.emplace();
    m_moved = {};
    Houses houses;
    for (int i = 0; i < historiesAtOnce; ++i) {
        houses.push_back(std::make_unique<House>());
        QVERIFY(houses.back()->open());
    }
    QTRY_VERIFY_WITH_TIMEOUT(std::all_of(houses.begin(), houses.end(), isRecorded),
                             HistoryProgram::patience);
    QVERIFY(m_line->goUp());
    while (changesIn(houses) < changes) {
        move(random);
        for (const auto &house : houses) {
            house->look();
            QVERIFY(house->live(random));
        }
        QTest::qWait(20);
    }
    for (const auto &house : houses)
        QVERIFY(house->settle());
    move(random);
    QTRY_VERIFY_WITH_TIMEOUT(std::all_of(houses.begin(), houses.end(), isRecorded),
                             HistoryProgram::patience);
    QVERIFY(m_line->goDown());
    checkTotals(houses);
    m_changes += changesIn(houses);
}

void ChangesOfHandsTest::losesNoByteAndCountsNoneTwice()
{
    const int changes = campaign::count(changesPerRound);
    campaign::Random random(campaign::seed(20261122));
    while (m_changes < changes && !QTest::currentTestFailed())
        round(random, std::min(changesPerRound, changes - m_changes));
    qInfo("%d changes of hands", m_changes);
}

// The network has to be entered before there is a second thread.
int main(int argc, char **argv)
{
    const QString obstacle = enterNetworkNamespace();
    qunsetenv("XDG_RUNTIME_DIR");
    qunsetenv("NOTIFY_SOCKET");
    const QCoreApplication application(argc, argv);
    ChangesOfHandsTest test(obstacle);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_changesofhands.moc"
