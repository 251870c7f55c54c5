// SPDX-License-Identifier: MIT
#include "ServiceTest.h"

#include "recorder/RecorderLock.h"

using recorder::ConnectionRecorder;
using recorder::RecorderIntervals;
using recorder::RecorderService;
using Place = recorder::RecorderService::Place;

namespace
{

constexpr std::chrono::milliseconds aTick{1};
constexpr std::chrono::hours never{1};
/// So that nothing but the bus brings one to try again.
constexpr RecorderIntervals patient = {std::chrono::milliseconds(10), never, 1, never};

} // namespace

/// Recorders of one history that give it to each other over the bus.
class TestHandOver : public ServiceTest
{
    Q_OBJECT

private slots:
    void makesWayForOneInTheBackground();
    void makesWayForOneThatWasThereBefore();
    void takesOverWhenTheOneInTheBackgroundEnds();
    void takesOverFromAnotherWindow();
    void makesNoWayForAnotherWindow();
    void leavesTheTurnToTheNextOneInTheBackground();
    void isNotKeptByOneThatDoesNotRecord();
    void makesWayOnceForEach();
    void makesWayForOneThatWasSlower();
    void losesNoByteOnTheWay();

private:
    /// A recorder with its service, on links of its own.
    struct Participant {
        FakeLinks *links;
        std::unique_ptr<ConnectionRecorder> recorder;
        std::unique_ptr<RecorderService> service;

        bool isRecording() const { return recorder->isRecording(); }
        void end()
        {
            recorder->end();
            service.reset();
        }
    };
    Participant join(Place place, const RecorderIntervals &intervals = patient);
    /// One that has the name of those in the background and does nothing.
    std::unique_ptr<BusClient> makeIdler() const;
    QString backgroundName() const { return serviceName() + ".Background"; }
};

TestHandOver::Participant TestHandOver::join(Place place, const RecorderIntervals &intervals)
{
    auto links = std::make_unique<FakeLinks>();
    links->atStart = m_atStart;
    Participant participant{links.get(), nullptr, nullptr};
    participant.recorder = std::make_unique<ConnectionRecorder>(
        m_path, QStringList(), std::move(links), std::make_unique<FakePorts>(),
        std::make_unique<FakeClock>(), intervals);
    participant.recorder->start();
    participant.service = makeService(*participant.recorder, aTick, place);
    participant.service->start();
    return participant;
}

std::unique_ptr<BusClient> TestHandOver::makeIdler() const
{
    auto idler = std::make_unique<BusClient>(m_bus->address(), backgroundName());
    idler->waitForName();
    return idler;
}

void TestHandOver::makesWayForOneInTheBackground()
{
    const Participant window = join(Place::Foreground);
    QVERIFY(window.isRecording());
    const Participant background = join(Place::Background);
    QVERIFY(!background.isRecording());
    QTRY_VERIFY(background.isRecording());
    QVERIFY(!window.isRecording());
    const auto client = makeClient();
    QTRY_COMPARE(client->owner(), background.service->uniqueName());
}

void TestHandOver::makesWayForOneThatWasThereBefore()
{
    // It waits for one that is not on the bus.
    QVERIFY(history::Store::openOrCreate(m_path.toStdString()));
    recorder::RecorderLock other(QFileInfo(m_path).canonicalFilePath());
    QCOMPARE(other.take(), recorder::RecorderLock::Outcome::Taken);
    const Participant background = join(Place::Background);
    const BusClient observer(m_bus->address(), backgroundName());
    QTRY_VERIFY(observer.isServiceThere());
    other.free();
    const Participant window = join(Place::Foreground);
    QVERIFY(window.isRecording());
    QTRY_VERIFY(background.isRecording());
    QVERIFY(!window.isRecording());
}

void TestHandOver::takesOverWhenTheOneInTheBackgroundEnds()
{
    Participant background = join(Place::Background);
    const BusClient observer(m_bus->address(), backgroundName());
    QTRY_VERIFY(observer.isServiceThere());
    const Participant window = join(Place::Foreground);
    QTRY_VERIFY(!window.service->uniqueName().isEmpty());
    QVERIFY(!window.isRecording());
    background.end();
    QTRY_VERIFY(window.isRecording());
}

void TestHandOver::takesOverFromAnotherWindow()
{
    Participant first = join(Place::Foreground);
    const auto client = makeClient();
    QTRY_VERIFY(client->isServiceThere());
    const Participant second = join(Place::Foreground);
    QTRY_VERIFY(!second.service->uniqueName().isEmpty());
    first.end();
    QTRY_VERIFY(second.isRecording());
}

