// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <cstdint>
#include <string>
#include <tuple>

/// Everything that a connection says, without the key that its store gave it.
using ConnectionValues = std::tuple<std::int64_t, std::string, std::int64_t, std::int64_t,
                                    std::int64_t, std::int64_t, std::string, std::string>;

/// By the start first, as stores list them.
inline ConnectionValues valuesOf(const history::Connection &connection)
{
    return {connection.startUtc,         connection.profile,       connection.endUtc,
            connection.connectedSeconds, connection.uploadedBytes, connection.downloadedBytes,
            connection.ending,           connection.interfaceName};
}
