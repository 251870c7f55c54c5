// SPDX-License-Identifier: MIT
#pragma once

#include "JsonText.h"
#include "history/Connection.h"

#include <string_view>

namespace formats
{

/// The members of a connection's object that are no fields of it.
constexpr const char *jsonKeyName = "key";
constexpr const char *jsonHoursName = "hours";

/// Whether a file that begins so looks like one.
bool isBeginningOfJson(std::string_view beginning);

/// What jsonWriter() makes of a connection, read back; its key is passed over. Throws
/// FieldError.
history::Connection connectionFromJson(const Json &json);

} // namespace formats
