// SPDX-License-Identifier: MIT
#pragma once

#include "KoraStatistics.h"

namespace history
{
class ConnectionRow;
}

namespace refhost
{

/// Writes the row's values as texts into a record that is all zero. Profiles are
/// cut to 127 UTF-16 units between characters, other texts to 31 bytes; times after
/// 2038-01-19 03:14:07 UTC are written as 2^32 less.
void fillRecord(const history::ConnectionRow &row, _KORA_ST_CONNRECORD &record);

} // namespace refhost
