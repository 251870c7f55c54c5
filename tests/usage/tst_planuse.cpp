// SPDX-License-Identifier: MIT
#include "usage/PlanUse.h"

#include "LocalZone.h"
#include "PlanSamples.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <QTest>

using namespace history;
using namespace usage;

namespace
{

Connection movedIn(std::int64_t hour, std::int64_t uploaded, std::int64_t downloaded,
                   bool isRoaming = false)
{
    Connection moved = connection("internet", hour + 60, hour + 120);
    moved.uploadedBytes = uploaded;
    moved.downloadedBytes = downloaded;
    moved.hours = {{hour, isRoaming, uploaded, downloaded}};
    return moved;
}

using Moved = QVector<QPair<QString, qint64>>;

} // namespace

Q_DECLARE_METATYPE(PeriodRule)
Q_DECLARE_METATYPE(DataPlan)

class PlanUseTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void tellsHowItStands_data();
    void tellsHowItStands();
    void countsWhatItCovers_data();
    void countsWhatItCovers();
    void countsAConnectionWithoutHoursAtItsStartAsHome();
    void countsTheRunningConnection();
    void tellsHowItStoodThen();
    void tellsThePeriodsBefore();
};

void PlanUseTest::tellsHowItStands_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<PeriodRule>("rule");
    QTest::addColumn<Moved>("moved"); // bytes in the hour that begins then
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("status");
    const auto row = [](const char *name, const char *zone, const PeriodRule &rule,
                        const Moved &moved, const char *now, const char *status) {
        QTest::newRow(name) << QByteArray(zone) << rule << moved << QString(now) << QString(status);
    };
    const char *const berlin = "Europe/Berlin";

    row("a month's end that is the billing day", berlin, MonthlyFrom{31},
        {{"2026-02-27T22:00:00Z", 100}, {"2026-02-27T23:00:00Z", 200}}, "2026-02-28T11:00:00Z",
        "2026-02-28 to 2026-03-30: 200, 9800, 31, 316, no pace");
    row("the day before it", berlin, MonthlyFrom{31},
        {{"2026-01-30T22:00:00Z", 100}, {"2026-02-27T22:00:00Z", 2000}}, "2026-02-27T22:59:59Z",
        "2026-01-31 to 2026-02-27: 2000, 8000, 1, 8000, 2000");
    // 695 hours, 30 of which have gone.
    row("a leap day", berlin, MonthlyFrom{29},
        {{"2028-02-28T22:00:00Z", 1000},
         {"2028-02-28T23:00:00Z", 500},
         {"2028-03-01T04:00:00Z", 250}},
        "2028-03-01T05:00:00Z", "2028-02-29 to 2028-03-28: 750, 9250, 28, 330, 17375");
    row("no leap day", berlin, MonthlyFrom{29}, {{"2026-02-27T23:00:00Z", 500}},
        "2026-02-28T23:00:00Z", "2026-02-28 to 2026-03-28: 500, 9500, 28, 339, 14500");
    // 671 hours, half an hour of which is left.
    row("28 days whose last is short", berlin, EveryDays{28, dayNumber("2026-03-02")},
        {{"2026-03-01T23:00:00Z", 1}, {"2026-03-29T21:00:00Z", 300}, {"2026-03-29T22:00:00Z", 999}},
        "2026-03-29T21:30:00Z", "2026-03-02 to 2026-03-29: 301, 9699, 1, 9699, 301");
    row("the next 28 days", berlin, EveryDays{28, dayNumber("2026-03-02")},
        {{"2026-03-29T21:00:00Z", 300}, {"2026-03-29T22:00:00Z", 999}}, "2026-03-29T22:00:00Z",
        "2026-03-30 to 2026-04-26: 999, 9001, 28, 321, no pace");
    // 673 hours, 192 of which have gone.
    row("28 days with a long one", berlin, EveryDays{28, dayNumber("2026-10-05")},
        {{"2026-10-04T21:00:00Z", 7}, {"2026-10-04T22:00:00Z", 100}}, "2026-10-12T22:00:00Z",
        "2026-10-05 to 2026-11-01: 100, 9900, 20, 495, 350");
    row("23 hours of a day that is no longer", berlin, MonthlyFrom{29},
        {{"2026-03-28T23:00:00Z", 24}}, "2026-03-29T22:00:00Z",
        "2026-03-29 to 2026-04-28: 24, 9976, 30, 332, no pace");
    row("24 hours have gone", berlin, MonthlyFrom{29}, {{"2026-03-28T23:00:00Z", 24}},
        "2026-03-29T23:00:00Z", "2026-03-29 to 2026-04-28: 24, 9976, 30, 332, 743");
    row("prepaid, its last second", berlin,
        OnceBetween{dayNumber("2026-11-10"), dayNumber("2026-12-09")},
        {{"2026-11-09T22:00:00Z", 50}, {"2026-11-09T23:00:00Z", 10500}}, "2026-12-09T22:59:59Z",
        "2026-11-10 to 2026-12-09: 10500, -500, 1, 0, 10500");
    row("prepaid, over", berlin, OnceBetween{dayNumber("2026-11-10"), dayNumber("2026-12-09")},
        {{"2026-11-09T23:00:00Z", 10500}}, "2026-12-09T23:00:00Z", "none");
    row("prepaid, not begun", berlin, OnceBetween{dayNumber("2026-11-10"), dayNumber("2026-12-09")},
        {{"2026-11-09T22:00:00Z", 50}}, "2026-11-09T22:59:59Z", "none");
    row("at home", berlin, MonthlyFrom{1}, {{"2026-11-01T02:00:00Z", 40}}, "2026-11-01T03:00:00Z",
        "2026-11-01 to 2026-11-30: 40, 9960, 30, 332, no pace");
    // 745 hours, all but one and the one just begun have gone.
    row("the same moment after a flight", "America/New_York", MonthlyFrom{1},
        {{"2026-11-01T02:00:00Z", 40}}, "2026-11-01T03:00:00Z",
        "2026-10-01 to 2026-10-31: 40, 9960, 1, 9960, 40");
    row("an hour that begins half an hour before midnight", "Asia/Kolkata", MonthlyFrom{1},
        {{"2026-10-31T18:00:00Z", 30}, {"2026-10-31T19:00:00Z", 70}}, "2026-11-01T18:30:00Z",
        "2026-11-01 to 2026-11-30: 70, 9930, 29, 342, 2100");
    row("nothing used", berlin, MonthlyFrom{1}, {}, "2026-11-16T23:00:00Z",
        "2026-11-01 to 2026-11-30: 0, 10000, 14, 714, 0");
}

