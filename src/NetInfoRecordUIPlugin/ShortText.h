// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <charconv>
#include <iterator>

/// Puts together a few ASCII characters without asking for memory before the
/// whole text is there. What does not fit is left out.
class ShortText
{
public:
    void add(char character)
    {
        if (m_size < capacity)
            m_text[m_size++] = QLatin1Char(character);
    }
    /// Of a number from 0 to 99.
    void addTwoDigits(int number)
    {
        add(static_cast<char>('0' + number / 10));
        add(static_cast<char>('0' + number % 10));
    }
    void add(qint64 number)
    {
        char digits[20]; // of 64 bits, with a sign
        const char *const end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
        if (end - digits > capacity - m_size)
            return;
        for (const char *digit = digits; digit != end; ++digit)
            add(*digit);
    }
    QString toString() const { return QString(m_text, m_size); }

private:
    static constexpr int capacity = 63; // room for three numbers of 64 bits
    QChar m_text[capacity];
    int m_size = 0;
};
