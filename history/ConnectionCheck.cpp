// SPDX-License-Identifier: MIT
#include "ConnectionCheck.h"

#include "ConnectionFields.h"
#include "StoreFailure.h"

#include <string>

namespace history
{

namespace
{

using Kind = StoreError::Kind;

void checkValue(const std::string &whose, const char *field, std::int64_t value,
                std::int64_t maximum)
{
    if (value < 0 || value > maximum)
        throw StoreFailure(Kind::BadRecord, "The " + std::string(field) + " of " + whose + " is " +
                                                std::to_string(value) +
                                                ", but must lie between 0 and " +
                                                std::to_string(maximum) + ".");
}

/// As much of a text as a sentence can take; it stays UTF-8 if it is.
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

void checkValue(const std::string &whose, const char *field, const std::string &text,
                std::int64_t maximum)
{
    if (text.find('\0') != std::string::npos)
        throw StoreFailure(Kind::BadRecord, "The " + std::string(field) + " of " + whose +
                                                " contains a NUL character, but must be text "
                                                "without one.");
    if (text.size() > static_cast<std::size_t>(maximum))
        throw StoreFailure(Kind::BadRecord,
                           "The " + std::string(field) + " of " + whose + ", \"" +
                               beginningOf(text) + "\", has " + std::to_string(text.size()) +
                               " bytes, but may have 0 to " + std::to_string(maximum) + ".");
}

void checkHours(const std::string &whose, const std::vector<HourlyBytes> &hours)
{
    for (const HourlyBytes &each : hours) {
        checkValue(whose, "hour", each.hourUtc, largestTime);
        checkValue(whose, "number of bytes sent in an hour", each.uploadedBytes, largestByteCount);
        checkValue(whose, "number of bytes received in an hour", each.downloadedBytes,
                   largestByteCount);
        if (startOfHour(each.hourUtc) != each.hourUtc)
            throw StoreFailure(Kind::BadRecord, "An hour of " + whose + " begins at " +
                                                    std::to_string(each.hourUtc) +
                                                    ", which is not the beginning of an hour.");
    }
}

void checkRoaming(const std::string &whose, const std::string &roaming)
{
    if (!isRoamingText(roaming))
        throw StoreFailure(Kind::BadRecord, "The roaming of " + whose + ", \"" +
                                                beginningOf(roaming) + "\", is neither \"" +
                                                atHome + "\" nor \"" + abroad + "\" nor empty.");
}

template <typename AnyConnection, typename Fields>
void checkFields(const std::string &whose, const AnyConnection &connection, const Fields &fields)
{
    forEachField(fields, [&](const auto &field) {
        if (field.phrase)
            checkValue(whose, field.phrase, connection.*field.member, field.maximum);
    });
    checkRoaming(whose, connection.roaming);
    checkHours(whose, connection.hours);
}

} // namespace

void check(const Connection &connection)
{
    checkFields("the connection", connection, connectionFields);
}

void check(const OpenConnection &connection)
{
    checkFields("the open connection", connection, openConnectionFields);
}

void check(const std::vector<Connection> &connections)
{
    for (std::size_t i = 0; i < connections.size(); ++i)
        checkFields("connection " + std::to_string(i + 1) + " of " +
                        std::to_string(connections.size()),
                    connections[i], connectionFields);
}

} // namespace history