void PlanUseTest::tellsHowItStands()
{
    QFETCH(QByteArray, zone);
    QFETCH(PeriodRule, rule);
    QFETCH(Moved, moved);
    QFETCH(QString, now);
    const LocalZone local(zone);
    Store store = storeWith(m_path, {});
    for (const auto &[hour, bytes] : moved)
        QVERIFY(store.add(movedIn(utcOf(hour), bytes, 0)));
    QTEST(textOf(currentStatus(store, planOf(rule), utcOf(now))), "status");
}

void PlanUseTest::countsWhatItCovers_data()
{
    QTest::addColumn<DataPlan>("plan");
    QTest::addColumn<qint64>("used");
    const auto row = [](const char *name, qint64 used, auto change) {
        DataPlan plan = planOf(MonthlyFrom{});
        change(plan);
        QTest::newRow(name) << plan << used;
    };
    // The digits are sent at home, received at home, sent roaming, received roaming, in
    // millions of "other" with a SIM, else of "internet" without one.
    row("everything", 10'000'010, [](DataPlan &) {});
    row("a profile", 10, [](DataPlan &plan) {
        plan.covers = DataPlan::Covers::Profile;
        plan.covered = "internet";
    });
    row("another case is another profile", 0, [](DataPlan &plan) {
        plan.covers = DataPlan::Covers::Profile;
        plan.covered = "Internet";
    });
    row("a SIM", 10'000'000, [](DataPlan &plan) {
        plan.covers = DataPlan::Covers::Sim;
        plan.covered = "8949000000000001234";
    });
    row("a SIM by its end", 10'000'000, [](DataPlan &plan) {
        plan.covers = DataPlan::Covers::Sim;
        plan.covered = "1234";
    });
    row("no SIM", 10, [](DataPlan &plan) { plan.covers = DataPlan::Covers::Sim; });
    row("home", 3'000'003, [](DataPlan &plan) { plan.network = DataPlan::Network::Home; });
    row("roaming", 7'000'007, [](DataPlan &plan) { plan.network = DataPlan::Network::Roaming; });
    row("received", 6'000'006, [](DataPlan &plan) { plan.counts = DataPlan::Counts::Received; });
    row("sent", 4'000'004, [](DataPlan &plan) { plan.counts = DataPlan::Counts::Sent; });
    row("sent while roaming with the SIM", 3'000'000, [](DataPlan &plan) {
        plan.covers = DataPlan::Covers::Sim;
        plan.covered = "1234";
        plan.counts = DataPlan::Counts::Sent;
        plan.network = DataPlan::Network::Roaming;
    });
}

void PlanUseTest::countsWhatItCovers()
{
    QFETCH(DataPlan, plan);
    QFETCH(qint64, used);
    Store store = storeWith(m_path, {});
    for (const std::int64_t unit : {1, 1'000'000}) {
        for (const bool isRoaming : {false, true}) {
            Connection moved = movedIn(utcOf("2026-11-05T10:00:00Z"), (isRoaming ? 3 : 1) * unit,
                                       (isRoaming ? 4 : 2) * unit, isRoaming);
            if (unit != 1) {
                moved.profile = "other";
                moved.sim = "8949000000000001234";
            }
            QVERIFY(store.add(moved));
        }
    }
    const auto status = currentStatus(store, plan, utcOf("2026-11-05T12:00:00Z"));
    QCOMPARE(status.value()->used, used);
}

