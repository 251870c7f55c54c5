// SPDX-License-Identifier: MIT
#include "PlanSamples.h"
#include "YearsOfHistory.h"
#include "usage/UsageBars.h"

#include <QTest>

#include <optional>
#include <random>

using history::DataPlan;
using usage::BarUnit;

Q_DECLARE_METATYPE(history::DataPlan)
Q_DECLARE_METATYPE(usage::BarUnit)

/// The program's sums against those that a query written by hand makes of the same
/// store, with the database's own calendar, and against the bars of a page of usage.
class TotalsAgreementTest : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithAQuery_data();
    void agreesWithAQuery();
    void agreesWithBars_data();
    void agreesWithBars();
    void coversWhatIsSpecial();

private:
    const YearsOfHistory &historyOf(const QByteArray &zone, int firstYear);

    std::optional<YearsOfHistory> m_history;
    QByteArray m_zone; ///< of this history
};

namespace
{

constexpr char sums[] = "count(*), sum(connected_seconds), sum(uploaded_bytes),"
                        " sum(downloaded_bytes) FROM connection";
constexpr char month[] = "strftime('%Y-%m', start_utc, 'unixepoch', 'localtime')";
constexpr char day[] = "date(start_utc, 'unixepoch', 'localtime')";

struct Grouping {
    const char *name;
    QStringList options;
    QString profile;
    QString month;
};

const Grouping groupings[] = {
    {"all", {}, "''", "''"},
    {"by profile", {"--by", "profile"}, "profile", "''"},
    {"by month", {"--by", "month"}, "''", month},
    {"by profile and month", {"--by", "profile,month"}, "profile", month},
};

struct Days {
    const char *name;
    QStringList options;
    QString condition;
};

/// A year of connections that have moved bytes at home and roaming, hour by hour or, some of
/// them, at no known hour.
std::vector<history::Connection> connectionsWithHours(std::mt19937 &random, int year)
{
    const auto below = [&random](unsigned int limit) { return std::int64_t(random() % limit); };
    const std::int64_t begin = utcOf(QString("%1-12-30T00:00:00Z").arg(year - 1));
    std::vector<history::Connection> connections(1500);
    for (history::Connection &each : connections) {
        each.profile = below(2) == 0 ? "internet" : "web";
        each.startUtc = begin + below(370 * 86400);
        const std::int64_t hours = below(5);
        for (std::int64_t hour = 0; hour < hours; ++hour)
            each.hours.push_back({history::startOfHour(each.startUtc) + hour * 3600, below(3) == 0,
                                  1 + below(1000), 1 + below(100000)});
        for (const history::HourlyBytes &hour : each.hours) {
            each.uploadedBytes += hour.uploadedBytes;
            each.downloadedBytes += hour.downloadedBytes;
        }
        if (hours == 0)
            each.uploadedBytes = 1 + below(1000);
        each.endUtc = each.startUtc + hours * 3600;
    }
    return connections;
}

/// day or month|home or roaming|sent|received
QStringList textsOf(const std::vector<usage::UsageBar> &bars, BarUnit unit)
{
    QStringList texts;
    const auto append = [&texts](const QString &when, const char *where, qint64 sent,
                                 qint64 received) {
        if (sent != 0 || received != 0)
            texts.append(QString("%1|%2|%3|%4").arg(when, where).arg(sent).arg(received));
    };
    for (const usage::UsageBar &bar : bars) {
        const QString when = bar.first.toString(unit == BarUnit::Day ? "yyyy-MM-dd" : "yyyy-MM");
        append(when, "home", bar.bytes[usage::SentAtHome], bar.bytes[usage::ReceivedAtHome]);
        append(when, "roaming", bar.bytes[usage::SentRoaming], bar.bytes[usage::ReceivedRoaming]);
    }
    texts.sort();
    return texts;
}

void addRows(const QByteArray &zone, int firstYear)
{
    const QString second = QString::number(firstYear + 1);
    const Days spans[] = {
        {"always", {}, "1"},
        {"a year",
         {"--from", second + "-01-01", "--to", second + "-12-31"},
         QString("%1 BETWEEN '%2-01-01' AND '%2-12-31'").arg(day, second)},
        {"one day",
         {"--from", second + "-10-31", "--to", second + "-10-31"},
         QString("%1 = '%2-10-31'").arg(day, second)},
    };
    for (const Grouping &grouping : groupings) {
        for (const Days &days : spans)
            QTest::addRow("%s, %s, %s", grouping.name, days.name, zone.constData())
                << zone << firstYear << grouping.options + days.options
                << QString("SELECT %1, %2, %3 WHERE %4 GROUP BY 1, 2 ORDER BY 1, 2")
                       .arg(grouping.profile, grouping.month, sums, days.condition);
    }
}

} // namespace

