// SPDX-License-Identifier: MIT
#include "ExportedHours.h"

#include <unordered_map>

namespace common
{

void addHours(const std::vector<history::ConnectionHour> &hours,
              std::vector<history::Connection> &connections)
{
    std::unordered_map<std::int64_t, history::Connection *> withKey;
    for (history::Connection &connection : connections)
        withKey[connection.key] = &connection;
    for (const history::ConnectionHour &hour : hours) {
        const auto found = hour.isOpen ? withKey.end() : withKey.find(hour.key);
        if (found != withKey.end() && hour.isKnown)
            found->second->hours.push_back(
                {hour.utc, hour.isRoaming, hour.uploadedBytes, hour.downloadedBytes});
    }
}

} // namespace common
