// SPDX-License-Identifier: MIT
#include "PlanSamples.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "usage/StandingPlan.h"
#include "usage/Totals.h"
#include "usage/UsageBars.h"

#include <QTest>

#include <limits>

using namespace history;
using namespace usage;

Q_DECLARE_METATYPE(usage::Grouping)

namespace
{

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
const std::int64_t lateInMay = 1717189200;         // 2024-05-31T23:00+02:00
const std::int64_t firstOfJune = lateInMay + 3600; // 2024-06-01T00:00+02:00

/// Roams from the first of June on, and ends then.
Connection web()
{
    Connection web = connection("web", lateInMay, firstOfJune + 60);
    web.connectedSeconds = 3660;
    web.operatorCode = "26201";
    web.sim = "8949000000000001111";
    web.roaming = abroad;
    web.uploadedBytes = 3;
    web.downloadedBytes = 30;
    web.hours = {{lateInMay, false, 1, 10}, {firstOfJune, true, 2, 20}};
    return web;
}

Connection iot()
{
    Connection iot = connection("iot", firstOfJune + 100, firstOfJune + 200);
    iot.connectedSeconds = 100;
    iot.operatorName = "Example";
    iot.operatorCode = "26202";
    iot.uploadedBytes = 4;
    iot.downloadedBytes = 40;
    iot.hours = {{firstOfJune, false, 4, 40}};
    return iot;
}

Grouping by(Period period)
{
    Grouping grouping;
    grouping.period = period;
    return grouping;
}

Grouping by(bool Grouping::*part)
{
    Grouping grouping;
    grouping.*part = true;
    return grouping;
}

/// What tells each sum apart, its connections, seconds and bytes.
QString totals(const Store &store, const Grouping &grouping, const TotalsScope &scope = {})
{
    const auto sums = sumsOf(store, scope, grouping);
    if (!sums)
        return "an error";
    QStringList texts;
    for (const Sum &sum : sums.value())
        texts << QString("%1%2 %3 %4 %5 %6 %7")
                     .arg(QString::fromStdString(sum.profile + sum.sim + sum.operatorName),
                          sum.isRoaming ? "roaming" : "", periodText(sum.period, grouping))
                     .arg(sum.connections)
                     .arg(sum.connectedSeconds)
                     .arg(sum.uploadedBytes)
                     .arg(sum.downloadedBytes)
                     .trimmed();
    return texts.join(", ");
}

} // namespace

/// Sums of a history, by what they are told apart by.
class TotalsTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void areToldApart_data();
    void areToldApart();
    void areOfTheScope();
    void countWholeConnectionsWhereTheyBegan();
    void sayWhatIsTooLarge();
    void areNotOfWhatCannotBeRead();
    void standInBars();
    void areThoseOfPlans();
};

void TotalsTest::areToldApart_data()
{
    QTest::addColumn<Grouping>("grouping");
    QTest::addColumn<QString>("expected");

    QTest::newRow("not at all") << Grouping() << "2 0 7 70";
    QTest::newRow("hours") << by(Period::Hour)
                           << "2024-05-31T23:00+02:00 1 0 1 10, 2024-06-01T00:00+02:00 2 0 6 60";
    QTest::newRow("days") << by(Period::Day) << "2024-05-31 1 0 1 10, 2024-06-01 2 0 6 60";
    QTest::newRow("months") << by(Period::Month) << "2024-05 1 0 1 10, 2024-06 2 0 6 60";
    QTest::newRow("years") << by(Period::Year) << "2024 2 0 7 70";
    Grouping billing = by(Period::Billing);
    billing.billing = MonthlyFrom{15};
    QTest::newRow("periods of a plan") << billing << "2024-05-15/2024-06-14 2 0 7 70";
    billing.billing = OnceBetween{dayNumber("2024-06-01"), dayNumber("2024-06-30")};
    QTest::newRow("one that has not begun") << billing << "2024-06-01/2024-06-30 2 0 6 60";
    QTest::newRow("profiles") << by(&Grouping::byProfile) << "iot  1 0 4 40, web  1 0 3 30";
    QTest::newRow("SIMs") << by(&Grouping::bySim) << "1 0 4 40, 8949000000000001111  1 0 3 30";
    QTest::newRow("operators, by their codes if need be")
        << by(&Grouping::byOperator) << "26201  1 0 3 30, Example  1 0 4 40";
    QTest::newRow("roaming") << by(&Grouping::byRoaming) << "2 0 5 50, roaming  1 0 2 20";
}

