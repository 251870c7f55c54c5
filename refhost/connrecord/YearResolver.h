// SPDX-License-Identifier: MIT
#pragma once

#include "CalendarTime.h"

#include <cstdint>
#include <optional>

namespace refhost
{

/// Tells when the lines of a log were written, also where the log leaves the
/// year out: it is the latest one that puts the line not after the end of the log.
class YearResolver
{
public:
    /// `end` is the time of the log's last line; its year, when not written, is
    /// the latest that is not after `notAfterUtc`.
    YearResolver(const CalendarTime &end, std::int64_t notAfterUtc);

    std::int64_t utc(const CalendarTime &time) const;

private:
    std::int64_t m_endUtc;
};

} // namespace refhost
