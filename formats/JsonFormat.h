// SPDX-License-Identifier: MIT
#pragma once

#include "JsonText.h"
#include "history/Store.h"

#include <string_view>
#include <vector>

namespace formats
{

/// The connections for programs, with their hours if they are given: exact integers, times
/// as ISO 8601 in UTC.
Json toJson(const std::vector<history::Connection> &connections,
            const history::Store::Progress &progress = {});

/// The document of it.
QByteArray toJsonText(const std::vector<history::Connection> &connections,
                      const history::Store::Progress &progress = {});

/// Whether a file that begins so looks like one.
bool isBeginningOfJson(std::string_view beginning);

/// What toJson() makes of a connection, read back; its key is passed over. Throws
/// FieldError.
history::Connection connectionFromJson(const Json &json);

} // namespace formats
