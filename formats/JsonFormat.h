// SPDX-License-Identifier: MIT
#pragma once

#include "Json.h"
#include "history/Connection.h"

#include <cstdint>
#include <string_view>

namespace formats
{

struct FieldError;

/// The members of a connection's object that are no fields of it.
constexpr const char *jsonKeyName = "key";
constexpr const char *jsonHoursName = "hours";
constexpr const char *jsonMachineName = "machine";
constexpr const char *jsonRunningName = "running";
constexpr const char *jsonUpdatedName = "updated";
/// That of the last line on a delivery, which no connection has.
constexpr const char *jsonLastKeyName = "last_key";

/// Whether a file that begins so looks like one, or like one with an object a line.
bool isBeginningOfJson(std::string_view beginning);
bool isBeginningOfJsonLines(std::string_view beginning);

/// Whether it is of a connection that still lasted, which no finished one can be made of.
bool isStillRunning(const Json &json);

/// What jsonWriter() makes of a connection, read back; its key and its machine are
/// passed over. Throws FieldError.
history::Connection connectionFromJson(const Json &json);

/// The errors for what stands in the place of a connection and can be none.
FieldError noObject();
FieldError longerThan(std::int64_t bytes);

} // namespace formats
