// SPDX-License-Identifier: MIT
#include "usage/BillingPeriod.h"

#include "LocalZone.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

using namespace history;
using namespace usage;

namespace
{

QDate date(const char *text)
{
    return QDate::fromString(QLatin1String(text), Qt::ISODate);
}

JulianDay dayNumber(const char *text)
{
    return date(text).toJulianDay();
}

/// Without arithmetic: each day is asked whether a period begins with it.
bool isFirstDay(const PeriodRule &rule, const QDate &day)
{
    if (const auto *monthly = std::get_if<MonthlyFrom>(&rule))
        return day.day() == monthly->day ||
               (day.day() == day.daysInMonth() && day.day() < monthly->day);
    if (const auto *every = std::get_if<EveryDays>(&rule)) {
        for (QDate first = QDate::fromJulianDay(every->from); first <= day;
             first = first.addDays(every->days)) {
            if (first == day)
                return true;
        }
        return false;
    }
    return day.toJulianDay() == std::get<OnceBetween>(rule).first;
}

} // namespace

Q_DECLARE_METATYPE(PeriodRule)

class BillingPeriodTest : public QObject
{
    Q_OBJECT

private slots:
    void holdsTheDay_data();
    void holdsTheDay();
    void thereIsNoneOutside_data();
    void thereIsNoneOutside();
    void beginsAtLocalMidnight_data();
    void beginsAtLocalMidnight();
    void agreesWithWalkingFromDayToDay_data();
    void agreesWithWalkingFromDayToDay();
    void theOneBeforeEndsWhereItBegins();
    void holdsTheMoment_data();
    void holdsTheMoment();
    void isFoundAgain();
    void theOneThatHasEnded();
};

void BillingPeriodTest::holdsTheDay_data()
{
    QTest::addColumn<PeriodRule>("rule");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QDate>("last");
    const auto row = [](const char *name, const PeriodRule &rule, const char *day,
                        const char *first, const char *last) {
        QTest::newRow(name) << rule << date(day) << date(first) << date(last);
    };
    row("the first of a month", MonthlyFrom{1}, "2026-11-22", "2026-11-01", "2026-11-30");
    row("a billing day", MonthlyFrom{15}, "2026-11-15", "2026-11-15", "2026-12-14");
    row("the day before it", MonthlyFrom{15}, "2026-11-14", "2026-10-15", "2026-11-14");
    row("over a new year", MonthlyFrom{15}, "2027-01-03", "2026-12-15", "2027-01-14");
    row("a month without the day", MonthlyFrom{31}, "2026-02-28", "2026-02-28", "2026-03-30");
    row("before such a month", MonthlyFrom{31}, "2026-02-27", "2026-01-31", "2026-02-27");
    row("a leap year", MonthlyFrom{30}, "2028-02-29", "2028-02-29", "2028-03-29");
    row("28 days", EveryDays{28, dayNumber("2026-01-05")}, "2026-02-02", "2026-02-02",
        "2026-03-01");
    row("28 days, their last", EveryDays{28, dayNumber("2026-01-05")}, "2026-02-01", "2026-01-05",
        "2026-02-01");
    row("every day", EveryDays{1, dayNumber("2026-01-05")}, "2026-03-29", "2026-03-29",
        "2026-03-29");
    row("once", OnceBetween{dayNumber("2026-03-01"), dayNumber("2026-03-10")}, "2026-03-10",
        "2026-03-01", "2026-03-10");
}

void BillingPeriodTest::holdsTheDay()
{
    QFETCH(PeriodRule, rule);
    QFETCH(QDate, day);
    const auto period = periodOf(rule, day);
    QVERIFY(period.has_value());
    QTEST(period->first, "first");
    QTEST(period->last(), "last");
}

void BillingPeriodTest::thereIsNoneOutside_data()
{
    QTest::addColumn<PeriodRule>("rule");
    QTest::addColumn<QDate>("day");
    const PeriodRule once = OnceBetween{dayNumber("2026-03-01"), dayNumber("2026-03-10")};
    const PeriodRule every = EveryDays{28, dayNumber("2026-01-05")};
    QTest::newRow("before the first") << every << date("2026-01-04");
    QTest::newRow("before it begins") << once << date("2026-02-28");
    QTest::newRow("after it has ended") << once << date("2026-03-11");
}

void BillingPeriodTest::thereIsNoneOutside()
{
    QFETCH(PeriodRule, rule);
    QFETCH(QDate, day);
    QVERIFY(!periodOf(rule, day));
}

void BillingPeriodTest::beginsAtLocalMidnight_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<qint64>("hours"); // of that day
    QTest::newRow("an ordinary day") << QByteArray("Europe/Berlin") << date("2026-11-22") << 24LL;
    QTest::newRow("clocks set forward")
        << QByteArray("Europe/Berlin") << date("2026-03-29") << 23LL;
    QTest::newRow("clocks set back") << QByteArray("Europe/Berlin") << date("2026-10-25") << 25LL;
    QTest::newRow("a day without midnight")
        << QByteArray("America/Santiago") << date("2026-09-06") << 23LL;
    // Long gone: no later decision of a government changes it.
    QTest::newRow("a day with two midnights")
        << QByteArray("America/Havana") << date("2024-11-03") << 25LL;
    QTest::newRow("east of everything")
        << QByteArray("Pacific/Kiritimati") << date("2026-11-22") << 24LL;
}

