// SPDX-License-Identifier: MIT
#include "usage/LocalDays.h"

#include "LocalZone.h"
#include "usage/LocalClock.h"

#include <QDateTime>
#include <QTest>

#include <random>

using namespace usage;

class LocalDaysTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsTheDayOnTheWallsCalendar_data();
    void knowsTheDayOnTheWallsCalendar();
    void holdsTheDaysFromTheFirstToTheLast_data();
    void holdsTheDaysFromTheFirstToTheLast();
    void leavesNoMomentOfItsDaysOutOfTheRange_data();
    void leavesNoMomentOfItsDaysOutOfTheRange();
    void leavesAnOpenSideOpen();
    void agreesWithQtOnRandomMoments_data();
    void agreesWithQtOnRandomMoments();
    void looksAtTheZoneWhenItIsMade();
};

void LocalDaysTest::knowsTheDayOnTheWallsCalendar_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("utc");
    QTest::addColumn<QDate>("day");

    const QByteArray berlin = "Europe/Berlin";
    QTest::newRow("last second of a winter day")
        << berlin << qint64(1704063599) << QDate(2023, 12, 31);
    QTest::newRow("first second of a winter day")
        << berlin << qint64(1704063600) << QDate(2024, 1, 1);
    QTest::newRow("last second of a summer day")
        << berlin << qint64(1719784799) << QDate(2024, 6, 30);
    QTest::newRow("first second of a summer day")
        << berlin << qint64(1719784800) << QDate(2024, 7, 1);
    QTest::newRow("leap day") << berlin << qint64(1709161200) << QDate(2024, 2, 29);
    QTest::newRow("the first second that a record can have")
        << berlin << qint64(0) << QDate(1970, 1, 1);
    QTest::newRow("the last second that a record can have")
        << berlin << qint64(2147483647) << QDate(2038, 1, 19);
    // Clocks went from 00:01 on 1 November back to 23:01 on 31 October.
    const QByteArray stJohns = "America/St_Johns";
    QTest::newRow("before a new day is undone")
        << stJohns << qint64(1257042659) << QDate(2009, 11, 1);
    QTest::newRow("after a new day was undone")
        << stJohns << qint64(1257042660) << QDate(2009, 10, 31);
}

void LocalDaysTest::knowsTheDayOnTheWallsCalendar()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, utc);
    const LocalZone local(zone.constData());
    QTEST(localDay(utc), "day");
}

void LocalDaysTest::holdsTheDaysFromTheFirstToTheLast_data()
{
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QDate>("last");
    QTest::addColumn<QString>("held");

    const QDate first(2024, 2, 28);
    const QDate last(2024, 3, 1);
    QTest::newRow("both ends") << first << last << "28 29 1";
    QTest::newRow("one day") << first << first << "28";
    QTest::newRow("from a day on") << first << QDate() << "28 29 1 2";
    QTest::newRow("up to a day") << QDate() << last << "27 28 29 1";
    QTest::newRow("all days") << QDate() << QDate() << "27 28 29 1 2";
}

void LocalDaysTest::holdsTheDaysFromTheFirstToTheLast()
{
    QFETCH(QDate, first);
    QFETCH(QDate, last);
    QStringList held;
    for (QDate day(2024, 2, 27); day <= QDate(2024, 3, 2); day = day.addDays(1)) {
        if (LocalDays{first, last}.contains(day))
            held.append(QString::number(day.day()));
    }
    QTEST(held.join(' '), "held");
}

void LocalDaysTest::leavesNoMomentOfItsDaysOutOfTheRange_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("UTC") << QByteArray("UTC");
    QTest::newRow("the farthest east") << QByteArray("Pacific/Kiritimati");
    QTest::newRow("the farthest west") << QByteArray("Pacific/Niue");
    QTest::newRow("a day that comes in two parts") << QByteArray("America/St_Johns");
}

void LocalDaysTest::leavesNoMomentOfItsDaysOutOfTheRange()
{
    QFETCH(QByteArray, zone);
    const LocalZone local(zone.constData());
    constexpr std::int64_t minute = 60;
    const LocalDays day{QDate(2009, 10, 31), QDate(2009, 10, 31)};
    const history::TimeRange range = day.widerRange();
    int minutes = 0;
    for (std::int64_t utc = 1256774400; utc < 1257292800; utc += minute) { // 29 Oct to 4 Nov
        if (!day.contains(localDay(utc)))
            continue;
        ++minutes;
        QVERIFY(utc >= range.fromUtc && utc < range.untilUtc);
    }
    QVERIFY(minutes >= 24 * 60);
    QVERIFY(range.untilUtc - range.fromUtc <= 3 * 86400);
}

void LocalDaysTest::leavesAnOpenSideOpen()
{
    const history::TimeRange always;
    QCOMPARE((LocalDays{QDate(), QDate(2024, 1, 1)}.widerRange().fromUtc), always.fromUtc);
    QCOMPARE((LocalDays{QDate(2024, 1, 1), QDate()}.widerRange().untilUtc), always.untilUtc);
}

void LocalDaysTest::agreesWithQtOnRandomMoments_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *const zone :
         {"UTC", "Europe/Berlin", "America/New_York", "Asia/Kolkata", "Asia/Kathmandu",
          "Australia/Lord_Howe", "America/St_Johns", "Pacific/Apia", "Pacific/Kiritimati",
          "Africa/Casablanca", "America/Sao_Paulo", "CET-1CEST,M3.5.0,M10.5.0/3"})
        QTest::newRow(zone) << QByteArray(zone);
}

void LocalDaysTest::agreesWithQtOnRandomMoments()
{
    QFETCH(QByteArray, zone);
    const LocalZone here(zone.constData());
    const LocalClock clock;
    std::mt19937_64 random{20261122};
    std::uniform_int_distribution<std::int64_t> moments(0, 2145916799); // 1970 to 2037
    std::uniform_int_distribution<std::int64_t> minutesAround(-180, 180);
    for (int i = 0; i < 2000; ++i) {
        // Half of them stand where days and summer time begin and end.
        const std::int64_t moment = moments(random);
        const std::int64_t midnight = QDateTime(localDay(moment), QTime(0, 0)).toSecsSinceEpoch() +
                                      minutesAround(random) * 60;
        for (const std::int64_t utc : {moment, midnight}) {
            const QDateTime local = QDateTime::fromSecsSinceEpoch(utc);
            QCOMPARE(clock.dayAt(utc), local.date());
            const qint64 days = QDate(1970, 1, 1).daysTo(local.date());
            QCOMPARE(clock.shownAt(utc), days * 86400 + local.time().msecsSinceStartOfDay() / 1000);
        }
    }
}

void LocalDaysTest::looksAtTheZoneWhenItIsMade()
{
    constexpr std::int64_t utc = 1704063600; // 2023-12-31 23:00
    const LocalZone west("America/New_York");
    QCOMPARE(LocalClock().dayAt(utc), QDate(2023, 12, 31));
    const LocalZone east("Europe/Berlin");
    QCOMPARE(LocalClock().dayAt(utc), QDate(2024, 1, 1));
}

QTEST_GUILESS_MAIN(LocalDaysTest)

#include "tst_localdays.moc"
