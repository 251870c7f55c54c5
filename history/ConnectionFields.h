// SPDX-License-Identifier: MIT
#pragma once

#include "Connection.h"

#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>

namespace history
{

/// The kinds of values, by which they are checked, written and read everywhere.
namespace kind
{
struct Text {
    using Value = std::string;
};
struct Detail : Text { ///< empty if unknown; it tells no two connections apart
};
struct Sim : Detail { ///< shown to people by its end
};
struct Roaming : Detail {
};
struct Number { ///< any
    using Value = std::int64_t;
};
struct Time { ///< in seconds since 1970-01-01 00:00 UTC
    using Value = std::int64_t;
};
struct StartTime : Time {
};
struct EndTime : Time {
};
struct Amount {
    using Value = std::int64_t;
};
struct Duration : Amount { ///< in seconds
};
struct Bytes : Amount {
};
} // namespace kind

/// One value of a connection: where it is in the structure, in the store's tables, in
/// sentences, in CSV and JSON, and in tables for people.
template <typename FieldKind, typename FieldOwner>
struct Field {
    using Kind = FieldKind;
    using Owner = FieldOwner;
    using Value = typename Kind::Value;

    Value Owner::*member;
    const char *column;
    const char *phrase;   ///< null if it is not checked
    std::int64_t maximum; ///< of a number, whose minimum is 0; of a text, its bytes
    const char *name;     ///< null if it is not shown, as is the heading
    const char *heading;
};

template <typename Kind, typename Owner>
constexpr Field<Kind, Owner> field(typename Kind::Value Owner::*member, const char *column,
                                   const char *phrase = nullptr, std::int64_t maximum = 0,
                                   const char *name = nullptr, const char *heading = nullptr)
{
    return {member, column, phrase, maximum, name, heading};
}

template <typename AnyField>
using KindOf = typename std::decay_t<AnyField>::Kind;

/// Every value of a finished connection but its key, in the order of CSV files.
constexpr auto connectionFields = std::make_tuple(
    field<kind::Text>(&Connection::profile, "profile", "profile", longestProfile, "profile",
                      "PROFILE"),
    field<kind::StartTime>(&Connection::startUtc, "start_utc", "start time", largestTime, "start",
                           "START"),
    field<kind::EndTime>(&Connection::endUtc, "end_utc", "end time", largestTime, "end", "END"),
    field<kind::Duration>(&Connection::connectedSeconds, "connected_seconds", "connected time",
                          largestDuration, "connected_seconds", "CONNECTED"),
    field<kind::Bytes>(&Connection::uploadedBytes, "uploaded_bytes", "number of bytes sent",
                       largestByteCount, "uploaded_bytes", "UPLOADED"),
    field<kind::Bytes>(&Connection::downloadedBytes, "downloaded_bytes", "number of bytes received",
                       largestByteCount, "downloaded_bytes", "DOWNLOADED"),
    field<kind::Text>(&Connection::ending, "ending", "ending", longestShortText, "ending",
                      "ENDING"),
    field<kind::Text>(&Connection::interfaceName, "interface_name", "interface", longestShortText,
                      "interface", "INTERFACE"),
    field<kind::Detail>(&Connection::operatorName, "operator_name", "operator", longestOperator,
                        "operator", "OPERATOR"),
    field<kind::Detail>(&Connection::operatorCode, "operator_code", "operator code",
                        longestShortText, "operator_code"),
    field<kind::Sim>(&Connection::sim, "sim", "SIM", longestShortText, "sim", "SIM"),
    field<kind::Roaming>(&Connection::roaming, "roaming", "roaming", longestShortText, "roaming",
                         "ROAMING"),
    field<kind::Detail>(&Connection::technology, "technology", "technology", longestShortText,
                        "technology"));

/// What makes an open connection the one that it is, for as long as it lasts.
constexpr auto openIdentityFields = std::make_tuple(
    field<kind::Text>(&OpenConnection::bootId, "boot_id", "boot id", longestProfile),
    field<kind::Number>(&OpenConnection::interfaceIndex, "interface_index"),
    field<kind::Number>(&OpenConnection::startBootMilliseconds, "start_boot_ms"));

/// What else only open connections have.
constexpr auto openStateFields = std::make_tuple(
    field<kind::Text>(&OpenConnection::linkMark, "link_mark", "mark of the link", longestProfile),
    field<kind::Number>(&OpenConnection::baseUploaded, "base_uploaded"),
    field<kind::Number>(&OpenConnection::baseDownloaded, "base_downloaded"),
    field<kind::Time>(&OpenConnection::updatedUtc, "updated_utc", "time of the last update",
                      largestTime));

template <typename AnyField>
using IsShared = std::is_same<typename AnyField::Owner, ConnectionBase>;
template <typename AnyField>
using IsStart = std::is_same<typename AnyField::Kind, kind::StartTime>;
template <typename AnyField>
using IsDetail = std::is_base_of<kind::Detail, typename AnyField::Kind>;
template <typename AnyField>
using Identifies = std::negation<IsDetail<AnyField>>;
template <typename AnyField>
using IsSharedAndChanges = std::conjunction<IsShared<AnyField>, std::negation<IsStart<AnyField>>>;

/// What time alone changes.
template <typename AnyField>
using IsOfClock = std::disjunction<std::is_base_of<kind::Time, typename AnyField::Kind>,
                                   std::is_base_of<kind::Duration, typename AnyField::Kind>>;
template <typename AnyField>
using IsNotOfClock = std::negation<IsOfClock<AnyField>>;

/// Those of the fields whose types meet the condition.
template <template <typename> class Condition, typename... Fields>
constexpr auto chosenFrom(const std::tuple<Fields...> &fields)
{
    return std::apply(
        [](const auto &...each) {
            return std::tuple_cat([&] {
                if constexpr (Condition<std::decay_t<decltype(each)>>::value)
                    return std::make_tuple(each);
                else
                    return std::make_tuple();
            }()...);
        },
        fields);
}

/// What two records have to agree in to be of the same connection, for whoever imports one
/// of them: files of earlier versions know nothing of the details.
constexpr auto identifyingFields = chosenFrom<Identifies>(connectionFields);

/// What is known of whose a connection is.
constexpr auto detailFields = chosenFrom<IsDetail>(connectionFields);

/// Every value of an open connection but its key, and those that change while it lasts.
constexpr auto openConnectionFields =
    std::tuple_cat(openIdentityFields, chosenFrom<IsShared>(connectionFields), openStateFields);
constexpr auto openProgressFields =
    std::tuple_cat(chosenFrom<IsSharedAndChanges>(connectionFields), openStateFields);
/// Those of these that do not change by the passing of time alone.
constexpr auto openContentFields = chosenFrom<IsNotOfClock>(openProgressFields);

/// Calls `visit` with each of the fields, in order.
template <typename Fields, typename Visit>
constexpr void forEachField(const Fields &fields, Visit visit)
{
    std::apply([&](const auto &...each) { (visit(each), ...); }, fields);
}

/// Whether a connection's roaming may say this.
inline bool isRoamingText(const std::string &text)
{
    return text.empty() || text == atHome || text == abroad;
}

/// References to the values that the connection has in these fields, to be compared.
template <typename AnyConnection, typename Fields>
auto valuesOf(const AnyConnection &connection, const Fields &fields)
{
    return std::apply([&](const auto &...each) { return std::tie(connection.*each.member...); },
                      fields);
}

/// Whether nothing but the key and the details tells the two apart.
inline bool isSame(const Connection &left, const Connection &right)
{
    return valuesOf(left, identifyingFields) == valuesOf(right, identifyingFields);
}

/// Whether nothing but the key and the hours tells the two apart.
inline bool hasSameContents(const Connection &left, const Connection &right)
{
    return valuesOf(left, connectionFields) == valuesOf(right, connectionFields);
}

inline bool comesBeforeByContents(const Connection &left, const Connection &right)
{
    return valuesOf(left, connectionFields) < valuesOf(right, connectionFields);
}

} // namespace history