void TestHandOver::makesNoWayForAnotherWindow()
{
    const Participant first = join(Place::Foreground);
    const Participant second = join(Place::Foreground);
    const auto client = makeClient();
    QTRY_VERIFY(client->isServiceThere());
    QTRY_COMPARE(client->owner(), first.service->uniqueName());
    QVERIFY(first.isRecording());
    QVERIFY(!second.isRecording());
    const BusClient observer(m_bus->address(), backgroundName());
    QVERIFY(!observer.isServiceThere());
}

/// Also where the window is the first to see that the former one is gone.
void TestHandOver::leavesTheTurnToTheNextOneInTheBackground()
{
    Participant first = join(Place::Background);
    const BusClient observer(m_bus->address(), backgroundName());
    QTRY_VERIFY(observer.isServiceThere());
    const Participant window = join(Place::Foreground);
    const Participant second = join(Place::Background);
    QTRY_VERIFY(!second.service->uniqueName().isEmpty());
    first.end();
    QTRY_VERIFY(second.isRecording());
    QTRY_COMPARE(observer.owner(), second.service->uniqueName());
    QVERIFY(!window.isRecording());
}

void TestHandOver::isNotKeptByOneThatDoesNotRecord()
{
    RecorderIntervals brief = patient;
    brief.courtesy = std::chrono::milliseconds(20);
    const Participant window = join(Place::Foreground, brief);
    QSignalSpy stops(window.recorder.get(), &ConnectionRecorder::stopped);
    QSignalSpy starts(window.recorder.get(), &ConnectionRecorder::started);
    QVERIFY(window.isRecording());
    const auto idler = makeIdler();
    QTRY_COMPARE(stops.size(), 1);
    QTRY_COMPARE(starts.size(), 1);
    QVERIFY(window.isRecording());
}

void TestHandOver::makesWayOnceForEach()
{
    const Participant window = join(Place::Foreground);
    const auto client = makeClient();
    QTRY_VERIFY(client->isServiceThere());
    const auto idler = makeIdler();
    QTRY_VERIFY(!window.isRecording());
    idler->releaseName();
    QTRY_VERIFY(window.isRecording());
    idler->waitForName();
    // The answer comes after what the bus has told before.
    QCOMPARE(client->property("Recording"), QVariant(true));
    QVERIFY(window.isRecording());
    const auto next = makeIdler();
    idler->releaseName();
    QTRY_VERIFY(!window.isRecording());
}

/// Both wait for a third one, which is not on the bus, so that nobody is told of its end.
void TestHandOver::makesWayForOneThatWasSlower()
{
    QVERIFY(history::Store::openOrCreate(m_path.toStdString()));
    recorder::RecorderLock third(QFileInfo(m_path).canonicalFilePath());
    QCOMPARE(third.take(), recorder::RecorderLock::Outcome::Taken);
    RecorderIntervals persistent = patient;
    persistent.retry = std::chrono::milliseconds(20);
    const Participant background = join(Place::Background, persistent);
    const BusClient observer(m_bus->address(), backgroundName());
    QTRY_VERIFY(observer.isServiceThere());
    const Participant window = join(Place::Foreground);
    QTRY_VERIFY(!window.service->uniqueName().isEmpty());
    // The answer comes after what the bus has told before.
    BusClient client(m_bus->address(), window.service->uniqueName());
    QTRY_COMPARE(client.property("Waiting"), QVariant(true));
    third.free();
    // As it does from time to time.
    window.recorder->tryNow();
    QVERIFY(window.isRecording());
    QTRY_VERIFY(background.isRecording());
    QVERIFY(!window.isRecording());
}

void TestHandOver::losesNoByteOnTheWay()
{
    m_atStart = {runningLink(7, "ppp0", 0, 0), addressOn(7)};
    Participant window = join(Place::Foreground);
    window.links->tell(runningLink(7, "ppp0", 1000, 100));
    window.links->toCome = {runningLink(7, "ppp0", 2000, 200)};
    Participant background = join(Place::Background);
    background.links->atStart = {runningLink(7, "ppp0", 3000, 300), addressOn(7)};
    QTRY_VERIFY(background.isRecording());
    QVERIFY(!window.isRecording());
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    window.links->atStart = {runningLink(7, "ppp0", 4000, 400), addressOn(7)};
    background.end();
    QTRY_VERIFY(window.isRecording());
    window.links->tell(goneLink(7, "ppp0", 5000, 500));
    QCOMPARE(recordsIn(m_path), QStringList("ppp0 up 5000 down 500 normal"));
}

QTEST_GUILESS_MAIN(TestHandOver)
#include "tst_handover.moc"
