// SPDX-License-Identifier: MIT
#include "LocalZone.h"
#include "usage/CalendarTime.h"
#include "usage/LocalClock.h"
#include "usage/TextScanner.h"

#include <QDateTime>
#include <QTest>

using namespace usage;

class CalendarTimeTest : public QObject
{
    Q_OBJECT

private slots:
    void readsIsoTimes_data();
    void readsIsoTimes();
    void refusesWhatIsNoTime_data();
    void refusesWhatIsNoTime();
    void knowsTheHourThatComesTwice();
    void writesUtcAndLocalTime();
    void writesUtcAsQtDoes();
    void writesLocalTimeAsQtDoes();
    void writesDurationsWithGrowingHours_data();
    void writesDurationsWithGrowingHours();
    void knowsPlacesInTheCalendar();
    void takesTextsApart();
};

void CalendarTimeTest::readsIsoTimes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("utc");

    QTest::newRow("UTC") << "2024-05-31T18:30:00Z" << qint64(1717180200);
    QTest::newRow("an offset to the east") << "2024-05-31T20:30:00+02:00" << qint64(1717180200);
    QTest::newRow("an offset without a colon") << "2024-05-31T20:30:00+0200" << qint64(1717180200);
    QTest::newRow("an offset of hours alone") << "2024-05-31T20:30:00+02" << qint64(1717180200);
    QTest::newRow("an offset to the west with minutes")
        << "2024-05-31T15:00:00-03:30" << qint64(1717180200);
    QTest::newRow("local time in summer") << "2024-05-31T20:30:00" << qint64(1717180200);
    QTest::newRow("local time in winter") << "2024-01-31T19:30:00" << qint64(1706725800);
    QTest::newRow("a space for the T") << "2024-05-31 20:30:00" << qint64(1717180200);
    QTest::newRow("no seconds") << "2024-05-31T18:30Z" << qint64(1717180200);
    QTest::newRow("a fraction is cut") << "2024-05-31T18:30:00.999Z" << qint64(1717180200);
    QTest::newRow("a leap second is the one before it")
        << "2016-12-31T23:59:60Z" << qint64(1483228799);
    QTest::newRow("29 February of a leap year") << "2024-02-29T00:00:00Z" << qint64(1709164800);
    QTest::newRow("before 1970") << "1969-12-31T23:59:59Z" << qint64(-1);
}

void CalendarTimeTest::readsIsoTimes()
{
    QFETCH(QString, text);
    QFETCH(qint64, utc);
    const auto read = utcFromIso(text.toStdString());
    QVERIFY(read);
    QCOMPARE(qint64(*read), utc);
}

void CalendarTimeTest::refusesWhatIsNoTime_data()
{
    QTest::addColumn<QString>("text");

    for (const char *const text : {"",
                                   "yesterday",
                                   "2024-05-31",
                                   "2024-05-31T",
                                   "2024-05-31T18",
                                   "2024-05-31T18:",
                                   "2024-05-31T18:30:",
                                   "2024-05-31T18:30:00.",
                                   "2024-05-31T18:30:00 ",
                                   "2024-05-31T18:30:00+2",
                                   "2024-05-31T18:30:00+02:",
                                   "2024-05-31T18:30:00+02:3",
                                   "2024-05-31T18:30:00ZZ",
                                   "2024-02-30T18:30:00Z",
                                   "2023-02-29T18:30:00Z",
                                   "2024-13-01T18:30:00Z",
                                   "2024-05-31T24:00:00Z",
                                   "2024-05-31T18:60:00Z",
                                   "24-05-31T18:30:00Z",
                                   "0000-05-31T18:30:00Z",
                                   "12024-05-31T18:30:00Z",
                                   "2024-5-31T18:30:00Z"})
        QTest::newRow(*text ? text : "nothing") << QString(text);
}

void CalendarTimeTest::refusesWhatIsNoTime()
{
    QFETCH(QString, text);
    QVERIFY(!utcFromIso(text.toStdString()));
}

void CalendarTimeTest::knowsTheHourThatComesTwice()
{
    // On this day the clocks went from 03:00 back to 02:00 at 01:00 UTC.
    const UtcSpan twice = utcSpan({2024, 10, 27, 2, 30, 0, std::nullopt});
    QCOMPARE(twice.earliest, std::int64_t(1729989000));
    QCOMPARE(twice.latest, std::int64_t(1729992600));

    const UtcSpan once = utcSpan({2024, 10, 27, 3, 30, 0, std::nullopt});
    QCOMPARE(once.earliest, once.latest);
}

void CalendarTimeTest::writesUtcAndLocalTime()
{
    QCOMPARE(utcText(1717180200), QString("2024-05-31T18:30:00Z"));
    QCOMPARE(localText(1717180200), QString("2024-05-31 20:30:00"));
    QCOMPARE(utcText(0), QString("1970-01-01T00:00:00Z"));
    QCOMPARE(utcText(4294967295), QString("2106-02-07T06:28:15Z"));
}

