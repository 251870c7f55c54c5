// SPDX-License-Identifier: MIT
#include "TrueValues.h"

#include "history/Store.h"
#include "usage/CalendarTime.h"
#include "usage/LocalClock.h"

#include <QTableWidget>

#include <algorithm>
#include <cmath>
#include <limits>

namespace refdialer
{

namespace
{

constexpr int taken = -1;

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

double distance(const ConnectionValues &values, const HistoryRow &row)
{
    return std::abs(double(values.uploadedBytes) - row.uploadedBytes) +
           std::abs(double(values.downloadedBytes) - row.downloadedBytes) +
           std::abs(double(values.connectedSeconds) - double(row.connectedSeconds));
}

/// Whether the volume is what a row shows as this one, rounded to a hundredth of its unit.
bool isShownAs(double shown, std::int64_t bytes)
{
    double unit = 1024;
    while (shown >= unit * 1024 && unit < 1024.0 * 1024 * 1024)
        unit *= 1024;
    return std::abs(double(bytes) - shown) <= unit / 100;
}

bool isShownBy(const HistoryRow &row, const ConnectionValues &values)
{
    return row.connectedSeconds == values.connectedSeconds &&
           isShownAs(row.uploadedBytes, values.uploadedBytes) &&
           isShownAs(row.downloadedBytes, values.downloadedBytes);
}

/// Where the row shows no time, the first of all.
std::int64_t utcSeconds(const QDateTime &time)
{
    return time.isValid() ? time.toSecsSinceEpoch() : -1;
}

ShownConnection shownBy(const HistoryRow &row)
{
    history::Connection connection;
    connection.profile = row.profile.toStdString();
    connection.startUtc = utcSeconds(row.start);
    connection.endUtc = utcSeconds(row.end);
    connection.connectedSeconds = row.connectedSeconds;
    connection.uploadedBytes = std::int64_t(row.uploadedBytes);
    connection.downloadedBytes = std::int64_t(row.downloadedBytes);
    return ShownConnection(connection);
}

} // namespace

TrueValues TrueValues::readFrom(const std::string &storePath)
{
    TrueValues values;
    TrueValues unknown;
    unknown.m_areAll = false;
    const auto store = history::Store::openForReading(storePath);
    const auto count = store ? store.value().count() : store.error();
    if (!count)
        return unknown;
    // All at once, since a growing list would be there twice for a while.
    values.reserve(std::size_t(count.value()));
    const usage::LocalClock clock;
    const auto visited = store.value().visit(
        {}, [&](const history::Connection &connection) { values.add(connection, clock); });
    if (!visited)
        return unknown;
    values.sortByTimes();
    return values;
}

std::future<TrueValues> TrueValues::beginReading(const std::string &storePath)
{
    return std::async(std::launch::async, [storePath] { return readFrom(storePath); });
}

TrueValues::TrueValues(const std::vector<history::Connection> &connections)
{
    const usage::LocalClock clock;
    for (const history::Connection &connection : connections)
        add(connection, clock);
    sortByTimes();
}

void TrueValues::reserve(std::size_t count)
{
    m_connections.reserve(count);
    m_entries.reserve(count);
}

void TrueValues::add(const history::Connection &connection, const usage::LocalClock &clock)
{
    const QString profile = QString::fromStdString(connection.profile);
    auto number = m_profiles.constFind(profile);
    if (number == m_profiles.constEnd())
        number = m_profiles.insert(profile, int(m_profiles.size()));
    const Times times(wallClock(connection.startUtc, clock), wallClock(connection.endUtc, clock));
    m_entries.push_back({times, *number, int(m_connections.size())});
    m_connections.emplace_back(connection);
}

void TrueValues::sortByTimes()
{
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const Entry &a, const Entry &b) { return a.times < b.times; });
}

ShownConnection TrueValues::take(const HistoryRow &row)
{
    Entry *const entry = entryShownBy(row);
    if (!entry || !isShownBy(row, valuesOf(*entry)))
        return shownBy(row);
    return m_connections[std::size_t(std::exchange(entry->index, taken))];
}

/// The closest of those with its times and profile that are not taken yet.
TrueValues::Entry *TrueValues::entryShownBy(const HistoryRow &row)
{
    const auto profile = m_profiles.constFind(row.profile);
    if (profile == m_profiles.constEnd())
        return nullptr;
    const Times times(wallClock(row.start), wallClock(row.end));
    auto entry = std::lower_bound(
        m_entries.begin(), m_entries.end(), times,
        [](const Entry &each, const Times &wanted) { return each.times < wanted; });
    Entry *closest = nullptr;
    for (; entry != m_entries.end() && entry->times == times; ++entry) {
        if (entry->index == taken || entry->profile != *profile)
            continue;
        if (!closest || distance(valuesOf(*entry), row) < distance(valuesOf(*closest), row))
            closest = &*entry;
    }
    return closest;
}

const ConnectionValues &TrueValues::valuesOf(const Entry &entry) const
{
    return m_connections[std::size_t(entry.index)].values;
}

ShownConnections shownIn(const QTableWidget &table, TrueValues values)
{
    std::vector<ShownConnection> rows;
    rows.reserve(std::size_t(table.rowCount()));
    for (int row = 0; row < table.rowCount(); ++row)
        rows.push_back(values.take(historyRow(table, row)));
    return ShownConnections(std::move(rows));
}

} // namespace refdialer
