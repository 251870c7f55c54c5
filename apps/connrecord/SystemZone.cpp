// SPDX-License-Identifier: MIT
#include "SystemZone.h"

#include <cstdlib>

namespace connrecord
{

/// Without this variable, the C library looks at the system's zone file whenever it is
/// asked for the zone, which makes up most of a long import.
void keepSystemZone()
{
    const bool replacesOthers = false;
    setenv("TZ", ":/etc/localtime", replacesOthers);
}

} // namespace connrecord
