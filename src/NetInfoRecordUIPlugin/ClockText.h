// SPDX-License-Identifier: MIT
#pragma once

/// The local time of day when it is made, as "hh:mm:ss:zzz" in ASCII digits.
class ClockText
{
public:
    ClockText();
    const char *text() const { return m_text; }

private:
    char m_text[13];
};
