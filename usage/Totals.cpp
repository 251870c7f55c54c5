// SPDX-License-Identifier: MIT
#include "Totals.h"

#include "BillingPeriod.h"
#include "LocalClock.h"

#include <QDateTime>

#include <cstdlib>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace usage
{

namespace
{

/// Those that a group's sum has in common, in the order of the sums.
using GroupKey = std::tuple<std::string, std::string, std::string, bool, std::int64_t>;

/// One group's sum, and what is in it, each connection once.
struct Group {
    Sum sum;
    std::set<std::pair<bool, std::int64_t>> connections;
};

/// The name, or the code where that is all that is known.
template <typename Source>
const std::string &operatorOf(const Source &source)
{
    return source.operatorName.empty() ? source.operatorCode : source.operatorName;
}

/// Which period of the grouping a moment is in.
class PeriodNumbers
{
public:
    explicit PeriodNumbers(const Grouping &grouping)
        : m_period(grouping.period)
        , m_billing(grouping.billing)
    {
    }

    /// A number that rises from one period to the next; nothing between billing periods.
    std::optional<std::int64_t> at(std::int64_t utc);

private:
    const Period m_period;
    const LocalClock m_clock;
    PeriodFinder m_billing;
};

std::optional<std::int64_t> PeriodNumbers::at(std::int64_t utc)
{
    switch (m_period) {
    case Period::All:
        return 0;
    case Period::Hour:
        return history::startOfHour(utc);
    case Period::Day:
        return m_clock.dayAt(utc).toJulianDay();
    case Period::Month: {
        const QDate day = m_clock.dayAt(utc);
        return day.year() * 100 + day.month();
    }
    case Period::Year:
        return m_clock.dayAt(utc).year();
    case Period::Billing: {
        const auto period = m_billing.at(utc);
        return period ? std::optional(period->first.toJulianDay()) : std::nullopt;
    }
    }
    return std::nullopt;
}

std::optional<GroupKey> groupOf(const CountedBytes &counted, const Grouping &grouping,
                                PeriodNumbers &periods)
{
    const auto part = [](bool isApart, const std::string &text) {
        return isApart ? text : std::string();
    };
    const auto period = periods.at(counted.utc);
    if (!period)
        return std::nullopt;
    return GroupKey{part(grouping.byProfile, counted.profile), part(grouping.bySim, counted.sim),
                    part(grouping.byOperator, counted.operatorName),
                    grouping.byRoaming && counted.isRoaming, *period};
}

void increase(std::int64_t &sum, std::int64_t amount, const char *what)
{
    if (__builtin_add_overflow(sum, amount, &sum))
        throw SumTooLarge(what);
}

void add(Sum &sum, const CountedBytes &counted)
{
    increase(sum.connectedSeconds, counted.connectedSeconds, "seconds connected");
    increase(sum.uploadedBytes, counted.uploadedBytes, "bytes sent");
    increase(sum.downloadedBytes, counted.downloadedBytes, "bytes received");
}

/// Hours are told by their offset from UTC: "+02:00".
QString offsetText(int seconds)
{
    const int minutes = std::abs(seconds) / 60;
    return QStringLiteral("%1%2:%3")
        .arg(QLatin1Char(seconds < 0 ? '-' : '+'))
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

QString hourText(std::int64_t utc)
{
    const QDateTime hour = QDateTime::fromSecsSinceEpoch(utc);
    return hour.toString(QStringLiteral("yyyy-MM-ddTHH:mm")) + offsetText(hour.offsetFromUtc());
}

QString billingText(const history::PeriodRule &rule, const QDate &first)
{
    const auto period = periodOf(rule, first);
    return period ? period->first.toString(Qt::ISODate) + QLatin1Char('/') +
                        period->last().toString(Qt::ISODate)
                  : QString();
}

} // namespace

CountedBytes countedWhenMoved(const history::ConnectionHour &hour)
{
    CountedBytes counted;
    counted.key = hour.key;
    counted.isOpen = hour.isOpen;
    counted.profile = hour.profile;
    counted.sim = hour.sim;
    counted.operatorName = operatorOf(hour);
    counted.isRoaming = hour.isRoaming;
    counted.utc = hour.utc;
    counted.uploadedBytes = hour.uploadedBytes;
    counted.downloadedBytes = hour.downloadedBytes;
    return counted;
}

CountedBytes countedAtStart(const history::Connection &connection)
{
    CountedBytes counted;
    counted.key = connection.key;
    counted.profile = connection.profile;
    counted.sim = connection.sim;
    counted.operatorName = operatorOf(connection);
    counted.isRoaming = connection.roaming == history::abroad;
    counted.utc = connection.startUtc;
    counted.connectedSeconds = connection.connectedSeconds;
    counted.uploadedBytes = connection.uploadedBytes;
    counted.downloadedBytes = connection.downloadedBytes;
    return counted;
}

std::vector<Sum> sumsOf(const std::vector<CountedBytes> &counted, const Grouping &grouping)
{
    std::map<GroupKey, Group> groups;
    PeriodNumbers periods(grouping);
    for (const CountedBytes &each : counted) {
        const auto key = groupOf(each, grouping, periods);
        if (!key)
            continue;
        Group &group = groups[*key];
        add(group.sum, each);
        group.connections.emplace(each.isOpen, each.key);
    }
    std::vector<Sum> sums;
    sums.reserve(groups.size());
    for (auto &[key, group] : groups) {
        Sum &sum = group.sum;
        std::tie(sum.profile, sum.sim, sum.operatorName, sum.isRoaming, sum.period) = key;
        sum.connections = static_cast<std::int64_t>(group.connections.size());
        sums.push_back(std::move(sum));
    }
    return sums;
}

QString periodText(std::int64_t period, const Grouping &grouping)
{
    const QLatin1Char zero('0');
    switch (grouping.period) {
    case Period::All:
        return {};
    case Period::Hour:
        return hourText(period);
    case Period::Day:
        return QDate::fromJulianDay(period).toString(Qt::ISODate);
    case Period::Month:
        return QStringLiteral("%1-%2")
            .arg(period / 100, 4, 10, zero)
            .arg(period % 100, 2, 10, zero);
    case Period::Year:
        return QStringLiteral("%1").arg(period, 4, 10, zero);
    case Period::Billing:
        return billingText(grouping.billing, QDate::fromJulianDay(period));
    }
    return {};
}

} // namespace usage
