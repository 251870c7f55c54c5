// SPDX-License-Identifier: MIT
#include "formats/YearResolver.h"

#include "tests/usage/LocalZone.h"

#include <QTest>

using namespace formats;
using namespace usage;

/// Local time is Berlin's.
class YearResolverTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsThePlaceOfEachDay();
    void givesEachLineItsYear_data();
    void givesEachLineItsYear();
    void knowsAClockThatStartedIn1970InTheWest();
    void takesTheYearThatIsGiven_data();
    void takesTheYearThatIsGiven();
    void keepsAYearThatIsWritten();
    void keepsYearsApartThatAreWritten();
    void countsFromAYearThatIsWritten();
    void saysWhereTheYearIsAGuess_data();
    void saysWhereTheYearIsAGuess();
    void findsAnImpossibleDay();
    void keepsTheYearInTheHourThatComesTwice();
    void goesBackToTheFirstLeapYearAtMost();
    void survivesAnyClock_data();
    void survivesAnyClock();
};

namespace
{

/// "MM-dd hh:mm:ss", with "yyyy-" in front or not.
CalendarTime timeOf(const QString &text)
{
    const bool hasYear = text.size() > 14;
    const std::string bytes = (hasYear ? text : "2000-" + text).toStdString();
    TextScanner scanner(bytes);
    CalendarTime time = takeIsoTime(scanner).value();
    if (!hasYear)
        time.year = 0;
    return time;
}

qint64 utcOf(const QString &text)
{
    return usage::utcSpan(timeOf(text)).earliest;
}

/// The lines of a log, and what is made of them.
class Log
{
public:
    explicit Log(const QStringList &lines)
    {
        for (const QString &line : lines) {
            m_times.push_back(timeOf(line));
            m_runs.push_back(m_clock.add(m_times.back()));
        }
    }

    YearResolver years(std::optional<int> given, const QString &changed) const
    {
        return YearResolver(m_clock.runs(), given, utcOf(changed));
    }
    QStringList resolved(const YearResolver &years) const
    {
        QStringList texts;
        for (std::size_t i = 0; i < m_times.size(); ++i)
            texts << usage::localText(years.utc(m_times[i], m_runs[i]));
        return texts;
    }

private:
    ClockRuns m_clock;
    std::vector<usage::CalendarTime> m_times;
    std::vector<std::size_t> m_runs;
};

/// The lines with their years, and without.
QStringList withoutYears(const QStringList &lines)
{
    QStringList without;
    for (const QString &line : lines)
        without << line.mid(5);
    return without;
}

} // namespace

void YearResolverTest::knowsThePlaceOfEachDay()
{
    const QDate first(2024, 1, 1);
    for (QDate day = first; day.year() == first.year(); day = day.addDays(1))
        QCOMPARE(placeInYear({0, day.month(), day.day(), 1, 2, 3, {}}),
                 std::int64_t(first.daysTo(day)) * secondsPerDay + 3723);
}

