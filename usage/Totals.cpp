// SPDX-License-Identifier: MIT
#include "Totals.h"

#include "BillingPeriod.h"
#include "LocalClock.h"
#include "PlanUse.h"

#include <QDateTime>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>

namespace usage
{

namespace
{

/// What a group's sum has in common: period, roaming, profile, SIM and operator. What is
/// compared in no time stands first.
template <typename Text>
using GroupKey = std::tuple<std::int64_t, bool, Text, Text, Text>;

/// One group's sum, and what is in it.
struct Group {
    Sum sum;
    std::vector<std::pair<bool, std::int64_t>> connections; ///< once for each time added
};

/// Bytes of a connection that count as a whole at one moment. The texts are somebody else's.
struct CountedBytes {
    std::int64_t key = 0;
    bool isOpen = false; ///< the key is that of an open connection
    const std::string &profile;
    const std::string &sim;
    const std::string &operatorName;
    bool isRoaming = false;
    std::int64_t utc = 0;
    std::int64_t connectedSeconds = 0;
    std::int64_t uploadedBytes = 0;
    std::int64_t downloadedBytes = 0;
};

/// The name, or the code where that is all that is known.
template <typename Source>
const std::string &operatorOf(const Source &source)
{
    return source.operatorName.empty() ? source.operatorCode : source.operatorName;
}

/// The bytes of a connection in one hour.
CountedBytes counted(const history::ConnectionHour &hour)
{
    return {hour.key,           hour.isOpen,         hour.profile, hour.sim,
            operatorOf(hour),   hour.isRoaming,      hour.utc,     0,
            hour.uploadedBytes, hour.downloadedBytes};
}

/// Those of a whole one.
CountedBytes counted(const history::Connection &connection)
{
    return {connection.key,           false,
            connection.profile,       connection.sim,
            operatorOf(connection),   connection.roaming == history::abroad,
            connection.startUtc,      connection.connectedSeconds,
            connection.uploadedBytes, connection.downloadedBytes};
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

    /// A number that rises from one period to the next; nothing between billing periods. The
    /// day is the one at that moment.
    std::optional<std::int64_t> at(std::int64_t utc, const QDate &day);

private:
    const Period m_period;
    PeriodFinder m_billing;
};

std::optional<std::int64_t> PeriodNumbers::at(std::int64_t utc, const QDate &day)
{
    switch (m_period) {
    case Period::All:
        return 0;
    case Period::Hour:
        return history::startOfHour(utc);
    case Period::Day:
        return day.toJulianDay();
    case Period::Month:
        return day.year() * 100 + day.month();
    case Period::Year:
        return day.year();
    case Period::Billing: {
        const auto period = m_billing.at(utc);
        return period ? std::optional(period->first.toJulianDay()) : std::nullopt;
    }
    }
    return std::nullopt;
}

void increase(std::int64_t &value, std::int64_t amount, const char *what, Sum &sum)
{
    if (!__builtin_add_overflow(value, amount, &value))
        return;
    value = std::numeric_limits<std::int64_t>::max();
    sum.tooLarge = what;
}

void add(Sum &sum, const CountedBytes &counted)
{
    increase(sum.connectedSeconds, counted.connectedSeconds, "seconds connected", sum);
    increase(sum.uploadedBytes, counted.uploadedBytes, "bytes sent", sum);
    increase(sum.downloadedBytes, counted.downloadedBytes, "bytes received", sum);
}

/// Adds up what is in the scope, one after the other.
class Adder
{
public:
    Adder(const TotalsScope &scope, const Grouping &grouping)
        : m_scope(scope)
        , m_grouping(grouping)
        , m_periods(grouping)
    {
    }

    void add(const CountedBytes &counted);
    std::vector<Sum> takeSums();

private:
    Group *groupOf(const CountedBytes &counted);

    const TotalsScope &m_scope;
    const Grouping &m_grouping;
    const LocalClock m_clock;
    PeriodNumbers m_periods;
    std::map<GroupKey<std::string>, Group, std::less<>> m_groups;
};

void Adder::add(const CountedBytes &counted)
{
    const auto &plan = m_scope.coveredBy;
    if (plan && !isCovered(*plan, counted.profile, counted.sim, counted.isRoaming))
        return;
    Group *const group = groupOf(counted);
    if (!group)
        return;
    usage::add(group->sum, counted);
    group->connections.emplace_back(counted.isOpen, counted.key);
}

/// Nothing if the moment is not in the scope.
Group *Adder::groupOf(const CountedBytes &counted)
{
    const QDate day = m_clock.dayAt(counted.utc);
    const auto period = m_scope.days.contains(day) ? m_periods.at(counted.utc, day) : std::nullopt;
    if (!period)
        return nullptr;
    const auto part = [](bool isApart, std::string_view text) {
        return isApart ? text : std::string_view();
    };
    const GroupKey<std::string_view> key(*period, m_grouping.byRoaming && counted.isRoaming,
                                         part(m_grouping.byProfile, counted.profile),
                                         part(m_grouping.bySim, counted.sim),
                                         part(m_grouping.byOperator, counted.operatorName));
    auto found = m_groups.find(key);
    if (found == m_groups.end())
        found = m_groups.emplace(GroupKey<std::string>(key), Group()).first;
    return &found->second;
}

template <typename Value>
std::int64_t countOfDifferent(std::vector<Value> values)
{
    std::sort(values.begin(), values.end());
    return std::unique(values.begin(), values.end()) - values.begin();
}

bool comesBefore(const Sum &left, const Sum &right)
{
    const auto place = [](const Sum &sum) {
        return std::tie(sum.profile, sum.sim, sum.operatorName, sum.isRoaming, sum.period);
    };
    return place(left) < place(right);
}

std::vector<Sum> Adder::takeSums()
{
    std::vector<Sum> sums;
    sums.reserve(m_groups.size());
    for (auto &[key, group] : m_groups) {
        Sum &sum = group.sum;
        std::tie(sum.period, sum.isRoaming, sum.profile, sum.sim, sum.operatorName) = key;
        sum.connections = countOfDifferent(std::move(group.connections));
        sums.push_back(std::move(sum));
    }
    std::sort(sums.begin(), sums.end(), comesBefore);
    return sums;
}

/// Shows the adder all that may be in the scope.
history::Result<std::size_t> addUp(Adder &adder, const history::Store &store,
                                   const TotalsScope &scope)
{
    const history::TimeRange range = scope.days.widerRange();
    if (!scope.countsAtStart) {
        return store.visitHours(range, [&](const history::ConnectionHour &hour) {
            if (!scope.isOfFinished || !hour.isOpen)
                adder.add(counted(hour));
        });
    }
    history::ConnectionSelection selection;
    selection.range = range;
    selection.withHours = scope.coveredBy.has_value();
    return store.visit(selection, [&](const history::Connection &connection) {
        CountedBytes whole = counted(connection);
        // A plan counts as home what is not known by the hour.
        if (scope.coveredBy && connection.hours.empty())
            whole.isRoaming = false;
        adder.add(whole);
    });
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

history::Result<std::vector<Sum>> sumsOf(const history::Store &store, const TotalsScope &scope,
                                         const Grouping &grouping)
{
    Adder adder(scope, grouping);
    const auto added = addUp(adder, store, scope);
    if (!added)
        return added.error();
    return adder.takeSums();
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
