// SPDX-License-Identifier: MIT
#pragma once

#include "JsonText.h"
#include "history/Store.h"

#include <vector>

namespace formats
{

/// The connections for programs, with their hours if they are given: exact integers, times
/// as ISO 8601 in UTC.
Json toJson(const std::vector<history::Connection> &connections);

/// The document of it.
QByteArray toJsonText(const std::vector<history::Connection> &connections);

/// What toJson() makes of a connection, read back; its key is passed over. Throws
/// FieldError.
history::Connection connectionFromJson(const Json &json);

} // namespace formats
