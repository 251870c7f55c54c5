// SPDX-License-Identifier: MIT
#include "LocalTime.h"

#include <array>
#include <cstring>

namespace
{

// On machines of 64 bits, Qt keeps a local time as the milliseconds that its clock shows
// and, in the lowest byte, what else there is to know. That byte is taken from a time
// that Qt has made, and the whole is used only where Qt is seen to keep times so.
constexpr int statusBits = 8;
constexpr quint64 statusMask = (1U << statusBits) - 1;

using Word = quint64;

Word wordOf(const QDateTime &time)
{
    Word word = 0;
    if constexpr (sizeof time == sizeof word)
        std::memcpy(&word, static_cast<const void *>(&time), sizeof word);
    return word;
}

QDateTime timeOf(Word word)
{
    QDateTime time;
    if constexpr (sizeof time == sizeof word)
        std::memcpy(static_cast<void *>(&time), &word, sizeof word);
    return time;
}

Word word(qint64 secondsSinceEpoch, const LocalZone::Offset &offset, Word status)
{
    const qint64 shown = (secondsSinceEpoch + offset.seconds) * 1000;
    return (static_cast<Word>(shown) << statusBits) | status;
}

} // namespace

QDateTime LocalTime::at(qint64 secondsSinceEpoch, const LocalZone::Offset &offset)
{
    // Of all standard times, and of all daylight saving times; 0 as long as none is known.
    static std::array<Word, 2> statuses = {};
    Word &status = statuses[offset.isDaylightTime ? 1 : 0];
    if (status != 0)
        return timeOf(word(secondsSinceEpoch, offset, status));
    QDateTime time = QDateTime::fromSecsSinceEpoch(secondsSinceEpoch);
    const Word itsStatus = wordOf(time) & statusMask;
    if (wordOf(time) == word(secondsSinceEpoch, offset, itsStatus))
        status = itsStatus;
    return time;
}
