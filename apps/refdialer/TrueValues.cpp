// SPDX-License-Identifier: MIT
#include "TrueValues.h"

#include "usage/CalendarTime.h"
#include "usage/LocalClock.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace refdialer
{

namespace
{

constexpr std::int64_t endOf2037 = 2145916800; // in UTC

std::int64_t wallClock(const QDateTime &time)
{
    if (!time.isValid())
        return std::numeric_limits<std::int64_t>::min();
    const qint64 days = QDate(1970, 1, 1).daysTo(time.date());
    return days * usage::secondsPerDay + time.time().msecsSinceStartOfDay() / 1000;
}

/// For later years older versions of Qt, which the rows come from, take the rules of
/// another one.
std::int64_t wallClock(std::int64_t utcSeconds, const usage::LocalClock &clock)
{
    return utcSeconds < endOf2037 ? clock.shownAt(utcSeconds)
                                  : wallClock(QDateTime::fromSecsSinceEpoch(utcSeconds));
}

double distance(const history::Connection &connection, const HistoryRow &row)
{
    return std::abs(double(connection.uploadedBytes) - row.uploadedBytes) +
           std::abs(double(connection.downloadedBytes) - row.downloadedBytes) +
           std::abs(double(connection.connectedSeconds) - double(row.connectedSeconds));
}

/// Whether the volume is what a row shows as this one, rounded to a hundredth of its unit.
bool isShownAs(double shown, std::int64_t bytes)
{
    double unit = 1024;
    while (shown >= unit * 1024 && unit < 1024.0 * 1024 * 1024)
        unit *= 1024;
    return std::abs(double(bytes) - shown) <= unit / 100;
}

bool isShownBy(const HistoryRow &row, const history::Connection &connection)
{
    return row.connectedSeconds == connection.connectedSeconds &&
           isShownAs(row.uploadedBytes, connection.uploadedBytes) &&
           isShownAs(row.downloadedBytes, connection.downloadedBytes);
}

/// Where the row shows no time, the first of all.
std::int64_t utcSeconds(const QDateTime &time)
{
    return time.isValid() ? time.toSecsSinceEpoch() : -1;
}

history::Connection shownBy(const HistoryRow &row)
{
    history::Connection connection;
    connection.profile = row.profile.toStdString();
    connection.startUtc = utcSeconds(row.start);
    connection.endUtc = utcSeconds(row.end);
    connection.connectedSeconds = row.connectedSeconds;
    connection.uploadedBytes = std::int64_t(row.uploadedBytes);
    connection.downloadedBytes = std::int64_t(row.downloadedBytes);
    return connection;
}

} // namespace

TrueValues TrueValues::readFrom(const std::string &storePath)
{
    const auto store = history::Store::openForReading(storePath);
    if (!store)
        return TrueValues({});
    auto connections = store.value().list();
    return TrueValues(connections ? std::move(connections.value())
                                  : std::vector<history::Connection>());
}

TrueValues::TrueValues(std::vector<history::Connection> connections)
    : m_connections(std::move(connections))
{
    const usage::LocalClock clock;
    m_entries.reserve(m_connections.size());
    for (std::size_t index = 0; index < m_connections.size(); ++index) {
        const history::Connection &connection = m_connections[index];
        const Times times(wallClock(connection.startUtc, clock),
                          wallClock(connection.endUtc, clock));
        m_entries.push_back({times, index});
    }
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const Entry &a, const Entry &b) { return a.times < b.times; });
}

history::Connection TrueValues::take(const HistoryRow &row)
{
    Entry *const entry = entryShownBy(row);
    if (!entry || !isShownBy(row, m_connections[entry->index]))
        return shownBy(row);
    entry->isTaken = true;
    return std::move(m_connections[entry->index]);
}

/// The closest of those with its times and profile that are not taken yet.
TrueValues::Entry *TrueValues::entryShownBy(const HistoryRow &row)
{
    const Times times(wallClock(row.start), wallClock(row.end));
    const std::string profile = row.profile.toStdString();
    auto entry = std::lower_bound(
        m_entries.begin(), m_entries.end(), times,
        [](const Entry &each, const Times &wanted) { return each.times < wanted; });
    Entry *closest = nullptr;
    for (; entry != m_entries.end() && entry->times == times; ++entry) {
        const history::Connection &connection = m_connections[entry->index];
        if (entry->isTaken || connection.profile != profile)
            continue;
        if (!closest || distance(connection, row) < distance(m_connections[closest->index], row))
            closest = &*entry;
    }
    return closest;
}

} // namespace refdialer
