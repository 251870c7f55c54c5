// SPDX-License-Identifier: MIT
#include "LocalZone.h"
#include "StoreSamples.h"
#include "UsageFiguresCase.h"
#include "usage/CalendarTime.h"

#include <QTest>

#include <random>

using history::DataPlan;
using history::EveryDays;
using history::MonthlyFrom;
using history::OnceBetween;
using refdialer::UsageFigures;
using refdialer::UsageRequest;
using refdialer::UsageSubject;
using usage::BarUnit;
using Kind = UsageSubject::Kind;

/// What a page of usage shows of a real store. The figures are worked out by hand.
class UsageFiguresTest : public UsageFiguresCase
{
    Q_OBJECT

private slots:
    void countsWhereTheHoursBegin_data();
    void countsWhereTheHoursBegin();
    void countsAConnectionWithoutHoursAtItsStart();
    void countsTheRunningConnection();
    void showsTheMonthsOfAYear();
    void showsThePeriodOfAPlan_data();
    void showsThePeriodOfAPlan();
    void countsWhatThePlanCovers();
    void offersWhatThereIsToChooseFrom();
    void showsTheFirstPlanUnlessSomethingElseIsChosen();
    void leadsToEachTimeOfTheHistoryOnce_data();
    void leadsToEachTimeOfTheHistoryOnce();
    void stopsAtTheLargestSum();
};

void UsageFiguresTest::countsWhereTheHoursBegin_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QStringList>("hours");
    QTest::addColumn<QByteArray>("day");
    QTest::addColumn<QString>("bars");
    const QByteArray berlin = "Europe/Berlin";

    const QStringList acrossTheTurn = {"2026-10-31T22:00:00Z 10/1", "2026-10-31T23:00:00Z 20/2",
                                       "2026-11-01T00:00:00Z 40/4"};
    QTest::newRow("the month before midnight")
        << berlin << acrossTheTurn << QByteArray("2026-10-05") << "2026-10-31: 10/1";
    QTest::newRow("the month behind midnight")
        << berlin << acrossTheTurn << QByteArray("2026-11-30") << "2026-11-01: 60/6";
    QTest::newRow("roaming from midnight for an hour")
        << berlin
        << QStringList{"2026-11-07T22:00:00Z 10/1", "2026-11-07T23:00:00Z 20/2r",
                       "2026-11-08T00:00:00Z 40/4"}
        << QByteArray("2026-11-01") << "2026-11-07: 10/1, 2026-11-08: 40/4 + 20/2r";
    QStringList days;
    // 25 October lasts from 22:00 UTC for 25 hours, 29 March from 23:00 UTC for 23.
    for (std::int64_t utc = utcOf("2026-10-24T21:00:00Z"); utc <= utcOf("2026-10-25T23:00:00Z");
         utc += 3600)
        days.append(usage::utcText(utc) + " 1/2");
    QTest::newRow("clocks set back") << berlin << days << QByteArray("2026-10-01")
                                     << "2026-10-24: 1/2, 2026-10-25: 25/50, 2026-10-26: 1/2";
    days.clear();
    for (std::int64_t utc = utcOf("2026-03-28T22:00:00Z"); utc <= utcOf("2026-03-29T22:00:00Z");
         utc += 3600)
        days.append(usage::utcText(utc) + " 1/2");
    QTest::newRow("clocks set forward") << berlin << days << QByteArray("2026-03-01")
                                        << "2026-03-28: 1/2, 2026-03-29: 23/46, 2026-03-30: 1/2";
    QTest::newRow("hours that begin at half past")
        << QByteArray("Asia/Kolkata")
        << QStringList{"2026-11-30T18:00:00Z 1/0", "2026-11-30T19:00:00Z 2/0"}
        << QByteArray("2026-12-01") << "2026-12-01: 2/0";
}

void UsageFiguresTest::countsWhereTheHoursBegin()
{
    QFETCH(QByteArray, zone);
    QFETCH(QStringList, hours);
    QFETCH(QByteArray, day);
    const LocalZone local(zone.constData());
    store(hours);
    QTEST(textOf(figures(requestFor(day), "2026-12-24").bars), "bars");
}

void UsageFiguresTest::countsAConnectionWithoutHoursAtItsStart()
{
    history::Connection old =
        connection("internet", utcOf("2026-10-31T22:59:59Z"), utcOf("2026-11-01T05:00:00Z"));
    old.uploadedBytes = 3;
    old.downloadedBytes = 30;
    old.roaming = history::abroad;
    storeWith(m_path, {old});
    QCOMPARE(textOf(figures(requestFor("2026-10-01"), "2026-11-01").bars),
             QString("2026-10-31: 30/3"));
}

