// SPDX-License-Identifier: MIT
#include "formats/ClockRuns.h"

#include <QTest>

using namespace formats;

class ClockRunsTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsALogWhoseNewestLineIsTheFirst();
    void takesLinesWithAYearAndWithoutOneTogether();
};

namespace
{

usage::CalendarTime tenthOfNovember(int year, int second)
{
    usage::CalendarTime time;
    time.year = year;
    time.month = 11;
    time.day = 10;
    time.second = second;
    return time;
}

} // namespace

/// One line out of order changes nothing.
void ClockRunsTest::knowsALogWhoseNewestLineIsTheFirst()
{
    ClockRuns clock;
    for (const int second : {9, 5, 7, 1})
        clock.add(tenthOfNovember(0, second));
    QVERIFY(clock.goesBackwards());
    QVERIFY(!clock.goesForwards());
    clock.reverse();
    QVERIFY(!clock.goesBackwards());
    QVERIFY(clock.goesForwards());
}

void ClockRunsTest::takesLinesWithAYearAndWithoutOneTogether()
{
    ClockRuns clock;
    for (const int year : {0, 2023, 0, 2023})
        clock.add(tenthOfNovember(year, 1));
    QCOMPARE(clock.runs().size(), std::size_t(1));
    QCOMPARE(clock.runs().front().year, 2023);
    QCOMPARE(clock.add(tenthOfNovember(2024, 1)), std::size_t(1));
}

QTEST_GUILESS_MAIN(ClockRunsTest)

#include "tst_clockruns.moc"
