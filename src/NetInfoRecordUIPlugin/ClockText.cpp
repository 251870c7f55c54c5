// SPDX-License-Identifier: MIT
#include "ClockText.h"

#include "LocalZone.h"

#include <QTime>

#include <algorithm>
#include <ctime>
#include <iterator>

namespace
{

/// Milliseconds since midnight, asked of Qt where the zone's offset is not certain.
int millisecondsOfDay()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    const auto offset = LocalZone::offsetAt(now.tv_sec);
    if (!offset)
        return QTime::currentTime().msecsSinceStartOfDay();
    const std::time_t second = (now.tv_sec + offset->seconds) % LocalZone::secondsPerDay;
    return static_cast<int>(second * 1000 + now.tv_nsec / 1000000);
}

void writeDigits(int number, char *to, int count)
{
    for (char *digit = to + count; digit != to; number /= 10)
        *--digit = static_cast<char>('0' + number % 10);
}

} // namespace

ClockText::ClockText()
    : ClockText(millisecondsOfDay())
{
}

ClockText::ClockText(int milliseconds)
{
    std::fill(std::begin(m_text), std::end(m_text), ':');
    writeDigits(milliseconds / 3600000, m_text, 2);
    writeDigits(milliseconds / 60000 % 60, m_text + 3, 2);
    writeDigits(milliseconds / 1000 % 60, m_text + 6, 2);
    writeDigits(milliseconds % 1000, m_text + 9, 3);
    m_text[12] = '\0';
}
