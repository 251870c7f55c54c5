// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QDate>

#include <cstdint>

namespace usage
{

/// The day of the local calendar at that moment, in seconds since 1970-01-01
/// 00:00 UTC. Who asks for many has a LocalClock.
QDate localDay(std::int64_t utc);

/// Days of the local calendar from the first to the last, both included. A null
/// date leaves its side open.
struct LocalDays {
    QDate first;
    QDate last;

    bool contains(const QDate &day) const;
    /// A range that holds every moment of these days and few others: where clocks
    /// are set back just after midnight, other days' moments stand between theirs.
    history::TimeRange widerRange() const;
};

} // namespace usage
