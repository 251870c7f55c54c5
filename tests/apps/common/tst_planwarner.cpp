// SPDX-License-Identifier: MIT
#include "apps/common/PlanWarner.h"

#include "NotificationDaemon.h"
#include "PlanSamples.h"
#include "PrivateBus.h"
#include "RecorderTest.h"

#include <memory>

using namespace history;
using common::PlanWarner;
using Manner = NotificationDaemon::Manner;

/// Warnings that a notification service does not show, of a plan that is used up to 60 % when
/// the program starts, and that warns at 50 %.
class PlanWarnerTest : public RecorderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void leavesARefusedWarningToTheNextService();
    void leavesARefusedWarningToTheNextProgram();
    void givesAWarningAgainWhoseServiceWentWithoutAnAnswer();
    void givesAShownWarningOnceThoughTheServiceGoes();
    void asksAServiceThatRefusesOnlyNowAndThen();

private:
    /// As a program does that starts to record.
    bool startProgram();
    bool startDesktop();
    std::vector<int> given() const;
    QStringList titles() const { return m_desktop->titles(); }

    DataPlan m_plan;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<NotificationDaemon> m_desktop;
    std::unique_ptr<PlanWarner> m_warner;
};

namespace
{

const QStringList theWarning{QStringLiteral("50 % of the data plan \"plan\" used")};

} // namespace

void PlanWarnerTest::init()
{
    RecorderTest::init();
    m_bus = std::make_unique<PrivateBus>(m_folder->path());
    QVERIFY(m_bus->start());
    QVERIFY(startDesktop());

    const JulianDay today = QDate::currentDate().toJulianDay();
    m_plan = planOf(OnceBetween{today, today + 1}, 100);
    m_plan.usedElsewhere = UsedElsewhere{60, today};
    m_plan.warnAtPercent = {50};
    auto store = Store::openOrCreate(m_path.toStdString());
    QVERIFY(store);
    m_plan.key = store.value().setPlan(m_plan).value();
}

void PlanWarnerTest::cleanup()
{
    m_warner.reset();
    m_desktop.reset();
    m_bus.reset();
    RecorderTest::cleanup();
}

bool PlanWarnerTest::startProgram()
{
    m_warner.reset();
    m_recorder.reset();
    if (!start())
        return false;
    m_warner = std::make_unique<PlanWarner>(*m_recorder, m_path, m_bus->address(),
                                            std::chrono::milliseconds(1));
    return true;
}

/// The bus may notice only later that the former one has gone.
bool PlanWarnerTest::startDesktop()
{
    if (m_desktop)
        m_desktop->giveNameAway();
    m_desktop = std::make_unique<NotificationDaemon>(m_bus->address());
    return m_desktop->takeName();
}

std::vector<int> PlanWarnerTest::given() const
{
    const auto store = Store::openForReading(m_path.toStdString());
    const auto given =
        store.value().warningsGiven(m_plan.key, std::get<OnceBetween>(m_plan.period).first);
    return given ? given.value() : std::vector<int>{-1};
}

void PlanWarnerTest::leavesARefusedWarningToTheNextService()
{
    m_desktop->setManner(Manner::Refuses);
    QVERIFY(startProgram());
    QTRY_COMPARE(m_desktop->notShown(), 1);
    QTRY_COMPARE(given(), std::vector<int>());
    QVERIFY(startDesktop());
    QTRY_COMPARE(titles(), theWarning);
    QCOMPARE(given(), std::vector<int>{50});
}

void PlanWarnerTest::leavesARefusedWarningToTheNextProgram()
{
    m_desktop->setManner(Manner::Refuses);
    QVERIFY(startProgram());
    QTRY_COMPARE(m_desktop->notShown(), 1);
    QTRY_COMPARE(given(), std::vector<int>());
    m_desktop->setManner(Manner::Shows);
    QVERIFY(startProgram());
    QTRY_COMPARE(titles(), theWarning);
}

void PlanWarnerTest::givesAWarningAgainWhoseServiceWentWithoutAnAnswer()
{
    m_desktop->setManner(Manner::SaysNothing);
    QVERIFY(startProgram());
    QTRY_COMPARE(m_desktop->notShown(), 1);
    QCOMPARE(given(), std::vector<int>{50});
    m_desktop.reset();
    QTRY_COMPARE(given(), std::vector<int>());
    QVERIFY(startDesktop());
    QTRY_COMPARE(titles(), theWarning);
}

void PlanWarnerTest::givesAShownWarningOnceThoughTheServiceGoes()
{
    QVERIFY(startProgram());
    QTRY_COMPARE(titles(), theWarning);
    QVERIFY(startDesktop());
    QVERIFY(startProgram());
    QSignalSpy checks(m_warner.get(), &PlanWarner::checked);
    QTRY_COMPARE(checks.count(), 1);
    QCOMPARE(given(), std::vector<int>{50});
    QCOMPARE(titles(), QStringList());
}

void PlanWarnerTest::asksAServiceThatRefusesOnlyNowAndThen()
{
    m_desktop->setManner(Manner::Refuses);
    QVERIFY(startProgram());
    QTRY_COMPARE(m_desktop->notShown(), 1);
    QTRY_COMPARE(given(), std::vector<int>());
    QSignalSpy checks(m_warner.get(), &PlanWarner::checked);
    for (int i = 1; i <= 5; ++i) {
        m_warner->requestCheck();
        QTRY_COMPARE(checks.count(), i);
    }
    QCOMPARE(given(), std::vector<int>());
    QCOMPARE(m_desktop->notShown(), 1);
}

QTEST_GUILESS_MAIN(PlanWarnerTest)

#include "tst_planwarner.moc"