void TotalsTest::areToldApart()
{
    QFETCH(Grouping, grouping);
    const Store store = storeWith(m_path, {web(), iot()});
    QTEST(totals(store, grouping), "expected");
    QCOMPARE(grouping.isOneSum(), QString(QTest::currentDataTag()) == "not at all");
}

void TotalsTest::areOfTheScope()
{
    Store store = storeWith(m_path, {web(), iot()});
    TotalsScope scope;
    scope.days.first = QDate(2024, 6, 1);
    QCOMPARE(totals(store, {}, scope), QString("2 0 6 60"));
    scope.days = {{}, QDate(2024, 5, 31)};
    QCOMPARE(totals(store, {}, scope), QString("1 0 1 10"));
    scope.days = {};
    scope.coveredBy = planOf(MonthlyFrom{1});
    scope.coveredBy->network = DataPlan::Network::Home;
    QCOMPARE(totals(store, {}, scope), QString("2 0 5 50"));

    OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.startUtc = open.updatedUtc = firstOfJune;
    open.uploadedBytes = 100;
    open.hours = {{firstOfJune, false, 100, 0}};
    QVERIFY(store.begin(open));
    QCOMPARE(totals(store, {}), QString("3 0 107 70"));
    scope = {};
    scope.isOfFinished = true;
    QCOMPARE(totals(store, {}, scope), QString("2 0 7 70"));
}

void TotalsTest::countWholeConnectionsWhereTheyBegan()
{
    Connection unknown = iot(); // by the hour
    unknown.profile = "unknown";
    unknown.roaming = abroad;
    unknown.hours.clear();
    const Store store = storeWith(m_path, {web(), iot(), unknown});
    TotalsScope scope;
    scope.countsAtStart = true;
    QCOMPARE(totals(store, by(Period::Month), scope),
             QString("2024-05 1 3660 3 30, 2024-06 2 200 8 80"));
    QCOMPARE(totals(store, by(&Grouping::byRoaming), scope),
             QString("1 100 4 40, roaming  2 3760 7 70"));
    scope.coveredBy = planOf(MonthlyFrom{1});
    QCOMPARE(totals(store, by(&Grouping::byRoaming), scope),
             QString("2 200 8 80, roaming  1 3660 3 30"));
}

void TotalsTest::sayWhatIsTooLarge()
{
    Connection large = connection("large", lateInMay, lateInMay + 1);
    large.uploadedBytes = most;
    Connection other = large;
    other.profile = "other";
    const Store store = storeWith(m_path, {large, other});
    const auto apart = sumsOf(store, {}, by(&Grouping::byProfile)).value();
    QVERIFY(apart.size() == 2 && apart.front().tooLarge.empty());
    const auto sums = sumsOf(store, {}, {}).value();
    QCOMPARE(sums.front().tooLarge, std::string("bytes sent"));
    QCOMPARE(sums.front().uploadedBytes, most);
}

void TotalsTest::areNotOfWhatCannotBeRead()
{
    Store store = storeWith(m_path, {web()});
    runSql(m_path, "PRAGMA user_version = 1000");
    const QDate day(2024, 6, 1);
    QCOMPARE(totals(store, {}), QString("an error"));
    QVERIFY(!usageBars(store, planOf(MonthlyFrom{1}), BarUnit::Day, {day, day.addDays(1)}));
    QVERIFY(!standingPlans(store, lateInMay));
}

