// SPDX-License-Identifier: MIT
#pragma once

namespace connrecord
{

/// For commands that are soon done: the local time is that of the system's present zone from
/// now on, though the system gets another one, unless the environment names a zone.
void keepSystemZone();

} // namespace connrecord
