// SPDX-License-Identifier: MIT
#include "LocalZone.h"
#include "PlanSamples.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <QTest>

#include <time.h>

#include <random>

using namespace history;
using namespace usage;

namespace
{

/// Days are walked one by one with the C library's calendar.
struct Model {
    static tm dayAt(time_t utc)
    {
        tm day{};
        localtime_r(&utc, &day);
        day.tm_hour = day.tm_min = day.tm_sec = 0;
        day.tm_isdst = -1;
        mktime(&day);
        return day;
    }
    static tm moved(tm day, int by)
    {
        day.tm_mday += by;
        day.tm_isdst = -1;
        mktime(&day);
        return day;
    }
    static bool isLastOfMonth(const tm &day) { return moved(day, 1).tm_mday == 1; }

    bool begins(const tm &day) const
    {
        if (const auto *monthly = std::get_if<MonthlyFrom>(&plan.period))
            return day.tm_mday == monthly->day ||
                   (day.tm_mday < monthly->day && isLastOfMonth(day));
        const auto &every = std::get<EveryDays>(plan.period);
        const QDate date(day.tm_year + 1900, day.tm_mon + 1, day.tm_mday);
        for (JulianDay first = every.from; first <= date.toJulianDay(); first += every.days) {
            if (first == date.toJulianDay())
                return true;
        }
        return false;
    }

    bool counts(const Connection &connection, bool isRoaming) const
    {
        const bool isOfProfile =
            plan.covers != DataPlan::Covers::Profile || connection.profile == plan.covered;
        const bool isOfNetwork = plan.network == DataPlan::Network::Both ||
                                 (plan.network == DataPlan::Network::Roaming) == isRoaming;
        return isOfProfile && isOfNetwork;
    }
    std::int64_t counted(std::int64_t uploaded, std::int64_t downloaded) const
    {
        return (plan.counts == DataPlan::Counts::Received ? 0 : uploaded) +
               (plan.counts == DataPlan::Counts::Sent ? 0 : downloaded);
    }

    QString statusAt(time_t now) const
    {
        tm first = dayAt(now);
        while (!begins(first))
            first = moved(first, -1);
        int daysLeft = 1;
        tm next = moved(dayAt(now), 1);
        for (; !begins(next); next = moved(next, 1))
            ++daysLeft;
        tm firstCopy = first;
        tm nextCopy = next;
        const std::int64_t begin = mktime(&firstCopy);
        const std::int64_t end = mktime(&nextCopy);
        std::int64_t used = plan.usedElsewhere ? plan.usedElsewhere->bytes : 0;
        for (const Connection &each : connections) {
            for (const HourlyBytes &hour : each.hours) {
                if (begin <= hour.hourUtc && hour.hourUtc < end && counts(each, hour.isRoaming))
                    used += counted(hour.uploadedBytes, hour.downloadedBytes);
            }
        }
        const std::int64_t left = *plan.amount - used;
        const tm last = moved(next, -1);
        const auto text = [](const tm &day) {
            return dayText(QDate(day.tm_year + 1900, day.tm_mon + 1, day.tm_mday));
        };
        return QString("%1 to %2: %3, %4, %5, %6, %7")
            .arg(text(first), text(last))
            .arg(used)
            .arg(left)
            .arg(daysLeft)
            .arg(left > 0 ? left / daysLeft : 0)
            .arg(now - begin < 86400 ? "no pace"
                                     : QString::number(used * (end - begin) / (now - begin)));
    }

    std::int64_t upTo(std::int64_t most)
    {
        return std::uniform_int_distribution<std::int64_t>(0, most)(random);
    }

    void makePlan(std::int64_t now)
    {
        plan = planOf(MonthlyFrom{1 + upTo(30)}, upTo(2'000'000));
        if (upTo(1) == 0)
            plan.period = EveryDays{1 + upTo(40), dayNumber("2025-01-01") + upTo(30)};
        if (upTo(1) == 0) {
            plan.covers = DataPlan::Covers::Profile;
            plan.covered = "other";
        }
        plan.network = networkNames[static_cast<std::size_t>(upTo(2))].value;
        plan.counts = countNames[static_cast<std::size_t>(upTo(2))].value;
        if (upTo(2) == 0) {
            const tm today = dayAt(now);
            plan.usedElsewhere = UsedElsewhere{
                upTo(1'000'000),
                QDate(today.tm_year + 1900, today.tm_mon + 1, today.tm_mday).toJulianDay()};
        }
    }

    void makeConnections(std::int64_t firstHour)
    {
        for (int i = 0; i < 40; ++i) {
            Connection made = connection(upTo(1) == 0 ? "other" : "internet", 0, 0);
            made.startUtc = firstHour + upTo(400 * 24) * 3600;
            made.endUtc = made.startUtc;
            for (std::int64_t hour = made.startUtc; upTo(9) > 0; hour += 3600) {
                made.hours.push_back({hour, upTo(1) == 0, upTo(9999), upTo(9999)});
                made.uploadedBytes += made.hours.back().uploadedBytes;
                made.downloadedBytes += made.hours.back().downloadedBytes;
                made.endUtc = hour + 3600;
            }
            connections.push_back(made);
        }
    }

    std::mt19937 random{20261122};
    DataPlan plan;
    std::vector<Connection> connections;
};

} // namespace

class PlanModelTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void agreesWithASlowModel_data();
    void agreesWithASlowModel();
};

void PlanModelTest::agreesWithASlowModel_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *const zone : {"Europe/Berlin", "America/New_York", "Asia/Kolkata",
                                   "Australia/Lord_Howe", "Pacific/Kiritimati", "UTC"})
        QTest::newRow(zone) << QByteArray(zone);
}

void PlanModelTest::agreesWithASlowModel()
{
    QFETCH(QByteArray, zone);
    const LocalZone local(zone);
    const std::int64_t firstHour = utcOf("2025-10-01T00:00:00Z");
    Model model;
    model.makeConnections(firstHour);
    const Store store = storeWith(m_path, model.connections);
    for (int i = 0; i < 150; ++i) {
        const std::int64_t now = firstHour + model.upTo(400 * 86400);
        model.makePlan(now);
        QCOMPARE(textOf(currentStatus(store, model.plan, now)), model.statusAt(now));
    }
}

QTEST_GUILESS_MAIN(PlanModelTest)
#include "tst_planmodel.moc"
