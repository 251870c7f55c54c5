// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <charconv>

/// Puts together a few ASCII characters without asking for memory before the
/// whole text is there. What does not fit is left out.
class ShortText
{
public:
    void add(char character)
    {
        if (m_size < capacity)
            m_text[m_size++] = character;
    }
    void add(qint64 number)
    {
        const auto written = std::to_chars(m_text + m_size, m_text + capacity, number);
        if (written.ec == std::errc())
            m_size = static_cast<int>(written.ptr - m_text);
    }
    QString toString() const { return QString::fromLatin1(m_text, m_size); }

private:
    static constexpr int capacity = 63; // room for three numbers of 64 bits
    char m_text[capacity];
    int m_size = 0;
};
