// SPDX-License-Identifier: MIT
#include "BusClient.h"
#include "HistoryWindow.h"
#include "NetworkNamespace.h"
#include "PrivateBus.h"
#include "RecordText.h"
#include "RecorderTest.h"
#include "RecordingProgram.h"
#include "ShownText.h"
#include "VethPair.h"
#include "apps/refdialer/Recording.h"
#include "apps/refdialer/StateLine.h"
#include "apps/refdialer/SummaryChoice.h"
#include "recorder/bus/RecorderService.h"

#include "ExtendDialog.h"

#include <QApplication>
#include <QLabel>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

/// The window beside the recorder in the background, on a line and a bus of the test's own.
class TestFollowing : public QObject
{
    Q_OBJECT

public:
    explicit TestFollowing(QString obstacle)
        : m_obstacle(std::move(obstacle))
    {
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void showsWhatAnotherProgramRecords();
    void showsAConnectionThatLastsAlready();
    void takesOverToTheByte();
    void givesBackToTheByte();
    void showsEachEndOnce();

private:
    QString path() const { return QString::fromStdString(m_history->storePath()); }
    void startWindow();
    void startBackground();
    bool isRecordedBy(qint64 process) const;
    QString line() const;
    int summaries() const;

    const QString m_obstacle;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<VethPair> m_line;
    std::unique_ptr<HistoryWindow> m_history;
    std::unique_ptr<refdialer::Recording> m_recording;
    std::unique_ptr<RecordingProgram> m_background;
    int m_ends = 0; ///< that the window was told of
};

namespace
{

QString volume(qint64 bytes)
{
    return QString::asprintf("%.2f KB", double(bytes) / 1024);
}

} // namespace

void TestFollowing::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void TestFollowing::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_bus = std::make_unique<PrivateBus>(m_folder->path());
    QVERIFY(m_bus->start());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address().toUtf8());
    m_line = std::make_unique<VethPair>();
    QVERIFY(m_line->isMade());
    m_history = std::make_unique<HistoryWindow>();
    refdialer::offerSummary();
    m_ends = 0;
    connect(&m_history->state(), &refdialer::LineState::disconnected, this, [this] { ++m_ends; });
}

void TestFollowing::cleanup()
{
    m_recording.reset();
    m_background.reset();
    m_history.reset();
    m_line.reset();
    m_bus.reset();
}

void TestFollowing::startWindow()
{
    m_recording = std::make_unique<refdialer::Recording>(path(), QStringList(), QString(),
                                                         m_history->state());
    m_recording->start();
    QVERIFY(m_history->open());
}

void TestFollowing::startBackground()
{
    m_background = std::make_unique<RecordingProgram>(
        QStringList{"--store", path(), "record"},
        RecordingProgram::Environment{{"DBUS_SESSION_BUS_ADDRESS", m_bus->address()}});
}

/// As the lock's file says.
bool TestFollowing::isRecordedBy(qint64 process) const
{
    QFile lock(path() + ".recorder");
    return lock.open(QIODevice::ReadOnly) && lock.readLine().trimmed().toLongLong() == process;
}

QString TestFollowing::line() const
{
    return shownText(*m_history->window().findChild<refdialer::StateLine *>());
}

int TestFollowing::summaries() const
{
    int count = 0;
    for (QWidget *const widget : QApplication::topLevelWidgets())
        count += dynamic_cast<ExtendDialog *>(widget) ? 1 : 0;
    return count;
}

void TestFollowing::showsWhatAnotherProgramRecords()
{
    startBackground();
    QTRY_COMPARE(m_background->said(), recording);
    startWindow();
    QTRY_COMPARE(line(), QString("Not connected"));
    QVERIFY(m_history->state().isFollowing());
    QCOMPARE(m_history->state().problem(), QString());
    QVERIFY(m_line->goUp());
    QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
    QVERIFY(m_line->upload(40, 1000));
    const QString sent = "Sent: " + volume(VethPair::bytesOf(40, 1000));
    QTRY_VERIFY2_WITH_TIMEOUT(line().contains(sent), qPrintable(line()), checkpointTimeout);
    QVERIFY(m_line->upload(3, 999));
    const qint64 sentInAll = VethPair::bytesOf(40, 1000) + VethPair::bytesOf(3, 999);
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(line(), QString("Not connected"));
    QTRY_COMPARE(m_history->column(4), QStringList(volume(sentInAll)));
    QCOMPARE(summaries(), 1);
    QVERIFY(isRecordedBy(m_background->process()));
}

void TestFollowing::showsAConnectionThatLastsAlready()
{
    startBackground();
    QVERIFY(m_line->goUp());
    QTRY_VERIFY(m_background->said().contains("Connected"));
    startWindow();
    QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
    QVERIFY(m_history->state().isFollowing());
}

void TestFollowing::takesOverToTheByte()
{
    startBackground();
    QVERIFY(m_line->goUp());
    QTRY_VERIFY(m_background->said().contains("Connected"));
    startWindow();
    QTRY_VERIFY(m_history->state().isFollowing());
    QVERIFY(m_line->upload(40, 1000));
    kill(pid_t(m_background->process()), SIGKILL);
    QVERIFY(m_line->upload(30, 1000));
    QTRY_VERIFY(isRecordedBy(QCoreApplication::applicationPid()));
    QTRY_VERIFY2(line().contains("Sent: " + volume(VethPair::bytesOf(70, 1000))),
                 qPrintable(line()));
    QVERIFY(!m_history->state().isFollowing());
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_history->column(4), QStringList(volume(VethPair::bytesOf(70, 1000))));
    QCOMPARE(m_history->state().problem(), QString());
}

void TestFollowing::givesBackToTheByte()
{
    QVERIFY(m_line->goUp());
    startWindow();
    QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
    QVERIFY(m_line->upload(40, 1000));
    startBackground();
    QTRY_VERIFY(isRecordedBy(m_background->process()));
    QTRY_VERIFY(m_history->state().isFollowing());
    QVERIFY(m_line->upload(30, 1000));
    QTRY_VERIFY2_WITH_TIMEOUT(line().contains("Sent: " + volume(VethPair::bytesOf(70, 1000))),
                              qPrintable(line()), checkpointTimeout);
    m_recording.reset();
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(
        recordsIn(path()),
        QStringList(QString("wwan0 up %1 down 0 normal").arg(VethPair::bytesOf(70, 1000))));
}

void TestFollowing::showsEachEndOnce()
{
    startWindow();
    QVERIFY(m_line->goUp());
    QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
    BusClient client(m_bus->address(), recorder::RecorderService::nameFor(path()));
    QTRY_VERIFY(client.isServiceThere());
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_ends, 1);
    startBackground();
    QTRY_VERIFY(m_history->state().isFollowing());
    QCOMPARE(m_ends, 1);
    QVERIFY(m_line->goUp());
    QTRY_VERIFY2(line().startsWith("wwan0 | connected since "), qPrintable(line()));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_ends, 2);
    QTRY_COMPARE(m_history->shownProfiles(), QStringList({"wwan0", "wwan0"}));
    QCOMPARE(m_ends, 2);
}

// The network has to be entered before there is a second thread.
int main(int argc, char **argv)
{
    const QString obstacle = enterNetworkNamespace();
    qunsetenv("XDG_RUNTIME_DIR");
    const QApplication application(argc, argv);
    TestFollowing test(obstacle);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_following.moc"
