// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <cstdint>

/// The connection with this number as the writer records it; whoever reads the
/// store knows from the number alone what must be there.
inline history::Connection finishedConnection(std::int64_t number)
{
    history::Connection connection;
    connection.profile = "connection " + std::to_string(number);
    connection.startUtc = number;
    connection.endUtc = number + 60;
    connection.connectedSeconds = 60;
    connection.uploadedBytes = number * 1000;
    connection.downloadedBytes = number * 100000;
    connection.interfaceName = "wwan0";
    return connection;
}

inline history::OpenConnection begunConnection(std::int64_t number)
{
    history::OpenConnection connection;
    connection.bootId = "boot";
    connection.interfaceIndex = number;
    connection.interfaceName = "wwan0";
    connection.profile = "connection " + std::to_string(number);
    connection.startUtc = number;
    connection.updatedUtc = number;
    return connection;
}
