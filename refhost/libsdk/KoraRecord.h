// SPDX-License-Identifier: MIT
#pragma once

#include "KoraStatistics.h"

namespace refhost
{

class ConnectionRow;

/// Writes the row's values as texts into a record that is all zero. Profiles are
/// cut to 127 UTF-16 units between characters, other texts to 31 bytes.
void fillRecord(const ConnectionRow &row, _KORA_ST_CONNRECORD &record);

} // namespace refhost