void BillingPeriodTest::beginsAtLocalMidnight()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    QFETCH(qint64, hours);
    const LocalZone local(zone);
    const BillingPeriod period{day, day.addDays(1)};
    QCOMPARE(period.endUtc() - period.beginUtc(), hours * 3600);
    QCOMPARE(QDateTime::fromSecsSinceEpoch(period.beginUtc()).date(), day);
    QCOMPARE(QDateTime::fromSecsSinceEpoch(period.beginUtc() - 1).date(), day.addDays(-1));
}

void BillingPeriodTest::agreesWithWalkingFromDayToDay_data()
{
    QTest::addColumn<PeriodRule>("rule");
    for (int day = 1; day <= 31; ++day)
        QTest::addRow("monthly from %d", day) << PeriodRule(MonthlyFrom{day});
    for (const int days : {1, 2, 7, 28, 30, 365})
        QTest::addRow("every %d days", days)
            << PeriodRule(EveryDays{days, dayNumber("2025-12-30")});
}

void BillingPeriodTest::agreesWithWalkingFromDayToDay()
{
    QFETCH(PeriodRule, rule);
    QDate first;
    for (QDate day = date("2026-01-01"); day < date("2028-12-31"); day = day.addDays(1)) {
        if (isFirstDay(rule, day))
            first = day;
        if (first.isNull())
            continue;
        const auto period = periodOf(rule, day);
        QVERIFY(period.has_value());
        QCOMPARE(period->first, first);
        QVERIFY(isFirstDay(rule, period->end));
    }
}

void BillingPeriodTest::theOneBeforeEndsWhereItBegins()
{
    const PeriodRule monthly = MonthlyFrom{31};
    const auto march = periodOf(monthly, date("2026-03-30"));
    const auto before = periodBefore(monthly, *march);
    QVERIFY(before.has_value());
    QCOMPARE(before->end, march->first);
    QCOMPARE(before->first, date("2026-01-31"));
    const PeriodRule every = EveryDays{28, dayNumber("2026-01-05")};
    QVERIFY(!periodBefore(every, *periodOf(every, date("2026-01-05"))));
}

void BillingPeriodTest::holdsTheMoment_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QDate>("first");
    const auto row = [](const char *name, const char *zone, const char *moment, const char *first) {
        QTest::newRow(name) << QByteArray(zone) << QString(moment) << date(first);
    };
    row("the first moment", "Europe/Berlin", "2026-10-31T23:00:00Z", "2026-11-01");
    row("the moment before", "Europe/Berlin", "2026-10-31T22:59:59Z", "2026-10-01");
    row("the same one elsewhere", "America/New_York", "2026-10-31T23:00:00Z", "2026-10-01");
    // Clocks went from 00:01 of 1 November 2009 back to 23:01 of 31 October.
    row("the minute before clocks go back over midnight", "America/St_Johns",
        "2009-11-01T02:30:30Z", "2009-11-01");
    row("the hour that comes again", "America/St_Johns", "2009-11-01T02:45:00Z", "2009-11-01");
    // 30 December 2011 was left out.
    row("before a day that was left out", "Pacific/Apia", "2011-12-30T09:59:59Z", "2011-11-30");
    row("after it", "Pacific/Apia", "2011-12-30T10:00:00Z", "2011-12-30");
}

void BillingPeriodTest::holdsTheMoment()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, moment);
    const LocalZone local(zone);
    const auto utc = QDateTime::fromString(moment, Qt::ISODate).toSecsSinceEpoch();
    const auto period = periodAt(MonthlyFrom{zone == "Pacific/Apia" ? 30 : 1}, utc);
    QVERIFY(period.has_value());
    QTEST(period->first, "first");
    QVERIFY(period->beginUtc() <= utc && utc < period->endUtc());
}

void BillingPeriodTest::isFoundAgain()
{
    const PeriodRule rules[] = {MonthlyFrom{31}, EveryDays{7, dayNumber("2026-03-02")},
                                OnceBetween{dayNumber("2026-03-01"), dayNumber("2026-03-10")}};
    const std::int64_t begin = date("2026-02-20").startOfDay().toSecsSinceEpoch();
    QRandomGenerator random(1);
    for (const PeriodRule &rule : rules) {
        PeriodFinder finder(rule);
        for (int i = 0; i < 500; ++i) {
            const std::int64_t utc = begin + random.bounded(60 * 24) * 3600;
            QVERIFY(finder.at(utc) == periodAt(rule, utc));
        }
    }
}

void BillingPeriodTest::theOneThatHasEnded()
{
    const auto at = [](const char *day) { return date(day).startOfDay().toSecsSinceEpoch(); };
    const PeriodRule once = OnceBetween{dayNumber("2026-03-01"), dayNumber("2026-03-10")};
    QVERIFY(!periodEndedBy(once, at("2026-03-11") - 1));
    QCOMPARE(periodEndedBy(once, at("2026-03-11"))->first, date("2026-03-01"));
    QCOMPARE(periodEndedBy(once, at("2028-03-11"))->first, date("2026-03-01"));
    QCOMPARE(periodEndedBy(MonthlyFrom{31}, at("2026-03-31"))->first, date("2026-02-28"));
    const PeriodRule every = EveryDays{28, dayNumber("2026-01-05")};
    QVERIFY(!periodEndedBy(every, at("2026-02-01")));
    QVERIFY(!periodEndedBy(every, at("2025-02-01")));
}

QTEST_GUILESS_MAIN(BillingPeriodTest)
#include "tst_billingperiod.moc"
