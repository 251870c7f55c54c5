// SPDX-License-Identifier: MIT
#include "ValueCheck.h"

#include "StoreFailure.h"

namespace history
{

namespace
{

using Kind = StoreError::Kind;

} // namespace

void checkNumber(const std::string &whose, const char *what, std::int64_t value,
                 std::int64_t minimum, std::int64_t maximum)
{
    if (value < minimum || value > maximum)
        throw StoreFailure(Kind::BadRecord, "The " + std::string(what) + " of " + whose + " is " +
                                                std::to_string(value) + ", but must lie between " +
                                                std::to_string(minimum) + " and " +
                                                std::to_string(maximum) + ".");
}

void checkText(const std::string &whose, const char *what, const std::string &text,
               std::size_t minimum, std::size_t maximum)
{
    if (text.find('\0') != std::string::npos)
        throw StoreFailure(Kind::BadRecord, "The " + std::string(what) + " of " + whose +
                                                " contains a NUL character, but must be text "
                                                "without one.");
    if (text.size() < minimum || text.size() > maximum)
        throw StoreFailure(Kind::BadRecord, "The " + std::string(what) + " of " + whose + ", \"" +
                                                beginningOf(text) + "\", has " +
                                                std::to_string(text.size()) +
                                                " bytes, but may have " + std::to_string(minimum) +
                                                " to " + std::to_string(maximum) + ".");
}

std::string beginningOf(const std::string &text)
{
    constexpr std::size_t enough = 64;
    if (text.size() <= enough)
        return text;
    std::size_t end = enough;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80U)
        --end;
    return text.substr(0, end) + "...";
}

} // namespace history
