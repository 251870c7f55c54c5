// SPDX-License-Identifier: MIT
#pragma once

#include "LinkMessage.h"
#include "history/Connection.h"

#include <cstdint>
#include <vector>

namespace recorder
{

/// What a connection has moved, by hours of UTC, home and roaming apart. It always adds up
/// to the connection's totals.
class HourlySplit
{
public:
    HourlySplit() = default;
    /// What is known of a connection with these totals; if that is nothing, all of it
    /// counts at its start.
    explicit HourlySplit(const history::ConnectionBase &connection);

    /// The totals have come to these values, by this second: what is more counts in its
    /// hour, what is less is taken from the last ones.
    void follow(const LinkCounters &totals, std::int64_t utc, bool isRoaming);
    /// Adds what another one has.
    void add(const std::vector<history::HourlyBytes> &hours);

    const std::vector<history::HourlyBytes> &hours() const { return m_hours; }
    /// Those that these lack, or have other values for.
    std::vector<history::HourlyBytes>
    changedSince(const std::vector<history::HourlyBytes> &saved) const;

private:
    history::HourlyBytes &hourAt(std::int64_t utc, bool isRoaming);

    std::vector<history::HourlyBytes> m_hours;
    LinkCounters m_totals;
};

} // namespace recorder