/// The same one as long as nobody asks for another zone's: it takes long to make.
const YearsOfHistory &TotalsAgreementTest::historyOf(const QByteArray &zone, int firstYear)
{
    if (!m_history || m_zone != zone) {
        m_history.reset();
        m_history.emplace(zone.constData(), firstYear);
        m_zone = zone;
    }
    return *m_history;
}

void TotalsAgreementTest::agreesWithAQuery_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("firstYear");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("query");
    addRows("Europe/Berlin", 2023);
    // Here, clocks were set back a minute after a month had begun.
    addRows("America/St_Johns", 2008);
    addRows("Pacific/Kiritimati", 2023); // 14 hours ahead of UTC
    addRows("Etc/GMT+12", 2023);         // 12 hours behind it
}

void TotalsAgreementTest::agreesWithAQuery()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, firstYear);
    QFETCH(QStringList, options);
    QFETCH(QString, query);
    const QStringList queried = historyOf(zone, firstYear).rowsOf(query.toStdString());
    QVERIFY(!queried.isEmpty());
    QCOMPARE(YearsOfHistory::totalsTold(options + QStringList("--by-start"),
                                        {"profile", "month", "connections", "connected_seconds",
                                         "uploaded_bytes", "downloaded_bytes"}),
             queried);
}

void TotalsAgreementTest::agreesWithBars_data()
{
    m_history.reset();
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("year");
    QTest::addColumn<DataPlan>("plan");
    QTest::addColumn<BarUnit>("unit");
    DataPlan everything = planOf(history::MonthlyFrom{30});
    DataPlan roaming = planOf(history::EveryDays{28, dayNumber("2000-01-01")});
    roaming.network = DataPlan::Network::Roaming;
    roaming.covers = DataPlan::Covers::Profile;
    roaming.covered = "internet";
    const auto add = [&](const QByteArray &zone, int year) {
        for (const DataPlan &plan : {everything, roaming}) {
            for (const BarUnit unit : {BarUnit::Day, BarUnit::Month})
                QTest::addRow("%s, %s, by %s", zone.constData(),
                              plan.covered.empty() ? "everything" : "one profile, roaming",
                              unit == BarUnit::Day ? "day" : "month")
                    << zone << year << plan << unit;
        }
    };
    add("Europe/Berlin", 2023);
    add("America/St_Johns", 2008);
    add("Asia/Kolkata", 2023); // 5 hours and a half ahead of UTC
    add("Pacific/Apia", 2011); // whose 30 December was left out
}

void TotalsAgreementTest::agreesWithBars()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, year);
    QFETCH(DataPlan, plan);
    QFETCH(BarUnit, unit);
    const LocalZone local(zone.constData());
    const NamedStore named;
    std::mt19937 random(20261122);
    auto store = history::Store::openOrCreate(named.path());
    QVERIFY(store.value().addMissing(connectionsWithHours(random, year)));
    QVERIFY(store.value().setPlan(plan));
    for (const QDate &shown : {QDate(year, 10, 31), QDate(year, 12, 31)}) {
        const auto span = usage::spanNear(plan.period, unit, shown);
        const auto bars = usage::usageBars(store.value(), plan, unit, span);
        QVERIFY(bars);
        const QStringList drawn = textsOf(bars.value(), unit);
        QVERIFY(!drawn.isEmpty());
        const QString part = unit == BarUnit::Day ? "day" : "month";
        QStringList told =
            YearsOfHistory::totalsTold({"--by", part + ",roaming", "--plan", "plan", "--from",
                                        dayText(span.first), "--to", dayText(span.last())},
                                       {part, "roaming", "uploaded_bytes", "downloaded_bytes"});
        told.sort();
        QCOMPARE(drawn, told);
    }
}

/// Without these in it, an agreement would say little.
void TotalsAgreementTest::coversWhatIsSpecial()
{
    const YearsOfHistory &history = historyOf("Europe/Berlin", 2023);
    const auto count = [&history](const std::string &condition) {
        return history.rowsOf("SELECT count(*) FROM connection WHERE " + condition).first().toInt();
    };
    const std::string local = "strftime('%Y-%m-%d %H', start_utc, 'unixepoch', 'localtime') ";
    QVERIFY(count("1") > 3000);
    QVERIFY(count(local + "LIKE '2024-02-29%'") > 0);
    QVERIFY(count(local + "LIKE '2024-03-31%'") > 0); // clocks go forward
    QVERIFY(count(local + "LIKE '2024-10-27%'") > 0); // and back
    QVERIFY(count("uploaded_bytes >= 9007199254740992") > 10);
    QVERIFY(count("profile = ''") > 100);
    QVERIFY(count("profile = 'IDS_COMBO_ALLAPN'") > 100);
    QVERIFY(count("profile = 'internet'") > 100);
    QVERIFY(count("profile = 'INTERNET'") > 100);
    QVERIFY(count("end_utc - start_utc > 86400") > 10);
}

QTEST_GUILESS_MAIN(TotalsAgreementTest)

#include "tst_totalsagreement.moc"
