// SPDX-License-Identifier: MIT
#include "JsonFormat.h"

#include "FieldValue.h"
#include "JsonText.h"
#include "Utf8Text.h"
#include "history/ConnectionFields.h"
#include "usage/TextScanner.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <type_traits>

namespace formats
{

namespace
{

using history::connectionFields;
using history::forEachField;
using history::HourlyBytes;
using history::KindOf;
using history::Sentence;
using history::translatable;
namespace kind = history::kind;

[[noreturn]] void fail(const std::string &member, const Sentence &reason)
{
    throw FieldError{{translatable("formats", "member \"%1\": %2"), {printable(member), reason}},
                     true};
}

const Json &memberOf(const Json &json, const char *name)
{
    if (!json.is_object())
        throw noObject();
    const auto found = json.find(name);
    if (found == json.end())
        fail(name, translatable("formats", "it is missing"));
    return *found;
}

/// A text, or a number as the text that other formats have for it.
std::string textOf(const Json &value, bool isNumber)
{
    if (isNumber ? !value.is_number() : !value.is_string())
        throw FieldError{isNumber ? translatable("formats", "it is no number")
                                  : translatable("formats", "it is no text"),
                         true};
    std::string text = isNumber ? value.dump() : value.get<std::string>();
    if (text.find('\0') != std::string::npos)
        throw FieldError{translatable("formats", "the text holds a NUL character"), true};
    return text;
}

/// What `read` makes of the member's text; its error names the member.
template <typename Read>
auto memberValue(const Json &json, const char *name, bool isNumber, Read read)
{
    const Json &value = memberOf(json, name);
    try {
        return read(textOf(value, isNumber));
    } catch (const FieldError &error) {
        fail(name, error.reason);
    }
}

std::int64_t bytesOf(const Json &json, const char *name)
{
    return memberValue(json, name, true, [](const std::string &text) {
        return fieldNumber(text, history::largestByteCount);
    });
}

HourlyBytes hourFrom(const Json &json)
{
    HourlyBytes hour;
    hour.hourUtc = memberValue(json, "hour", false, fieldTime);
    if (history::startOfHour(hour.hourUtc) != hour.hourUtc)
        fail("hour", translatable("formats", "it is no whole hour of UTC"));
    const Json &roaming = memberOf(json, "roaming");
    if (!roaming.is_boolean())
        fail("roaming", translatable("formats", "it is neither true nor false"));
    hour.isRoaming = roaming.get<bool>();
    hour.uploadedBytes = bytesOf(json, "uploaded_bytes");
    hour.downloadedBytes = bytesOf(json, "downloaded_bytes");
    return hour;
}

bool comesBefore(const HourlyBytes &left, const HourlyBytes &right)
{
    return std::tie(left.hourUtc, left.isRoaming) < std::tie(right.hourUtc, right.isRoaming);
}

/// They have to be sorted.
void checkHours(const history::Connection &connection)
{
    std::int64_t uploaded = 0;
    std::int64_t downloaded = 0;
    for (const HourlyBytes &hour : connection.hours) {
        if (&hour != &connection.hours.front() && !comesBefore(*(&hour - 1), hour))
            fail(jsonHoursName, translatable("formats", "an hour is there twice"));
        if (__builtin_add_overflow(uploaded, hour.uploadedBytes, &uploaded) ||
            __builtin_add_overflow(downloaded, hour.downloadedBytes, &downloaded))
            fail(jsonHoursName,
                 translatable("formats", "the hours add up to more than 64 bits hold"));
    }
    if (!connection.hours.empty() &&
        (uploaded != connection.uploadedBytes || downloaded != connection.downloadedBytes))
        fail(jsonHoursName,
             translatable("formats", "the hours do not add up to the bytes of the connection"));
}

std::vector<HourlyBytes> hoursFrom(const Json &json)
{
    if (!json.is_array())
        fail(jsonHoursName, translatable("formats", "it is no array"));
    std::vector<HourlyBytes> hours;
    for (const Json &hour : json)
        hours.push_back(hourFrom(hour));
    std::sort(hours.begin(), hours.end(), comesBefore);
    return hours;
}

void checkMembers(const Json &json)
{
    if (!json.is_object())
        throw noObject();
    for (const auto &member : json.items()) {
        const std::string &name = member.key();
        bool isKnown = name == jsonKeyName || name == jsonHoursName || name == jsonMachineName ||
                       name == jsonRunningName;
        forEachField(connectionFields, [&](const auto &field) { isKnown |= name == field.name; });
        if (!isKnown)
            fail(name, translatable("formats", "a connection has no such member"));
    }
}

} // namespace

bool isBeginningOfJson(std::string_view beginning)
{
    const std::string_view text = withoutByteOrderMark(beginning);
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && text[first] == '[';
}

bool isBeginningOfJsonLines(std::string_view beginning)
{
    const std::string_view text = withoutByteOrderMark(beginning);
    const auto holds = [text](const char *member) {
        return text.find(member) != std::string_view::npos;
    };
    // A log may be of JSON too.
    return usage::startsWith(text, "{") &&
           (holds("\"connected_seconds\":") || holds("\"last_key\":"));
}

bool isStillRunning(const Json &json)
{
    const auto running = json.is_object() ? json.find(jsonRunningName) : json.end();
    return running != json.end() && *running == true;
}

history::Connection connectionFromJson(const Json &json)
{
    checkMembers(json);
    if (json.contains(jsonRunningName) && json[jsonRunningName] != false)
        fail(jsonRunningName, translatable("formats", "it is neither true nor false"));
    history::Connection connection;
    forEachField(connectionFields, [&](const auto &field) {
        using Kind = KindOf<decltype(field)>;
        // Files of earlier versions know nothing of the details.
        if (std::is_base_of_v<kind::Detail, Kind> && !json.contains(field.name))
            return;
        connection.*field.member = memberValue(
            json, field.name, std::is_base_of_v<kind::Amount, Kind>, [&](const std::string &text) {
                return parsedValue(Kind(), text, field.maximum, connection);
            });
    });
    if (json.contains(jsonHoursName))
        connection.hours = hoursFrom(json[jsonHoursName]);
    checkHours(connection);
    return connection;
}

FieldError noObject()
{
    return {translatable("formats", "it is no object"), true};
}

FieldError longerThan(std::int64_t bytes)
{
    return {{translatable("formats", "it is longer than %1 bytes"), {std::to_string(bytes)}}, true};
}

} // namespace formats
