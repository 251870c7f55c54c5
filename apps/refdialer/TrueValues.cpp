// SPDX-License-Identifier: MIT
#include "TrueValues.h"

#include <algorithm>
#include <cmath>

namespace refdialer
{

namespace
{

/// What a clock on the wall shows, as a number: a row knows no time zone, and at
/// the end of summer time one hour is shown twice.
qint64 wallClock(const QDateTime &time)
{
    constexpr qint64 millisecondsPerDay = 86400000;
    if (!time.isValid())
        return -1;
    return time.date().toJulianDay() * millisecondsPerDay + time.time().msecsSinceStartOfDay();
}

qint64 wallClock(std::int64_t utcSeconds)
{
    return wallClock(QDateTime::fromSecsSinceEpoch(utcSeconds));
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
    const auto connections = store.value().list();
    return TrueValues(connections ? connections.value() : std::vector<history::Connection>());
}

TrueValues::TrueValues(const std::vector<history::Connection> &connections)
{
    m_connections.reserve(int(connections.size()));
    for (const history::Connection &connection : connections) {
        const Times times(wallClock(connection.startUtc), wallClock(connection.endUtc));
        m_connections[{QString::fromStdString(connection.profile), times}].push_back(connection);
    }
}

history::Connection TrueValues::take(const HistoryRow &row)
{
    const auto found =
        m_connections.find({row.profile, Times(wallClock(row.start), wallClock(row.end))});
    if (found == m_connections.end() || found->empty())
        return shownBy(row);
    const auto closest =
        std::min_element(found->begin(), found->end(), [&row](const auto &a, const auto &b) {
            return distance(a, row) < distance(b, row);
        });
    if (!isShownBy(row, *closest))
        return shownBy(row);
    history::Connection connection = std::move(*closest);
    found->erase(closest);
    return connection;
}

} // namespace refdialer
