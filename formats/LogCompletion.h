// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <cstdint>
#include <string>

namespace formats
{

/// Where an imported connection has its profile from; the later, the more it is worth.
enum class ProfileSource {
    Placeholder, ///< nowhere: it goes by its interface
    Option,      ///< the user has named it for a log that does not
    Log,         ///< the APN in the log
};

/// The profile of a connection that nobody has named one for.
std::string placeholderProfile(const std::string &interfaceName);

/// Whether a connection that ended then may have started then: the two differ
/// from the connect time by no more than a day, else the clock was set between.
bool isPlausibleStart(std::int64_t startUtc, const history::Connection &connection);

/// Takes over into the stored connection what the log has on the same one and the
/// store has not: from its beginning, or its profile. Whether that was anything.
bool completeFromLog(history::Connection &stored, const history::Connection &logged,
                     ProfileSource source);

} // namespace formats
