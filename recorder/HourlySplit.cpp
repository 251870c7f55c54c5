// SPDX-License-Identifier: MIT
#include "HourlySplit.h"

#include <algorithm>
#include <iterator>

namespace recorder
{

namespace
{

using history::HourlyBytes;

bool areEqual(const HourlyBytes &a, const HourlyBytes &b)
{
    return a.hourUtc == b.hourUtc && a.isRoaming == b.isRoaming &&
           a.uploadedBytes == b.uploadedBytes && a.downloadedBytes == b.downloadedBytes;
}

/// What is less than nothing is taken from the last hours that have it.
void takeBack(std::vector<HourlyBytes> &hours, std::int64_t HourlyBytes::*count, std::int64_t bytes)
{
    for (auto hour = hours.rbegin(); hour != hours.rend() && bytes > 0; ++hour) {
        const std::int64_t part = std::min((*hour).*count, bytes);
        (*hour).*count -= part;
        bytes -= part;
    }
}

} // namespace

HourlySplit::HourlySplit(const history::ConnectionBase &connection)
{
    add(connection.hours);
    const LinkCounters totals = {connection.uploadedBytes, connection.downloadedBytes};
    follow(totals, connection.startUtc, false);
}

void HourlySplit::follow(const LinkCounters &totals, std::int64_t utc, bool isRoaming)
{
    const LinkCounters moved = {totals.uploaded - m_totals.uploaded,
                                totals.downloaded - m_totals.downloaded};
    m_totals = totals;
    if (moved.uploaded > 0 || moved.downloaded > 0) {
        HourlyBytes &hour = hourAt(utc, isRoaming);
        hour.uploadedBytes += std::max(moved.uploaded, std::int64_t{0});
        hour.downloadedBytes += std::max(moved.downloaded, std::int64_t{0});
    }
    takeBack(m_hours, &HourlyBytes::uploadedBytes, -moved.uploaded);
    takeBack(m_hours, &HourlyBytes::downloadedBytes, -moved.downloaded);
}

void HourlySplit::add(const std::vector<HourlyBytes> &hours)
{
    for (const HourlyBytes &each : hours) {
        HourlyBytes &hour = hourAt(each.hourUtc, each.isRoaming);
        hour.uploadedBytes += each.uploadedBytes;
        hour.downloadedBytes += each.downloadedBytes;
        m_totals.uploaded += each.uploadedBytes;
        m_totals.downloaded += each.downloadedBytes;
    }
}

std::vector<HourlyBytes> HourlySplit::changedSince(const std::vector<HourlyBytes> &saved) const
{
    std::vector<HourlyBytes> changed;
    std::copy_if(m_hours.begin(), m_hours.end(), std::back_inserter(changed),
                 [&saved](const HourlyBytes &hour) {
                     return std::none_of(saved.begin(), saved.end(), [&hour](const auto &each) {
                         return areEqual(each, hour);
                     });
                 });
    return changed;
}

HourlyBytes &HourlySplit::hourAt(std::int64_t utc, bool isRoaming)
{
    const std::int64_t start = history::startOfHour(utc);
    const auto found = std::find_if(m_hours.begin(), m_hours.end(), [&](const HourlyBytes &each) {
        return each.hourUtc == start && each.isRoaming == isRoaming;
    });
    if (found != m_hours.end())
        return *found;
    m_hours.push_back({start, isRoaming, 0, 0});
    return m_hours.back();
}

} // namespace recorder