void UsageFiguresTest::countsTheRunningConnection()
{
    store({"2026-11-20T08:00:00Z 10/1"});
    history::OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.startUtc = open.updatedUtc = utcOf("2026-11-20T09:30:00Z");
    open.uploadedBytes = 5;
    open.downloadedBytes = 50;
    open.hours = {{utcOf("2026-11-20T09:00:00Z"), false, 5, 50}};
    QVERIFY(history::Store::openOrCreate(m_path).value().begin(open));
    QCOMPARE(textOf(figures({}, "2026-11-20").bars), QString("2026-11-20: 60/6"));
}

void UsageFiguresTest::showsTheMonthsOfAYear()
{
    store({"2025-12-31T22:00:00Z 1/0", "2025-12-31T23:00:00Z 2/0", "2026-02-28T22:00:00Z 4/0",
           "2026-02-28T23:00:00Z 8/0", "2026-12-31T22:00:00Z 16/0", "2026-12-31T23:00:00Z 32/0"});
    const UsageFigures year = figures(requestFor("2026-06-15", BarUnit::Month), "2027-03-01");
    QCOMPARE(int(year.bars.size()), 12);
    QCOMPARE(textOf(year.bars),
             QString("2026-01-01: 2/0, 2026-02-01: 4/0, 2026-03-01: 8/0, 2026-12-01: 16/0"));
    QCOMPARE(year.previous, QDate(2025, 12, 31));
    QCOMPARE(year.next, QDate(2027, 1, 1));
}

void UsageFiguresTest::showsThePeriodOfAPlan_data()
{
    QTest::addColumn<int>("rule");
    QTest::addColumn<QByteArray>("day");
    QTest::addColumn<QString>("span");
    QTest::addColumn<QDate>("previous");
    QTest::addColumn<QDate>("next");
    enum { Monthly31, Cycle28, ShortPrepaid, LongPrepaid };
    const auto row = [](const char *name, int rule, const char *day, const char *span,
                        const char *previous, const char *next) {
        QTest::newRow(name) << rule << QByteArray(day) << QString(span) << dayOf(previous)
                            << dayOf(next);
    };
    // The history begins on 2024-12-20, today is 2026-03-05.
    row("a month's last day", Monthly31, "2026-03-05", "2026-02-28 to 2026-03-30", "2026-02-27",
        "");
    row("the one before", Monthly31, "2026-02-27", "2026-01-31 to 2026-02-27", "2026-01-30",
        "2026-02-28");
    row("the one in which the history begins", Monthly31, "2024-12-30", "2024-11-30 to 2024-12-30",
        "", "2024-12-31");
    row("28 days", Cycle28, "2026-03-05", "2026-02-26 to 2026-03-25", "2026-02-25", "");
    row("the first 28 days", Cycle28, "2025-01-02", "2025-01-02 to 2025-01-29", "", "2025-01-30");
    row("before the first 28 days", Cycle28, "2024-12-24", "2025-01-02 to 2025-01-29", "",
        "2025-01-30");
    row("prepaid that is over", ShortPrepaid, "2026-03-05", "2025-06-10 to 2025-06-16", "", "");
    row("prepaid for years", LongPrepaid, "2026-03-05", "2026-01-01 to 2026-12-31", "2025-12-31",
        "");
    row("its first part", LongPrepaid, "2024-12-24", "2024-12-24 to 2024-12-31", "", "2025-01-01");
}

void UsageFiguresTest::showsThePeriodOfAPlan()
{
    QFETCH(int, rule);
    QFETCH(QByteArray, day);
    const history::PeriodRule rules[] = {
        MonthlyFrom{31}, EveryDays{28, dayNumber("2025-01-02")},
        OnceBetween{dayNumber("2025-06-10"), dayNumber("2025-06-16")},
        OnceBetween{dayNumber("2024-12-24"), dayNumber("2029-03-31")}};
    store({"2024-12-20T12:00:00Z 1/1"});
    storePlan("plan", rules[rule]);
    UsageRequest request = requestFor(day);
    request.subject.reset();
    const UsageFigures read = figures(request, "2026-03-05");
    QTEST(spanText(read), "span");
    QTEST(read.previous, "previous");
    QTEST(read.next, "next");
    QCOMPARE(qint64(read.bars.size()), read.span.first.daysTo(read.span.end));
}

void UsageFiguresTest::countsWhatThePlanCovers()
{
    store({"2026-11-20T08:00:00Z 10/1", "2026-11-20T09:00:00Z 20/2r"});
    storePlan("abroad", MonthlyFrom{15}, DataPlan::Network::Roaming);
    const UsageFigures read = figures({}, "2026-11-20");
    QCOMPARE(textOf(read.bars), QString("2026-11-20: 0/0 + 20/2r"));
    QCOMPARE(spanText(read), QString("2026-11-15 to 2026-12-14"));
}

