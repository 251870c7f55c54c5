// SPDX-License-Identifier: MIT
#include "apps/connrecord/TotalsText.h"

#include "apps/connrecord/ConnectionText.h"
#include "formats/JsonText.h"

#include <QTest>

#include <limits>

using namespace connrecord;
using namespace formats;
using namespace usage;

class TotalsTextTest : public QObject
{
    Q_OBJECT

private slots:
    void hasAColumnForWhatIsToldApart_data();
    void hasAColumnForWhatIsToldApart();
    void showsAnEmptyProfile();
    void keepsEachSumOnOneLine();
    void writesJson_data();
    void writesJson();
    void writesTheLargestSumExactly();
    void tellsEverythingApart();
};

namespace
{

Sum sample()
{
    Sum totals;
    totals.profile = "internet";
    totals.period = 202405;
    totals.connections = 12;
    totals.connectedSeconds = 360005;
    totals.uploadedBytes = 31981;
    totals.downloadedBytes = 5368709120;
    return totals;
}

TotalsForm form(bool byProfile, bool byMonth)
{
    TotalsForm form;
    form.grouping.byProfile = byProfile;
    form.grouping.period = byMonth ? Period::Month : Period::All;
    form.showsTimeConnected = true;
    return form;
}

void addGroupRows()
{
    QTest::addColumn<bool>("byProfile");
    QTest::addColumn<bool>("byMonth");
    QTest::addColumn<QByteArray>("text");
}

} // namespace

void TotalsTextTest::hasAColumnForWhatIsToldApart_data()
{
    addGroupRows();
    const QByteArray header = "CONNECTIONS  CONNECTED  UPLOADED  DOWNLOADED\n";
    const QByteArray figures = "         12  100:00:05  31.23 KB     5.00 GB\n";
    QTest::newRow("nothing") << false << false << header + figures;
    QTest::newRow("profiles") << true << false << "PROFILE   " + header + "internet  " + figures;
    QTest::newRow("months") << false << true << "MONTH    " + header + "2024-05  " + figures;
    QTest::newRow("profiles and months")
        << true << true << "PROFILE   MONTH    " + header + "internet  2024-05  " + figures;
}

void TotalsTextTest::hasAColumnForWhatIsToldApart()
{
    QFETCH(bool, byProfile);
    QFETCH(bool, byMonth);
    QTEST(toTable({sample()}, form(byProfile, byMonth)), "text");
}

void TotalsTextTest::showsAnEmptyProfile()
{
    Sum unnamed = sample();
    unnamed.profile.clear();
    QVERIFY(toTable({unnamed}, form(true, false)).contains("\n\"\"  "));
    QVERIFY(jsonText(toJson({unnamed}, form(true, false))).contains("\"profile\": \"\""));
}

void TotalsTextTest::keepsEachSumOnOneLine()
{
    Sum odd = sample();
    odd.profile = "a\nb\x1b[2J";
    const QByteArray table = toTable({odd}, form(true, true));
    QCOMPARE(table.count('\n'), 2);
    QVERIFY(table.contains("a\\nb\\u001b[2J "));
}

void TotalsTextTest::writesJson_data()
{
    addGroupRows();
    const QByteArray figures = "        \"connected_seconds\": 360005,\n"
                               "        \"connections\": 12,\n"
                               "        \"downloaded_bytes\": 5368709120,\n";
    const QByteArray last = "        \"uploaded_bytes\": 31981\n    }\n]\n";
    const QByteArray month = "        \"month\": \"2024-05\",\n";
    const QByteArray profile = "        \"profile\": \"internet\",\n";
    const QByteArray first = "[\n    {\n";
    QTest::newRow("nothing") << false << false << first + figures + last;
    QTest::newRow("profiles") << true << false << first + figures + profile + last;
    QTest::newRow("months") << false << true << first + figures + month + last;
    QTest::newRow("profiles and months")
        << true << true << first + figures + month + profile + last;
}

void TotalsTextTest::writesJson()
{
    QFETCH(bool, byProfile);
    QFETCH(bool, byMonth);
    QTEST(jsonText(toJson({sample()}, form(byProfile, byMonth))), "text");
}

void TotalsTextTest::writesTheLargestSumExactly()
{
    Sum large = sample();
    large.uploadedBytes = std::numeric_limits<std::int64_t>::max();
    large.downloadedBytes = 9007199254740993;
    const QByteArray json = jsonText(toJson({large}, form(false, false)));
    QVERIFY2(json.contains("\"uploaded_bytes\": 9223372036854775807\n"), json);
    QVERIFY2(json.contains("\"downloaded_bytes\": 9007199254740993,\n"), json);
}

void TotalsTextTest::tellsEverythingApart()
{
    Sum sum = sample();
    sum.sim = "8949000000000001234";
    sum.operatorName = "Example";
    sum.isRoaming = true;
    sum.period = 2024;
    const auto grouping = groupingOf("year,roaming,operator,sim,profile");
    QVERIFY(grouping);
    QCOMPARE(
        toTable({sum}, {*grouping, false}),
        QByteArray("PROFILE   SIM   OPERATOR  ROAMING  YEAR  CONNECTIONS  UPLOADED  DOWNLOADED\n"
                   "internet  1234  Example   roaming  2024           12  31.23 KB     5.00 GB\n"));
    const QByteArray json = jsonText(toJson({sum}, {*grouping, false}));
    for (const char *const member :
         {"\"profile\": \"internet\"", "\"sim\": \"8949000000000001234\"",
          "\"operator\": \"Example\"", "\"roaming\": \"roaming\"", "\"year\": \"2024\""})
        QVERIFY2(json.contains(member), json);
    QVERIFY(!json.contains("connected_seconds"));
}

QTEST_GUILESS_MAIN(TotalsTextTest)

#include "tst_totalstext.moc"
