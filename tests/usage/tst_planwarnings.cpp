// SPDX-License-Identifier: MIT
#include "usage/PlanWarnings.h"

#include "PlanSamples.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "usage/PlanChange.h"

#include <QTest>

using namespace history;
using namespace usage;

namespace
{

using Percentages = std::vector<int>;

} // namespace

class PlanWarningsTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void init();

    void areGivenOnceInAPeriod();
    void areGivenByOneProgram();
    void areNotGivenOfARemovedPlan();
    void writeNothingIfNoneIsDue();
    void areNotGivenIfTheyCannotBeNoted();
    void areGivenAgainOfAnAmountThatHasNotReachedThem();
    void areOfPlansThatHaveReachedOne();

private:
    Percentages taken(Store &store, std::int64_t used, const QDate &day) const;

    DataPlan m_plan;
};

void PlanWarningsTest::init()
{
    StoreTestCase::init();
    m_plan = planOf(MonthlyFrom{15});
    m_plan.warnAtPercent = {50, 80, 100};
    m_plan.key = storeWith(m_path, {}).setPlan(m_plan).value();
}

/// What is to be warned of once that many of 10000 bytes are used.
Percentages PlanWarningsTest::taken(Store &store, std::int64_t used, const QDate &day) const
{
    const std::int64_t noon = QDateTime(day, QTime(12, 0)).toSecsSinceEpoch();
    const auto period = periodAt(m_plan.period, noon);
    const auto taken = takeWarnings(store, {m_plan, statusOf(m_plan, *period, used, noon)});
    return taken ? taken.value() : Percentages{-1};
}

void PlanWarningsTest::areGivenOnceInAPeriod()
{
    const QDate day(2026, 11, 20);
    const auto takenAfterARestart = [this](std::int64_t used, const QDate &onDay) {
        Store store = storeWith(m_path, {});
        return taken(store, used, onDay);
    };
    QCOMPARE(takenAfterARestart(4999, day), Percentages());
    QCOMPARE(takenAfterARestart(5000, day), Percentages{50});
    QCOMPARE(takenAfterARestart(5001, day), Percentages());
    QCOMPARE(takenAfterARestart(20000, day), (Percentages{80, 100}));
    QCOMPARE(takenAfterARestart(20000, QDate(2026, 12, 14)), Percentages());
    QCOMPARE(takenAfterARestart(8000, QDate(2026, 12, 15)), (Percentages{50, 80}));
}

void PlanWarningsTest::areGivenByOneProgram()
{
    Store one = storeWith(m_path, {});
    Store other = storeWith(m_path, {});
    QCOMPARE(taken(one, 8000, QDate(2026, 11, 20)), (Percentages{50, 80}));
    QCOMPARE(taken(other, 10000, QDate(2026, 11, 20)), Percentages{100});
    QCOMPARE(taken(one, 10000, QDate(2026, 11, 20)), Percentages());
}

void PlanWarningsTest::areNotGivenOfARemovedPlan()
{
    Store store = storeWith(m_path, {});
    QVERIFY(store.removePlan(m_plan.name).value());
    QCOMPARE(taken(store, 8000, QDate(2026, 11, 20)), Percentages());
}

void PlanWarningsTest::writeNothingIfNoneIsDue()
{
    Store store = storeWith(m_path, {});
    QCOMPARE(taken(store, 8000, QDate(2026, 11, 20)), (Percentages{50, 80}));
    const QString log = QString::fromStdString(m_path) + "-wal";
    const QByteArray before = contentsOf(log);
    QVERIFY(!before.isEmpty());
    QCOMPARE(taken(store, 9000, QDate(2026, 11, 20)), Percentages());
    QCOMPARE(contentsOf(log), before);
}

void PlanWarningsTest::areNotGivenIfTheyCannotBeNoted()
{
    Store store = storeWith(m_path, {});
    runSql(m_path, "PRAGMA user_version = 1000");
    QCOMPARE(taken(store, 8000, QDate(2026, 11, 20)), Percentages{-1});
}

/// 7000 bytes are used, elsewhere.
void PlanWarningsTest::areGivenAgainOfAnAmountThatHasNotReachedThem()
{
    const QDate day(2026, 11, 20);
    const std::int64_t noon = QDateTime(day, QTime(12, 0)).toSecsSinceEpoch();
    Store store = storeWith(m_path, {});
    QCOMPARE(taken(store, 7000, day), Percentages{50});
    const auto takenOf = [&](std::int64_t amount, std::int64_t used) {
        DataPlan changed = m_plan;
        changed.amount = amount;
        changed.usedElsewhere = UsedElsewhere{7000, day.toJulianDay()};
        if (!replacePlan(store, changed, m_plan, noon))
            return Percentages{-1};
        m_plan = changed;
        m_plan.usedElsewhere.reset();
        return store.setPlan(m_plan) ? taken(store, used, day) : Percentages{-1};
    };
    QCOMPARE(takenOf(12000, 7000), Percentages());
    QCOMPARE(takenOf(14000, 7000), Percentages());
    QCOMPARE(takenOf(14001, 7000), Percentages());
    QCOMPARE(takenOf(14002, 7001), Percentages{50});
}

/// 60 of 100 bytes are used elsewhere.
void PlanWarningsTest::areOfPlansThatHaveReachedOne()
{
    const QDate day(2026, 11, 20);
    const std::int64_t noon = QDateTime(day, QTime(12, 0)).toSecsSinceEpoch();
    Store store = storeWith(m_path, {});
    const auto addPlan = [&store](const std::string &name, const DataPlan &plan) {
        DataPlan named = plan;
        named.name = name;
        return bool(store.setPlan(named));
    };
    DataPlan plan = planOf(OnceBetween{dayNumber("2026-11-01"), dayNumber("2026-11-30")}, 100);
    QVERIFY(!setUsedElsewhere(plan, 60, QDate(2026, 12, 1)));
    QVERIFY(!plan.usedElsewhere);
    QVERIFY(setUsedElsewhere(plan, 60, day));
    setWarnings(plan, {90, 50, 90, 60});
    QCOMPARE(plan.warnAtPercent, (Percentages{50, 60, 90}));
    QVERIFY(addPlan("reached", plan));
    setWarnings(plan, {61});
    QVERIFY(addPlan("not reached", plan));
    setWarnings(plan, {});
    QVERIFY(addPlan("never", plan));
    setWarnings(plan, {50});
    plan.amount.reset();
    QVERIFY(addPlan("unlimited", plan));
    QVERIFY(setUsedElsewhere(plan, 0, QDate(2026, 12, 1)));
    QVERIFY(!plan.usedElsewhere);

    const auto reached = reachedPlans(store, noon).value();
    QCOMPARE(reached.size(), std::size_t(1));
    QCOMPARE(reached.front().plan.name, std::string("reached"));
    QCOMPARE(takeWarnings(store, reached.front()).value(), (Percentages{50, 60}));
    QCOMPARE(returnWarnings(store, reached.front(), {60}).value(), std::size_t(1));
    QCOMPARE(pendingWarnings(store, reached.front()).value(), Percentages{60});
    QVERIFY(reachedPlans(store, noon + 30 * 86400).value().empty());
    runSql(m_path, "PRAGMA user_version = 1000");
    QVERIFY(!reachedPlans(store, noon));
    QVERIFY(!pendingWarnings(store, reached.front()));
    QVERIFY(!replacePlan(store, plan, std::nullopt, noon));
}

QTEST_GUILESS_MAIN(PlanWarningsTest)
#include "tst_planwarnings.moc"