void UsageFiguresTest::offersWhatThereIsToChooseFrom()
{
    store({"2026-11-20T08:00:00Z 10/1"}, "web");
    store({"2026-11-19T08:00:00Z 20/2"}, "internet");
    auto store = history::Store::openOrCreate(m_path);
    history::Connection own =
        connection("web", utcOf("2026-11-18T08:00:00Z"), utcOf("2026-11-18T09:00:00Z"));
    own.sim = "89490200001234567890";
    own.downloadedBytes = 40;
    QVERIFY(store.value().add(own));
    storePlan("plan", MonthlyFrom{1});
    const UsageFigures read = figures({}, "2026-11-20");
    QCOMPARE(namesOf(read.subjects), QString("0 1plan 2internet 2web 389490200001234567890"));
    const auto shown = [&](const UsageSubject &subject) {
        return textOf(figures({subject, BarUnit::Day, QDate()}, "2026-11-20").bars);
    };
    QCOMPARE(shown(read.subjects[2]), QString("2026-11-19: 20/2"));
    QCOMPARE(shown(read.subjects[3]), QString("2026-11-18: 40/0, 2026-11-20: 10/1"));
    QCOMPARE(shown(read.subjects[4]), QString("2026-11-18: 40/0"));
}

void UsageFiguresTest::showsTheFirstPlanUnlessSomethingElseIsChosen()
{
    store({"2026-11-20T08:00:00Z 10/1"});
    QCOMPARE(figures({}, "2026-11-20").subject, UsageSubject());
    storePlan("second", MonthlyFrom{2});
    storePlan("first", MonthlyFrom{3});
    const UsageSubject first = figures({}, "2026-11-20").subject;
    QCOMPARE(first.name, std::string("first"));
    QCOMPARE(figures(requestFor("2026-11-20"), "2026-11-20").subject, UsageSubject());
    // It is the same one under another name, and no more once it is removed.
    auto store = history::Store::openOrCreate(m_path);
    DataPlan plan = store.value().plans().value().front();
    plan.name = "renamed";
    QVERIFY(store.value().setPlan(plan));
    const UsageRequest request = {first, BarUnit::Day, QDate()};
    QCOMPARE(figures(request, "2026-11-20").subject.name, std::string("renamed"));
    QVERIFY(store.value().removePlan("renamed"));
    QCOMPARE(figures(request, "2026-11-20").subject, UsageSubject());
}

void UsageFiguresTest::leadsToEachTimeOfTheHistoryOnce_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<bool>("isByMonth");
    for (const char *const zone : {"Europe/Berlin", "Asia/Kolkata", "Australia/Lord_Howe"}) {
        QTest::addRow("%s by day", zone) << QByteArray(zone) << false;
        QTest::addRow("%s by month", zone) << QByteArray(zone) << true;
    }
}

void UsageFiguresTest::leadsToEachTimeOfTheHistoryOnce()
{
    QFETCH(QByteArray, zone);
    QFETCH(bool, isByMonth);
    const LocalZone local(zone.constData());
    std::mt19937_64 random{20261122};
    const std::int64_t begin = utcOf("2024-07-01T00:00:00Z");
    std::vector<history::Connection> connections;
    std::int64_t all = 0;
    for (int i = 0; i < 300; ++i) {
        const auto start = begin + std::int64_t(random() % (2 * 365 * 86400));
        connections.push_back(connection("internet", start, start + 60));
        connections.back().uploadedBytes = 0;
        connections.back().downloadedBytes = 1 + std::int64_t(random() % 1000000);
        all += connections.back().downloadedBytes;
    }
    storeWith(m_path, connections);
    storePlan("plan", MonthlyFrom{29});
    UsageRequest request;
    request.unit = isByMonth ? BarUnit::Month : BarUnit::Day;
    std::int64_t seen = 0;
    do {
        const UsageFigures read = figures(request, "2026-07-02");
        seen += usage::sumOf(read.bars).total();
        request.day = read.previous;
    } while (!request.day.isNull());
    QCOMPARE(seen, all);
}

void UsageFiguresTest::stopsAtTheLargestSum()
{
    std::vector<history::Connection> connections;
    for (const char *const start : {"2026-11-20T08:00:00Z", "2026-11-20T09:00:00Z"}) {
        connections.push_back(connection("internet", utcOf(start), utcOf(start)));
        connections.back().downloadedBytes = history::largestByteCount;
    }
    storeWith(m_path, connections);
    const UsageFigures read = figures({}, "2026-11-20");
    QCOMPARE(read.bars[19].bytes[usage::ReceivedAtHome], history::largestByteCount);
    QCOMPARE(usage::sumOf(read.bars).total(), history::largestByteCount);
}

QTEST_GUILESS_MAIN(UsageFiguresTest)

#include "tst_usagefigures.moc"
