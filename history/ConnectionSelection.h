// SPDX-License-Identifier: MIT
#pragma once

#include "Connection.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>

namespace history
{

/// Times from one second up to another one, which is outside, in seconds since
/// 1970-01-01 00:00 UTC; all times unless set.
struct TimeRange {
    std::int64_t fromUtc = std::numeric_limits<std::int64_t>::min();
    std::int64_t untilUtc = std::numeric_limits<std::int64_t>::max();
};

/// Which connections Store::visit() shows: all, but for what is given.
struct ConnectionSelection {
    TimeRange range; ///< of their starts
    /// Finished ones with higher keys only, which have come later.
    std::optional<std::int64_t> afterKey;
    /// Asked of those; it may be asked twice of one, whose hours are not there yet.
    std::function<bool(const ConnectionBase &connection)> isWanted;
    /// That many finished ones at most, the ones that started last.
    std::size_t most = std::numeric_limits<std::size_t>::max();
    bool withHours = false;
};

/// Shown a connection, which changes when the next one is.
using ConnectionVisitor = std::function<void(const Connection &connection)>;
using OpenConnectionVisitor = std::function<void(const OpenConnection &connection)>;

} // namespace history