void PlanUseTest::countsAConnectionWithoutHoursAtItsStartAsHome()
{
    Store store = storeWith(m_path, {});
    Connection imported = movedIn(utcOf("2026-10-31T22:00:00Z"), 5, 6);
    imported.startUtc = utcOf("2026-10-31T23:00:00Z") - 1;
    imported.endUtc = imported.startUtc + 7200;
    imported.roaming = abroad;
    imported.hours.clear();
    QVERIFY(store.add(imported));
    DataPlan plan = planOf(MonthlyFrom{});
    plan.network = DataPlan::Network::Home;
    QCOMPARE(currentStatus(store, plan, utcOf("2026-10-31T12:00:00Z")).value()->used, 11);
    QCOMPARE(currentStatus(store, plan, utcOf("2026-11-01T12:00:00Z")).value()->used, 0);
}

void PlanUseTest::countsTheRunningConnection()
{
    Store store = storeWith(m_path, {});
    OpenConnection open;
    open.bootId = "boot";
    open.startUtc = utcOf("2026-10-31T22:30:00Z");
    open.updatedUtc = open.startUtc + 7200;
    open = store.begin(open).value();
    open.uploadedBytes = 12;
    open.hours = {{utcOf("2026-10-31T22:00:00Z"), false, 2, 0},
                  {utcOf("2026-10-31T23:00:00Z"), false, 10, 0}};
    QVERIFY(store.checkpoint(open));
    const DataPlan plan = planOf(MonthlyFrom{});
    QCOMPARE(currentStatus(store, plan, utcOf("2026-11-01T12:00:00Z")).value()->used, 10);
}

void PlanUseTest::tellsHowItStoodThen()
{
    Store store = storeWith(m_path, {movedIn(utcOf("2026-11-05T10:00:00Z"), 100, 0),
                                     movedIn(utcOf("2026-11-05T11:00:00Z"), 1000, 0)});
    const DataPlan plan = planOf(MonthlyFrom{});
    const auto usedAt = [&](const char *time) {
        return statusAt(store, plan, utcOf(time)).value()->used;
    };
    QCOMPARE(usedAt("2026-11-05T10:00:00Z"), 0);
    QCOMPARE(usedAt("2026-11-05T10:00:01Z"), 100);
    QCOMPARE(usedAt("2026-11-05T11:00:00Z"), 100);
    QCOMPARE(usedAt("2026-11-05T11:00:01Z"), 1100);
    QCOMPARE(usedAt("2026-12-05T11:00:01Z"), 0);
    // A clock that was ahead does not take bytes out of the period.
    QCOMPARE(currentStatus(store, plan, utcOf("2026-11-05T10:30:00Z")).value()->used, 1100);
}

void PlanUseTest::tellsThePeriodsBefore()
{
    Store store = storeWith(m_path, {movedIn(utcOf("2026-08-30T22:00:00Z"), 9, 0),
                                     movedIn(utcOf("2026-08-31T22:00:00Z"), 10, 0),
                                     movedIn(utcOf("2026-10-31T22:00:00Z"), 20000, 0),
                                     movedIn(utcOf("2026-10-31T23:00:00Z"), 30, 0)});
    const auto textOfPast = [&](const PeriodRule &rule, const char *now) {
        DataPlan plan = planOf(rule);
        plan.usedElsewhere = UsedElsewhere{5000, dayNumber("2026-10-10")};
        QStringList texts;
        const auto uses = pastUses(store, plan, utcOf(now));
        for (const PeriodUse &use : uses.value())
            texts << QString("%1 to %2: %3, %4")
                         .arg(dayText(use.period.first), dayText(use.period.last()))
                         .arg(use.used)
                         .arg(*use.left);
        return texts.join("; ");
    };
    QCOMPARE(textOfPast(MonthlyFrom{1}, "2026-11-05T10:00:00Z"),
             QString("2026-10-01 to 2026-10-31: 20000, -10000; "
                     "2026-09-01 to 2026-09-30: 10, 9990; 2026-08-01 to 2026-08-31: 9, 9991"));
    QCOMPARE(
        textOfPast(EveryDays{28, dayNumber("2026-09-15")}, "2026-11-20T10:00:00Z"),
        QString("2026-10-13 to 2026-11-09: 20030, -10030; 2026-09-15 to 2026-10-12: 0, 10000"));
    const PeriodRule once = OnceBetween{dayNumber("2026-10-01"), dayNumber("2026-10-31")};
    QCOMPARE(textOfPast(once, "2026-10-31T22:59:59Z"), QString());
    QCOMPARE(textOfPast(once, "2026-10-31T23:00:00Z"),
             QString("2026-10-01 to 2026-10-31: 20000, -10000"));
    QCOMPARE(textOfPast(MonthlyFrom{1}, "2026-08-05T10:00:00Z"), QString());
    // No present one is put before it.
    const auto all = allUses(store, planOf(once), utcOf("2026-10-31T23:00:00Z"));
    QCOMPARE(all.value().size(), std::size_t(1));
    QCOMPARE(all.value().front().used, std::int64_t(20000));
}

QTEST_GUILESS_MAIN(PlanUseTest)
#include "tst_planuse.moc"