void YearResolverTest::givesEachLineItsYear_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("changed");

    const QString autumn = "2023-11-12 08:00:00";
    QTest::newRow("within the year of the file")
        << QStringList{"2023-11-10 17:02:09", "2023-11-12 08:00:00"} << autumn;
    QTest::newRow("changed years later, though not in its season")
        << QStringList{"2024-11-10 17:02:09", "2024-11-12 08:00:00"} << "2025-11-10 00:00:00";
    QTest::newRow("over the turn of a year")
        << QStringList{"2023-12-31 23:59:59", "2024-01-01 00:10:00"} << "2024-01-01 00:10:00";
    QTest::newRow("two turns of the year")
        << QStringList{"2021-12-31 23:50:00", "2022-01-01 00:10:00", "2022-12-31 23:50:00",
                       "2023-01-01 00:10:00"}
        << "2023-01-02 00:00:00";
    QTest::newRow("two turns of the year without lines between")
        << QStringList{"2021-11-10 12:00:00", "2022-03-05 12:00:00", "2022-11-09 12:00:00",
                       "2023-02-03 12:00:00"}
        << "2023-02-03 13:00:00";
    QTest::newRow("most of a year without lines")
        << QStringList{"2023-01-10 12:00:00", "2023-09-01 12:00:00"} << "2023-09-01 12:00:00";
    QTest::newRow("the last line is a second out of order")
        << QStringList{"2023-11-10 17:02:09", "2023-11-12 08:00:01", "2023-11-12 08:00:00"}
        << autumn;
    QTest::newRow("the last line is twenty hours out of order")
        << QStringList{"2023-11-12 23:00:00", "2023-11-12 03:00:00"} << "2023-11-12 23:00:00";
    QTest::newRow("out of order at the turn of the year")
        << QStringList{"2023-12-31 23:59:58", "2024-01-01 00:00:00", "2023-12-31 23:59:59",
                       "2024-01-01 00:00:01"}
        << "2024-01-01 00:00:01";
    QTest::newRow("a minute out of order at the turn of the year, and then days without lines")
        << QStringList{"2024-01-01 00:00:30", "2023-12-31 23:59:30", "2024-01-05 12:00:00"}
        << "2024-01-05 12:00:00";
    QTest::newRow("more than a minute before that, nearly a year has passed")
        << QStringList{"2023-01-01 00:00:30", "2023-12-31 23:59:29", "2024-01-05 12:00:00"}
        << "2024-01-05 12:00:00";
    QTest::newRow("written in a zone ahead")
        << QStringList{"2023-11-12 17:00:00", "2023-11-12 22:00:00"} << autumn;
    QTest::newRow("a clock set back in the middle")
        << QStringList{"2023-11-10 17:00:00", "2023-11-05 17:00:00", "2023-11-12 08:00:00"}
        << autumn;
    QTest::newRow("a clock set back at the end")
        << QStringList{"2023-11-10 17:00:00", "2023-11-05 17:00:00"} << "2023-11-10 17:00:00";
    QTest::newRow("a clock that started on 1 January and was set")
        << QStringList{"2023-11-10 17:00:00", "2023-01-01 00:00:12", "2023-11-10 17:02:00"}
        << autumn;
    QTest::newRow("a clock that started on 1 January and was set a day later")
        << QStringList{"2023-11-10 17:00:00", "2023-01-01 00:00:12", "2023-01-02 00:00:12",
                       "2023-11-12 08:00:00"}
        << autumn;
    QTest::newRow("a clock that started three times in 1970, here")
        << QStringList{"2023-03-05 17:00:00", "2023-01-01 01:00:12", "2023-03-06 09:00:00",
                       "2023-01-01 01:00:12", "2023-11-10 17:00:00", "2023-01-01 01:00:12",
                       "2023-11-10 17:02:00"}
        << autumn;
    QTest::newRow("a clock that started and was set in the next year")
        << QStringList{"2022-12-10 17:00:00", "2022-01-01 00:00:12", "2023-02-10 17:02:00"}
        << "2023-02-10 18:00:00";
    QTest::newRow("a clock that started at the end of the log")
        << QStringList{"2023-11-10 17:00:00", "2023-01-01 00:00:12"} << "2023-11-10 17:05:00";
    QTest::newRow("a log that ends early in the year")
        << QStringList{"2023-11-10 17:00:00", "2024-01-01 00:20:00"} << "2024-01-01 00:25:00";
    QTest::newRow("a log that ends early in the year, a day before its file changed")
        << QStringList{"2022-11-10 17:00:00", "2023-01-01 00:20:00"} << "2023-01-02 00:20:00";
    QTest::newRow("early in the year, and on from there")
        << QStringList{"2022-11-10 17:00:00", "2023-01-01 00:20:00", "2023-01-01 20:20:00",
                       "2023-01-02 18:00:00", "2023-01-03 17:00:00"}
        << "2023-03-01 00:00:00";
    QTest::newRow("29 February of a leap year")
        << QStringList{"2024-02-29 12:00:00", "2024-03-01 12:00:00"} << "2024-03-01 12:00:00";
    QTest::newRow("29 February shows which year it was")
        << QStringList{"2020-02-29 12:00:00", "2020-03-01 12:00:00"} << "2023-03-01 12:00:00";
    QTest::newRow("a log that ends on 29 February")
        << QStringList{"2020-02-28 12:00:00", "2020-02-29 12:00:00"} << "2023-05-01 12:00:00";
    QTest::newRow("29 February two turns ago")
        << QStringList{"2020-02-29 12:00:00", "2021-01-05 12:00:00", "2021-11-05 12:00:00",
                       "2022-01-05 12:00:00"}
        << "2023-03-01 12:00:00";
}

void YearResolverTest::givesEachLineItsYear()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, changed);
    const Log log(withoutYears(lines));
    QCOMPARE(log.resolved(log.years({}, changed)), lines);
}

/// There it shows the last evening of a year. It was set, if to a day before.
void YearResolverTest::knowsAClockThatStartedIn1970InTheWest()
{
    const LocalZone west("America/New_York");
    const QStringList lines = {"2023-11-10 17:00:00", "2022-12-31 19:00:12", "2023-11-09 17:00:00"};
    const Log log(withoutYears(lines));
    QCOMPARE(log.resolved(log.years({}, "2023-11-09 18:00:00")), lines);
}

void YearResolverTest::takesTheYearThatIsGiven_data()
{
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("of one line") << QStringList{"2019-11-10 17:02:09"};
    QTest::newRow("over the turn of a year")
        << QStringList{"2018-12-31 23:59:59", "2019-01-01 00:10:00"};
    QTest::newRow("after the file's last change") << QStringList{"2031-11-10 17:02:09"};
    QTest::newRow("with a clock that started at the end")
        << QStringList{"2019-11-10 17:00:00", "2019-01-01 00:00:12"};
}

void YearResolverTest::takesTheYearThatIsGiven()
{
    QFETCH(QStringList, lines);
    const Log log(withoutYears(lines));
    const YearResolver years = log.years(lines.last().left(4).toInt(), "2023-11-12 08:00:00");
    QCOMPARE(log.resolved(years), lines);
    QVERIFY(!years.isGuess());
}

