// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

/// The text of one log line, put together from a format of printf's whose conversions are
/// %s, %d and %ld alone: for these, printf itself takes several times as long.
class LogText
{
public:
    template <typename... Arguments>
    explicit LogText(const char *format, Arguments... arguments)
    {
        ((format = addUpTo(format), add(arguments)), ...);
        add(format);
        *m_end = '\0';
    }

    const char *text() const { return m_text.data(); }

private:
    /// Adds what stands before the next conversion, and returns what stands after it.
    const char *addUpTo(const char *format)
    {
        const char *const conversion = std::strchr(format, '%');
        add(format, conversion);
        return conversion + (conversion[1] == 'l' ? 3 : 2);
    }
    void add(const char *text) { add(text, text + std::strlen(text)); }
    void add(long number)
    {
        const auto added = std::to_chars(m_end, limit(), number);
        if (added.ec == std::errc())
            m_end = added.ptr;
    }
    /// What does not fit is left out.
    void add(const char *first, const char *last)
    {
        m_end = std::copy_n(first, std::min(last - first, limit() - m_end), m_end);
    }
    char *limit() { return m_text.data() + m_text.size() - 1; }

    std::array<char, 1024> m_text; // no line is a third as long
    char *m_end = m_text.data();
};
