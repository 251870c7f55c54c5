// SPDX-License-Identifier: MIT
#pragma once

/// A time of day as "hh:mm:ss:zzz" in ASCII digits.
class ClockText
{
public:
    /// Local time, when it is made.
    ClockText();
    /// So long after midnight.
    explicit ClockText(int milliseconds);
    const char *text() const { return m_text; }

private:
    char m_text[13];
};
