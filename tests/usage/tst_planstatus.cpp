// SPDX-License-Identifier: MIT
#include "usage/PlanStatus.h"

#include "usage/SaturatingMath.h"

#include <QDateTime>
#include <QTest>

#include <limits>

using namespace history;
using namespace usage;

namespace
{

constexpr std::int64_t GB = 1'000'000'000;

/// 30 days, none of them longer or shorter than 24 hours.
const BillingPeriod november{QDate(2026, 11, 1), QDate(2026, 12, 1)};

std::int64_t local(int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2026, 11, day), QTime(hour, minute)).toSecsSinceEpoch();
}

DataPlan tenGigabytes()
{
    DataPlan plan;
    plan.amount = 10 * GB;
    return plan;
}

} // namespace

class PlanStatusTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatIsLeft();
    void countsWhatWasUsedElsewhereInThePresentPeriodAlone();
    void leavesLessThanNothing();
    void sharesWhatIsLeftAmongTheDaysLeft_data();
    void sharesWhatIsLeftAmongTheDaysLeft();
    void hasNoPaceInItsFirst24Hours();
    void goesOnLikeThis();
    void hasAPaceWithoutAnAmountToo();
    void warnsOnceAPercentageIsReached_data();
    void warnsOnceAPercentageIsReached();
    void neverOverflows();
    void warnsOfWhatWasNotWarnedOfYet();
};

void PlanStatusTest::tellsWhatIsLeft()
{
    const PlanStatus status = statusOf(tenGigabytes(), november, 3 * GB, local(19, 12));
    QCOMPARE(status.used, 3 * GB);
    QCOMPARE(*status.left, 7 * GB);
    QCOMPARE(status.daysLeft, 12);
    QCOMPARE(*status.leftADay, 583'333'333);
    const PlanStatus unlimited = statusOf({}, november, 3 * GB, local(19, 12));
    QVERIFY(!unlimited.left && !unlimited.leftADay && unlimited.warnings.empty());
}

void PlanStatusTest::countsWhatWasUsedElsewhereInThePresentPeriodAlone()
{
    DataPlan plan = tenGigabytes();
    plan.usedElsewhere = UsedElsewhere{2 * GB, QDate(2026, 11, 30).toJulianDay()};
    QCOMPARE(statusOf(plan, november, 3 * GB, local(19, 12)).used, 5 * GB);
    QCOMPARE(*statusOf(plan, november, 3 * GB, local(19, 12)).left, 5 * GB);
    QCOMPARE(useOf(plan, november, 3 * GB).used, 3 * GB);
    QCOMPARE(*useOf(plan, november, 3 * GB).left, 7 * GB);
    // It was of that period, not of each one from then on.
    plan.usedElsewhere->day = november.end.toJulianDay();
    QCOMPARE(statusOf(plan, november, 3 * GB, local(19, 12)).used, 3 * GB);
}

void PlanStatusTest::leavesLessThanNothing()
{
    const PlanStatus status = statusOf(tenGigabytes(), november, 11 * GB, local(30, 23, 59));
    QCOMPARE(*status.left, -GB);
    QCOMPARE(*status.leftADay, 0);
    QCOMPARE(status.daysLeft, 1);
}

void PlanStatusTest::sharesWhatIsLeftAmongTheDaysLeft_data()
{
    QTest::addColumn<qint64>("utc");
    QTest::addColumn<int>("daysLeft");
    QTest::addColumn<qint64>("leftADay");
    QTest::newRow("the period's first moment") << qint64(local(1, 0)) << 30 << qint64(333'333'333);
    QTest::newRow("a day's last minute") << qint64(local(1, 23, 59)) << 30 << qint64(333'333'333);
    QTest::newRow("its last day") << qint64(local(30, 12)) << 1 << qint64(10 * GB);
}

void PlanStatusTest::sharesWhatIsLeftAmongTheDaysLeft()
{
    QFETCH(qint64, utc);
    const PlanStatus status = statusOf(tenGigabytes(), november, 0, utc);
    QTEST(status.daysLeft, "daysLeft");
    QTEST(qint64(*status.leftADay), "leftADay");
}

