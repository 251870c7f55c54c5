// SPDX-License-Identifier: MIT
#include "recorder/HourlySplit.h"

#include <QTest>

using history::HourlyBytes;
using recorder::HourlySplit;

namespace
{

constexpr std::int64_t first = 1717372800;
constexpr std::int64_t second = first + 3600;

/// "hour sent/received" of each, the hours counted from the first one, with R for roaming.
QString text(const HourlySplit &split)
{
    QStringList texts;
    for (const HourlyBytes &each : split.hours())
        texts << QString("%1%2 %3/%4")
                     .arg((each.hourUtc - first) / 3600)
                     .arg(each.isRoaming ? "R" : "")
                     .arg(each.uploadedBytes)
                     .arg(each.downloadedBytes);
    return texts.join(", ");
}

} // namespace

class HourlySplitTest : public QObject
{
    Q_OBJECT

private slots:
    void countsInTheHourInWhichTheTotalsGrow();
    void takesWhatIsLessFromTheLastHoursThatHaveIt();
    void countsWhatIsKnownWithoutHoursAtTheStart();
};

void HourlySplitTest::countsInTheHourInWhichTheTotalsGrow()
{
    HourlySplit split;
    split.follow({10, 100}, first + 1, false);
    split.follow({10, 100}, second, false); // nothing
    split.follow({11, 102}, second - 1, false);
    split.follow({15, 102}, second, false);
    split.follow({15, 105}, second + 1, true);
    QCOMPARE(text(split), QString("0 11/102, 1 4/0, 1R 0/3"));
}

void HourlySplitTest::takesWhatIsLessFromTheLastHoursThatHaveIt()
{
    HourlySplit split;
    split.follow({10, 100}, first, false);
    split.follow({30, 150}, second, false);
    split.follow({5, 140}, second + 3600, false);
    QCOMPARE(text(split), QString("0 5/100, 1 0/40"));
    split.follow({6, 140}, second, false);
    QCOMPARE(text(split), QString("0 5/100, 1 1/40"));
}

void HourlySplitTest::countsWhatIsKnownWithoutHoursAtTheStart()
{
    history::ConnectionBase connection;
    connection.startUtc = first + 10;
    connection.uploadedBytes = 9;
    connection.downloadedBytes = 8;
    connection.hours = {{second, true, 4, 8}};
    QCOMPARE(text(HourlySplit(connection)), QString("1R 4/8, 0 5/0"));
}

QTEST_GUILESS_MAIN(HourlySplitTest)

#include "tst_hourlysplit.moc"
