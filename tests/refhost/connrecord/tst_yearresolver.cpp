// SPDX-License-Identifier: MIT
#include "YearResolver.h"

#include <QTest>

using namespace refhost;

class YearResolverTest : public QObject
{
    Q_OBJECT

private slots:
    void givesTheLatestYearThatFits_data();
    void givesTheLatestYearThatFits();
    void keepsAYearThatIsWritten();
    void honoursAZone();
    void keepsTheYearInTheHourThatComesTwice();
};

namespace
{

/// "MM-dd hh:mm:ss", with "yyyy-" in front or not.
CalendarTime timeOf(const QString &text)
{
    const bool hasYear = text.size() > 14;
    const QString date = hasYear ? text : "2000-" + text;
    TextScanner scanner("");
    const std::string bytes = date.toStdString();
    scanner = TextScanner(bytes);
    CalendarTime time = takeIsoTime(scanner).value();
    if (!hasYear)
        time.year = 0;
    return time;
}

qint64 utcOf(const QString &text)
{
    return utcSpan(timeOf(text)).earliest;
}

} // namespace

void YearResolverTest::givesTheLatestYearThatFits_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("fileTime");
    QTest::addColumn<QString>("meant");

    QTest::newRow("within the year of the file") << "11-10 17:02:09"
                                                 << "11-12 08:00:00"
                                                 << "2023-11-12 08:00:00"
                                                 << "2023-11-10 17:02:09";
    QTest::newRow("the file was changed years later, though not in its season")
        << "11-10 17:02:09"
        << "11-12 08:00:00"
        << "2025-11-11 00:00:00"
        << "2024-11-10 17:02:09";
    QTest::newRow("a line of December in a log that ends in January") << "12-31 23:59:59"
                                                                      << "01-01 00:10:00"
                                                                      << "2024-01-01 00:10:00"
                                                                      << "2023-12-31 23:59:59";
    QTest::newRow("the last line itself") << "11-12 08:00:00"
                                          << "11-12 08:00:00"
                                          << "2023-11-12 08:00:00"
                                          << "2023-11-12 08:00:00";
    QTest::newRow("a second after the last line") << "11-12 08:00:01"
                                                  << "11-12 08:00:00"
                                                  << "2023-11-12 08:00:00"
                                                  << "2022-11-12 08:00:01";
    QTest::newRow("a second after the file's time") << "11-12 08:00:00"
                                                    << "11-12 08:00:01"
                                                    << "2023-11-12 08:00:00"
                                                    << "2022-11-12 08:00:00";
    QTest::newRow("29 February goes back to a leap year") << "02-29 12:00:00"
                                                          << "03-01 12:00:00"
                                                          << "2023-03-01 12:00:00"
                                                          << "2020-02-29 12:00:00";
    QTest::newRow("29 February of a leap year") << "02-29 12:00:00"
                                                << "03-01 12:00:00"
                                                << "2024-03-01 12:00:00"
                                                << "2024-02-29 12:00:00";
    QTest::newRow("a log that ends on 29 February") << "02-28 12:00:00"
                                                    << "02-29 12:00:00"
                                                    << "2023-05-01 12:00:00"
                                                    << "2020-02-28 12:00:00";
    QTest::newRow("the end has its year") << "11-10 17:02:09"
                                          << "2019-03-01 00:00:00"
                                          << "2023-11-12 08:00:00"
                                          << "2018-11-10 17:02:09";
    QTest::newRow("the end has its year, which is after the file's time") << "02-10 17:02:09"
                                                                          << "2029-03-01 00:00:00"
                                                                          << "2023-11-12 08:00:00"
                                                                          << "2029-02-10 17:02:09";
    QTest::newRow("a file from before 1970") << "11-10 17:02:09"
                                             << "11-12 08:00:00"
                                             << "1966-01-01 00:00:00"
                                             << "1965-11-10 17:02:09";
}

void YearResolverTest::givesTheLatestYearThatFits()
{
    QFETCH(QString, line);
    QFETCH(QString, end);
    QFETCH(QString, fileTime);
    QFETCH(QString, meant);
    const YearResolver years(timeOf(end), utcOf(fileTime));
    QCOMPARE(localText(years.utc(timeOf(line))), meant);
}

void YearResolverTest::keepsAYearThatIsWritten()
{
    const YearResolver years(timeOf("2023-03-01 00:00:00"), utcOf("2023-03-01 00:00:00"));
    QCOMPARE(localText(years.utc(timeOf("2031-05-01 00:00:00"))), QString("2031-05-01 00:00:00"));
}

void YearResolverTest::honoursAZone()
{
    CalendarTime end = timeOf("01-01 00:30:00");
    end.utcOffset = 7200;
    // The end is 22:30 UTC of 31 December; the file was changed an hour before.
    const YearResolver years(end, utcOf("2023-12-31 22:30:00"));
    QCOMPARE(utcText(years.utc(end)), QString("2022-12-31T22:30:00Z"));
}

void YearResolverTest::keepsTheYearInTheHourThatComesTwice()
{
    // The log ends at 02:10 after the clocks went back from 03:00 to 02:00.
    const YearResolver years(timeOf("2024-10-27 02:10:00"), utcOf("2024-10-28 00:00:00"));
    QCOMPARE(localText(years.utc(timeOf("10-27 02:50:00"))), QString("2024-10-27 02:50:00"));
}

QTEST_GUILESS_MAIN(YearResolverTest)

#include "tst_yearresolver.moc"