void TotalsTest::standInBars()
{
    const Store store = storeWith(m_path, {web(), iot()});
    const DataPlan plan = planOf(MonthlyFrom{31});
    const QDate day(2024, 6, 1);
    const BillingPeriod days = spanNear(plan.period, BarUnit::Day, day);
    QCOMPARE(dayText(days.first) + dayText(days.end), QString("2024-05-312024-06-30"));
    const auto bars = usageBars(store, plan, BarUnit::Day, days).value();
    QCOMPARE(bars.size(), std::size_t(30));
    QVERIFY(bars[0] == (UsageBar{days.first, {10, 1, 0, 0}}) && !bars[0].hasRoaming());
    QVERIFY(bars[1] == (UsageBar{day, {40, 4, 20, 2}}) && bars[1].hasRoaming());
    QVERIFY(bars[2] == (UsageBar{day.addDays(1), {}}));
    QCOMPARE(bars[1].total(), std::int64_t(66));
    QVERIFY(sumOf(bars) == (UsageBar{days.first, {50, 5, 20, 2}}));
    QVERIFY(sumOf({}) == UsageBar());
    QVERIFY(sumOf({{day, {most, 0, 0, 0}}, {day, {1, 1, 0, 0}}}) ==
            (UsageBar{day, {most, 1, 0, 0}}));

    const BillingPeriod year = spanNear(plan.period, BarUnit::Month, day);
    const auto months = usageBars(store, plan, BarUnit::Month, year).value();
    QCOMPARE(months.size(), std::size_t(12));
    QVERIFY(months[4] == (UsageBar{QDate(2024, 5, 1), {10, 1, 0, 0}}));
    QVERIFY(months[5] == (UsageBar{day, {40, 4, 20, 2}}));

    // The nearest period, and of one that is longer than a year its part in that year.
    const PeriodRule twoYears = OnceBetween{dayNumber("2024-03-01"), dayNumber("2026-02-28")};
    const auto spanOn = [](const PeriodRule &rule, const QDate &near) {
        const BillingPeriod span = spanNear(rule, BarUnit::Day, near);
        return dayText(span.first) + ' ' + dayText(span.last());
    };
    QCOMPARE(spanOn(twoYears, QDate(2020, 1, 1)), QString("2024-03-01 2024-12-31"));
    QCOMPARE(spanOn(twoYears, QDate(2025, 7, 1)), QString("2025-01-01 2025-12-31"));
    QCOMPARE(spanOn(twoYears, QDate(2030, 1, 1)), QString("2026-01-01 2026-02-28"));
    QCOMPARE(spanOn(EveryDays{7, dayNumber("2024-06-03")}, day), QString("2024-06-03 2024-06-09"));
}

void TotalsTest::areThoseOfPlans()
{
    Store store = storeWith(m_path, {web(), iot()});
    const PeriodRule june = OnceBetween{dayNumber("2024-06-01"), dayNumber("2024-06-30")};
    const auto states = [&store](std::int64_t utc) {
        QList<PlanState> each;
        const auto plans = standingPlans(store, utc);
        for (const StandingPlan &standing : plans.value())
            each << stateOf(standing);
        return each;
    };
    int number = 0;
    for (const std::int64_t amount : {67, 66, 82, 83}) { // 66 bytes are used
        DataPlan plan = planOf(june, amount);
        plan.name = std::to_string(++number);
        QVERIFY(store.setPlan(plan));
    }
    using State = PlanState;
    QCOMPARE(states(firstOfJune + 3600),
             (QList<State>{State::Warned, State::Spent, State::Warned, State::Within}));
    QCOMPARE(states(lateInMay),
             (QList<State>{State::NoPeriod, State::NoPeriod, State::NoPeriod, State::NoPeriod}));
}

QTEST_GUILESS_MAIN(TotalsTest)
#include "tst_totals.moc"
