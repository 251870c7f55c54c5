// SPDX-License-Identifier: MIT
#include "KoraRecord.h"

#include "history/ConnectionTable.h"

#include <utf8.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <limits>
#include <string>

namespace refhost
{

namespace
{

constexpr std::size_t profileUnits = std::size(_KORA_ST_CONNRECORD{}.szProfileName) - 1;

/// So many bytes of UTF-8 give more units than fit, whatever they encode.
constexpr std::size_t profileBytes = 4 * (profileUnits + 1);

template <std::size_t Size>
void writeNumber(std::int64_t number, char (&field)[Size])
{
    // Twenty characters hold every 64-bit number, the smallest field has 31.
    static_assert(Size > 20);
    std::to_chars(field, field + Size - 1, number);
}

/// The callers read a time as a signed number of 32 bits and count on from it without
/// the sign, so the second half of the range is written as what is 2^32 less.
template <std::size_t Size>
void writeTime(std::int64_t time, char (&field)[Size])
{
    const bool isInSecondHalf =
        time > std::numeric_limits<std::int32_t>::max() && time <= history::largestTime;
    writeNumber(isInSecondHalf ? time - history::largestTime - 1 : time, field);
}

template <std::size_t Size>
void writeText(std::string_view text, char (&field)[Size])
{
    std::copy_n(text.begin(), std::min(text.size(), Size - 1), field);
}

bool isHighSurrogate(char16_t unit)
{
    return unit >= 0xd800 && unit <= 0xdbff;
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

void writeProfile(std::string_view profile, char16_t (&field)[profileUnits + 1])
{
    std::string_view text = profile.substr(0, profileBytes);
    // The rule among access point names, and several times faster.
    if (isAscii(text)) {
        std::copy_n(text.begin(), std::min(text.size(), profileUnits), field);
        return;
    }
    std::string repaired;
    if (!utf8::is_valid(text.begin(), text.end())) {
        utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(repaired));
        text = repaired;
    }
    // No byte gives more than one unit, the one that replaces it included.
    std::array<char16_t, profileBytes> units;
    const auto end = utf8::unchecked::utf8to16(text.begin(), text.end(), units.begin());
    auto length = std::min(static_cast<std::size_t>(end - units.begin()), profileUnits);
    if (length == profileUnits && isHighSurrogate(units[length - 1]))
        --length;
    std::copy_n(units.begin(), length, field);
}

} // namespace

void fillRecord(const history::ConnectionRow &row, _KORA_ST_CONNRECORD &record)
{
    using history::Connection;
    writeProfile(row.get<&Connection::profile>(), record.szProfileName);
    writeTime(row.get<&Connection::startUtc>(), record.szStartTime);
    writeTime(row.get<&Connection::endUtc>(), record.szEndTime);
    writeNumber(row.get<&Connection::connectedSeconds>(), record.szDuration);
    writeNumber(row.get<&Connection::uploadedBytes>(), record.szUploadBytes);
    writeNumber(row.get<&Connection::downloadedBytes>(), record.szDownloadBytes);
    writeText(row.get<&Connection::ending>(), record.szExtraText1);
    writeText(row.get<&Connection::interfaceName>(), record.szExtraText2);
}

} // namespace refhost