void YearResolverTest::keepsAYearThatIsWritten()
{
    const QStringList lines = {"2031-05-01 00:00:00", "2023-03-01 00:00:00", "2024-03-01 00:00:00"};
    const Log log(lines);
    const YearResolver years = log.years({}, "2022-01-01 00:00:00");
    QCOMPARE(log.resolved(years), lines);
    QCOMPARE(years.lastYear(), 2024);
    QVERIFY(!years.isGuess());
}

/// Not all lines show theirs, and nothing else tells that a year has passed.
void YearResolverTest::keepsYearsApartThatAreWritten()
{
    const Log log(
        {"2023-03-01 00:00:00", "03-01 00:00:10", "2024-03-01 00:00:20", "03-01 00:00:30"});
    QCOMPARE(log.resolved(log.years({}, "2024-11-12 08:00:00")),
             QStringList({"2023-03-01 00:00:00", "2023-03-01 00:00:10", "2024-03-01 00:00:20",
                          "2024-03-01 00:00:30"}));
}

void YearResolverTest::countsFromAYearThatIsWritten()
{
    const Log log({"12-31 12:00:00", "01-02 12:00:00", "2019-03-01 00:00:00"});
    QCOMPARE(log.resolved(log.years({}, "2023-11-12 08:00:00")),
             QStringList({"2018-12-31 12:00:00", "2019-01-02 12:00:00", "2019-03-01 00:00:00"}));
}

void YearResolverTest::saysWhereTheYearIsAGuess_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("changed");
    QTest::addColumn<bool>("isGuess");

    const QString last = "11-12 08:00:00";
    QTest::newRow("changed with its last line")
        << QStringList{last} << "2023-11-12 08:00:00" << false;
    QTest::newRow("changed a day later") << QStringList{last} << "2023-11-13 08:00:00" << false;
    QTest::newRow("changed later still") << QStringList{last} << "2023-11-13 08:00:01" << true;
    QTest::newRow("a clock that was set back by days")
        << QStringList{"11-15 08:00:00", last} << "2023-11-12 08:00:00" << true;
    QTest::newRow("a clock that started at the end")
        << QStringList{last, "01-01 00:00:05"} << "2023-11-12 08:00:00" << true;
    QTest::newRow("a clock that started and was set")
        << QStringList{last, "01-01 00:00:05", last} << "2023-11-12 08:00:00" << false;
    QTest::newRow("no line at all") << QStringList() << "2023-11-12 08:00:00" << false;
}

void YearResolverTest::saysWhereTheYearIsAGuess()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, changed);
    const Log log(lines);
    QTEST(log.years({}, changed).isGuess(), "isGuess");
}

void YearResolverTest::findsAnImpossibleDay()
{
    const Log log({"02-29 12:00:00", "03-01 12:00:00"});
    QVERIFY(log.years(2023, "2023-03-01 12:00:00").hasImpossibleDay());
    QVERIFY(!log.years(2024, "2024-03-01 12:00:00").hasImpossibleDay());
}

void YearResolverTest::keepsTheYearInTheHourThatComesTwice()
{
    // The log ends at 02:10 after the clocks went back from 03:00 to 02:00.
    const QStringList lines = {"2024-10-27 02:50:00", "2024-10-27 02:10:00"};
    const Log log(withoutYears(lines));
    QCOMPARE(log.resolved(log.years({}, "2024-10-28 00:00:00")), lines);
}

void YearResolverTest::goesBackToTheFirstLeapYearAtMost()
{
    QStringList lines;
    for (int turn = 0; turn < 2100; ++turn)
        lines << "11-30 00:00:00"
              << "02-29 00:00:00";
    const Log log(lines);
    const QStringList resolved = log.resolved(log.years({}, "2023-11-12 08:00:00"));
    QCOMPARE(resolved.at(0), QString("0004-11-30 00:00:00"));
    QCOMPARE(resolved.at(1), QString("0004-02-29 00:00:00"));
}

void YearResolverTest::survivesAnyClock_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("changed");

    QStringList forward;
    QStringList back;
    for (int i = 0; i < 20000; ++i) {
        forward << "11-30 00:00:00"
                << "02-29 00:00:00";
        back << "01-01 02:30:00"
             << "12-31 12:30:00";
    }
    QTest::newRow("more turns than there are years") << forward << "2023-11-12 08:00:00";
    QTest::newRow("more turns back") << back << "2023-11-12 08:00:00";
    QTest::newRow("a file from before 1970")
        << QStringList{"02-29 00:00:00"} << "1902-01-01 00:00:00";
    QTest::newRow("a file of the last year that there is")
        << QStringList{"12-31 23:00:00"} << "9999-12-31 23:59:59";
}

void YearResolverTest::survivesAnyClock()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, changed);
    const Log log(lines);
    QCOMPARE(log.resolved(log.years({}, changed)).size(), lines.size());
    QVERIFY(log.years({}, changed).isGuess());
}

QTEST_GUILESS_MAIN(YearResolverTest)

#include "tst_yearresolver.moc"
