// SPDX-License-Identifier: MIT
#include "ConnectionCheck.h"

#include "ConnectionFields.h"
#include "StoreFailure.h"
#include "ValueCheck.h"

#include <string>

namespace history
{

namespace
{

using Kind = StoreError::Kind;

void checkValue(const std::string &whose, const char *field, std::int64_t value,
                std::int64_t maximum)
{
    checkNumber(whose, field, value, 0, maximum);
}

void checkValue(const std::string &whose, const char *field, const std::string &text,
                std::int64_t maximum)
{
    checkText(whose, field, text, 0, static_cast<std::size_t>(maximum));
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

void CheckedConnections::rewind()
{
    m_source.rewind();
    m_given = 0;
}

bool CheckedConnections::next(Connection &connection)
{
    if (!m_source.next(connection))
        return false;
    ++m_given;
    try {
        checkFields("the connection", connection, connectionFields);
    } catch (const StoreFailure &) {
        checkFields("connection " + std::to_string(m_given) + " of " + std::to_string(size()),
                    connection, connectionFields);
    }
    return true;
}

} // namespace history
