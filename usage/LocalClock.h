// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>

#include <cstdint>
#include <string>

namespace usage
{

/// The local calendar at many moments, in the time zone of the moment when this is made.
/// Finding out about the zone costs more than all that is asked of it afterwards.
class LocalClock
{
public:
    LocalClock();

    /// The day at that moment, in seconds since 1970-01-01 00:00 UTC.
    QDate dayAt(std::int64_t utc) const;
    /// The day and the time that a clock shows at that moment, as the seconds from
    /// 1970-01-01 00:00 on the same clock, had it never been changed.
    std::int64_t shownAt(std::int64_t utc) const;
    /// Puts that moment behind the text as localText() has it.
    void append(std::string &text, std::int64_t utc) const;
};

} // namespace usage
