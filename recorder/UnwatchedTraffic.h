// SPDX-License-Identifier: MIT
#pragma once

#include "LinkMessage.h"
#include "history/Store.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace recorder
{

/// A link as a recorder finds it when it starts.
struct FirstSight {
    history::SeenLink link;
    /// Where a connection that it has begins to count; what it shows if it has none.
    LinkCounters base;
    std::int64_t bootUtc = 0; ///< when the system was started
    std::string profile;
};

/// What to make of a link that may have moved bytes while nothing recorded.
struct FirstSightVerdict {
    /// Up to here everything is in a record, or belongs in none.
    history::SeenLink settled;
    std::optional<history::Connection> unwatched;
    /// Known by its number: its present connection begins where the record ends.
    bool wasSeenInThisRun = false;
};

/// What a link shows more than when it was seen last is a record of its own, "not
/// watched": from then until now, and of no connected time, for nobody knows when it
/// was connected. A counter that shows less has begun anew, and all that it shows is
/// more. A link that is known by its name alone, from another run of the system or
/// before it was made anew, began at zero since it was seen, so all is more that its
/// present connection does not count. One that nobody has ever seen claims nothing.
FirstSightVerdict judge(const FirstSight &sight, const std::vector<history::SeenLink> &seenBefore);

} // namespace recorder
