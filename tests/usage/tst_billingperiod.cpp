// SPDX-License-Identifier: MIT
#include "usage/BillingPeriod.h"

#include "LocalZone.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

using namespace usage;

namespace
{

struct NamedRule {
    const char *name;
    PeriodRule rule;
};

QDate date(const char *text)
{
    return QDate::fromString(QLatin1String(text), Qt::ISODate);
}

/// Without arithmetic: each day is asked whether a period begins with it.
bool isFirstDay(const PeriodRule &rule, const QDate &day)
{
    if (const auto *monthly = std::get_if<MonthlyFrom>(&rule))
        return day.day() == monthly->day ||
               (day.day() == day.daysInMonth() && day.day() < monthly->day);
    if (const auto *every = std::get_if<EveryDays>(&rule)) {
        for (QDate first = every->from; first <= day; first = first.addDays(every->days)) {
            if (first == day)
                return true;
        }
        return false;
    }
    return day == std::get<OnceBetween>(rule).first;
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
    row("28 days", EveryDays{28, date("2026-01-05")}, "2026-02-02", "2026-02-02", "2026-03-01");
    row("28 days, their last", EveryDays{28, date("2026-01-05")}, "2026-02-01", "2026-01-05",
        "2026-02-01");
    row("every day", EveryDays{1, date("2026-01-05")}, "2026-03-29", "2026-03-29", "2026-03-29");
    row("once", OnceBetween{date("2026-03-01"), date("2026-03-10")}, "2026-03-10", "2026-03-01",
        "2026-03-10");
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
    const PeriodRule once = OnceBetween{date("2026-03-01"), date("2026-03-10")};
    const PeriodRule every = EveryDays{28, date("2026-01-05")};
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
        QTest::addRow("every %d days", days) << PeriodRule(EveryDays{days, date("2025-12-30")});
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
    const PeriodRule every = EveryDays{28, date("2026-01-05")};
    QVERIFY(!periodBefore(every, *periodOf(every, date("2026-01-05"))));
}

QTEST_APPLESS_MAIN(BillingPeriodTest)
#include "tst_billingperiod.moc"
