// SPDX-License-Identifier: MIT
#include "TextScanner.h"

#include <algorithm>
#include <charconv>

namespace usage
{

namespace
{

constexpr std::string_view digits = "0123456789";
constexpr std::string_view blanks = " \t";

} // namespace

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool TextScanner::take(char character)
{
    return take(std::string_view(&character, 1));
}

bool TextScanner::take(std::string_view text)
{
    if (!startsWith(m_rest, text))
        return false;
    m_rest.remove_prefix(text.size());
    return true;
}

bool TextScanner::takeAnyOf(std::string_view characters)
{
    if (m_rest.empty() || characters.find(m_rest.front()) == std::string_view::npos)
        return false;
    m_rest.remove_prefix(1);
    return true;
}

bool TextScanner::takeSpaces()
{
    return !takeFirst(m_rest.find_first_not_of(blanks)).empty();
}

std::optional<std::string_view> TextScanner::takeUntil(std::string_view end)
{
    const std::size_t place = m_rest.find(end);
    if (place == std::string_view::npos)
        return std::nullopt;
    const std::string_view taken = takeFirst(place);
    m_rest.remove_prefix(end.size());
    return taken;
}

std::string_view TextScanner::takeWord()
{
    return takeFirst(m_rest.find_first_of(blanks));
}

std::string_view TextScanner::takeDigits()
{
    return takeFirst(m_rest.find_first_not_of(digits));
}

std::optional<int> TextScanner::takeNumber(std::size_t leastDigits, std::size_t mostDigits)
{
    const std::size_t available = std::min(m_rest.find_first_not_of(digits), m_rest.size());
    const std::size_t count = std::min(available, mostDigits);
    if (count < leastDigits)
        return std::nullopt;
    int number = 0;
    for (const char digit : takeFirst(count))
        number = number * 10 + (digit - '0');
    return number;
}

std::string_view TextScanner::takeFirst(std::size_t count)
{
    const std::string_view taken = m_rest.substr(0, count);
    m_rest.remove_prefix(taken.size());
    return taken;
}

std::optional<WholeNumber> wholeNumber(std::string_view text)
{
    WholeNumber number;
    const char *const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number.value);
    if (stop != end || error == std::errc::invalid_argument)
        return std::nullopt;
    number.isInRange = error == std::errc();
    return number;
}

} // namespace usage