void PlanStatusTest::hasNoPaceInItsFirst24Hours()
{
    QVERIFY(!statusOf(tenGigabytes(), november, GB, local(1, 23, 59)).pace);
    QCOMPARE(*statusOf(tenGigabytes(), november, GB, local(2, 0)).pace, 30 * GB);
}

void PlanStatusTest::goesOnLikeThis()
{
    const PlanStatus status = statusOf(tenGigabytes(), november, 1'000'000'001, local(11, 0));
    QCOMPARE(*status.pace, 3'000'000'003);
    QCOMPARE(*statusOf(tenGigabytes(), november, 100, local(8, 0)).pace, 428); // 428.57
    DataPlan plan;
    plan.usedElsewhere = UsedElsewhere{-101, november.first.toJulianDay()};
    QCOMPARE(*statusOf(plan, november, 1, local(8, 0)).pace, -429);
}

void PlanStatusTest::hasAPaceWithoutAnAmountToo()
{
    QCOMPARE(*statusOf({}, november, GB, local(16, 0)).pace, 2 * GB);
}

void PlanStatusTest::warnsOnceAPercentageIsReached_data()
{
    QTest::addColumn<qint64>("amount");
    QTest::addColumn<qint64>("used");
    QTest::addColumn<int>("warning"); // 0: none
    QTest::newRow("nothing used") << qint64(100) << qint64(0) << 0;
    QTest::newRow("a byte below") << qint64(100) << qint64(79) << 0;
    QTest::newRow("the byte itself") << qint64(100) << qint64(80) << 80;
    QTest::newRow("not rounded down") << qint64(99) << qint64(79) << 0;
    QTest::newRow("reached with a part") << qint64(99) << qint64(80) << 80;
    QTest::newRow("a byte left") << qint64(100) << qint64(99) << 80;
    QTest::newRow("spent") << qint64(100) << qint64(100) << 100;
    QTest::newRow("more than spent") << qint64(100) << qint64(1000) << 100;
    QTest::newRow("an amount of nothing") << qint64(0) << qint64(0) << 100;
}

void PlanStatusTest::warnsOnceAPercentageIsReached()
{
    QFETCH(qint64, amount);
    QFETCH(qint64, used);
    DataPlan plan;
    plan.amount = amount;
    const PlanStatus status = statusOf(plan, november, used, local(5, 0));
    QTEST(status.warnings.empty() ? 0 : status.warnings.back(), "warning");
    QCOMPARE(status.isSpent(), used >= amount);
}

void PlanStatusTest::neverOverflows()
{
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    DataPlan plan = tenGigabytes();
    plan.usedElsewhere = UsedElsewhere{most, november.first.toJulianDay()};
    const PlanStatus status = statusOf(plan, november, most, local(2, 0));
    QCOMPARE(status.used, most);
    QCOMPARE(*status.pace, most);
    QCOMPARE(*status.left, 10 * GB - most);
    QCOMPARE(status.warnings, (std::vector<int>{80, 100}));
    QCOMPARE(saturatingDifference(-2, most), std::numeric_limits<std::int64_t>::min());
}

void PlanStatusTest::warnsOfWhatWasNotWarnedOfYet()
{
    using Percentages = std::vector<int>;
    const auto due = [](std::int64_t used, const Percentages &given) {
        DataPlan plan = tenGigabytes();
        plan.warnAtPercent = {50, 80, 100};
        return dueWarnings(statusOf(plan, november, used, local(5, 0)), given);
    };
    QCOMPARE(due(4 * GB, {}), Percentages());
    QCOMPARE(due(9 * GB, {}), (Percentages{50, 80}));
    QCOMPARE(due(9 * GB, {50}), Percentages{80});
    QCOMPARE(due(9 * GB, {50, 80}), Percentages());
    QCOMPARE(due(10 * GB, {50, 80}), Percentages{100});
    // What was warned of stays so when a correction takes some of it back.
    QCOMPARE(due(6 * GB, {80}), Percentages{50});
}

QTEST_GUILESS_MAIN(PlanStatusTest)
#include "tst_planstatus.moc"