void CalendarTimeTest::writesUtcAsQtDoes()
{
    const auto check = [](std::int64_t utc) {
        std::string text = "before ";
        appendUtc(text, utc);
        const QDateTime time = QDateTime::fromSecsSinceEpoch(utc).toUTC();
        QCOMPARE(QString::fromStdString(text), "before " + time.toString(Qt::ISODate));
        QCOMPARE(utcFromIso(time.toString(Qt::ISODate).toStdString()).value_or(-2), utc);
    };
    // Some day of each year and of each month, at other times.
    for (std::int64_t utc = -secondsPerDay; utc < latestWrittenTime; utc += 97 * secondsPerDay + 1)
        check(utc);
    for (std::int64_t day = 0; day < 5 * 365; ++day)
        check(day * secondsPerDay);
    for (const std::int64_t utc : {std::int64_t(951782400), std::int64_t(4107542399),
                                   std::int64_t(4107542400), latestWrittenTime})
        check(utc);
}

void CalendarTimeTest::writesLocalTimeAsQtDoes()
{
    for (const char *const zone : {"Europe/Berlin", "Australia/Lord_Howe", "America/St_Johns"}) {
        const LocalZone local(zone);
        const LocalClock clock;
        for (std::int64_t utc = 0; utc < 2000000000; utc += 3599 * 97) {
            std::string text = "before ";
            clock.append(text, utc);
            QCOMPARE(QString::fromStdString(text), "before " + localText(utc));
        }
    }
}

void CalendarTimeTest::writesDurationsWithGrowingHours_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << qint64(0) << "00:00:00";
    QTest::newRow("the last second before an hour") << qint64(3599) << "00:59:59";
    QTest::newRow("hours, minutes and seconds") << qint64(3723) << "01:02:03";
    QTest::newRow("more than a day") << qint64(100 * 3600) << "100:00:00";
    QTest::newRow("the longest") << qint64(2147483647) << "596523:14:07";
}

void CalendarTimeTest::writesDurationsWithGrowingHours()
{
    QFETCH(qint64, seconds);
    QTEST(durationText(seconds), "text");
}

void CalendarTimeTest::knowsPlacesInTheCalendar()
{
    const CalendarTime summer = localCalendarTime(1717180200);
    QCOMPARE(summer.day * 100 + summer.hour, 3120);
    QVERIFY(!summer.utcOffset);
    const CalendarTime utc = utcCalendarTime(1717180200);
    QCOMPARE(utc.day * 100 + utc.hour, 3118);
    QCOMPARE(utc.utcOffset.value_or(-1), 0);
    QCOMPARE(utcSpan(utc).earliest, std::int64_t(1717180200));
    QCOMPARE(utcSpan(utc).latest, std::int64_t(1717180200));
    // 02:30 in the night in which clocks are set back.
    const UtcSpan twice = utcSpan({2024, 10, 27, 2, 30, 0, {}});
    QCOMPARE(twice.earliest, std::int64_t(1729989000));
    QCOMPARE(twice.latest, std::int64_t(1729992600));
    QVERIFY(isValid({0, 2, 29, 0, 0, 0, {}}));
    QVERIFY(!isValid({2023, 2, 29, 0, 0, 0, {}}));
}

void CalendarTimeTest::takesTextsApart()
{
    TextScanner scanner("word \t[one] 12345x");
    QCOMPARE(scanner.takeWord(), std::string_view("word"));
    QVERIFY(scanner.takeSpaces());
    QVERIFY(!scanner.takeSpaces());
    QVERIFY(scanner.take('['));
    QVERIFY(!scanner.takeUntil(")"));
    QCOMPARE(scanner.takeUntil("] ").value_or("none"), std::string_view("one"));
    QVERIFY(!scanner.takeNumber(6, 8));
    QCOMPARE(scanner.takeNumber(1, 2).value_or(-1), 12);
    QCOMPARE(scanner.takeDigits(), std::string_view("345"));
    scanner.takeCharacter();
    QVERIFY(scanner.isAtEnd());
    QVERIFY(endsWith("abc", "bc") && !endsWith("c", "bc"));
    QVERIFY(!wholeNumber("") && !wholeNumber("1x") && !wholeNumber("+1"));
    QCOMPARE(wholeNumber("-12")->value, std::int64_t(-12));
    QVERIFY(wholeNumber("9223372036854775807")->isInRange);
    QVERIFY(!wholeNumber("9223372036854775808")->isInRange);
}

QTEST_GUILESS_MAIN(CalendarTimeTest)

#include "tst_calendartime.moc"
