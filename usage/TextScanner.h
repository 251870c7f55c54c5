// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace usage
{

/// Takes a text apart from left to right. What does not match is not taken.
class TextScanner
{
public:
    explicit TextScanner(std::string_view text)
        : m_rest(text)
    {
    }

    std::string_view rest() const { return m_rest; }
    bool isAtEnd() const { return m_rest.empty(); }

    bool take(char character);
    bool take(std::string_view text);
    bool takeAnyOf(std::string_view characters);
    /// Whichever it is, if there is one.
    void takeCharacter() { takeFirst(1); }
    /// At least one space or tabulator.
    bool takeSpaces();
    /// Everything up to the next `end`, which is taken as well and not returned;
    /// nothing if there is none.
    std::optional<std::string_view> takeUntil(std::string_view end);
    /// Everything up to the next space, tabulator or the end of the text; may be empty.
    std::string_view takeWord();
    /// Decimal digits, as many as there are.
    std::string_view takeDigits();
    /// A decimal number of that many digits.
    std::optional<int> takeNumber(std::size_t leastDigits, std::size_t mostDigits);

private:
    std::string_view takeFirst(std::size_t count);

    std::string_view m_rest;
};

bool startsWith(std::string_view text, std::string_view start);
bool endsWith(std::string_view text, std::string_view end);

/// A whole number in decimal digits, "-" in front allowed. `isInRange` is false
/// for one that 64 bits do not hold; `value` is then 0.
struct WholeNumber {
    std::int64_t value = 0;
    bool isInRange = false;
};
/// Nothing unless the whole text is such a number.
std::optional<WholeNumber> wholeNumber(std::string_view text);

} // namespace usage
