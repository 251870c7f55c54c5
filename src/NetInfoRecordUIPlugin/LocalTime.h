// SPDX-License-Identifier: MIT
#pragma once

#include "LocalZone.h"

#include <QDateTime>

namespace LocalTime
{

/// What Qt makes of a moment in seconds since 1970-01-01 00:00 UTC, at which local time
/// has this offset. Qt would look at the zone again, as for each time that it makes.
QDateTime at(qint64 secondsSinceEpoch, const LocalZone::Offset &offset);

} // namespace LocalTime
