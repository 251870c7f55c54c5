// SPDX-License-Identifier: MIT
#include "JsonObject.h"

#include "JsonFormat.h"
#include "JsonText.h"
#include "Utf8Text.h"
#include "history/ConnectionFields.h"
#include "usage/CalendarTime.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace formats
{

namespace
{

using history::connectionFields;
using history::HourlyBytes;
namespace kind = history::kind;

constexpr int indentOfMember = 8;
constexpr int indentOfHour = 12;
constexpr int indentOfHourMember = 16;

/// Whether JSON has it as it stands.
bool isPlain(const std::string &text)
{
    return isPlainAscii(text) && text.find_first_of("\"\\") == std::string::npos;
}

void appendValue(kind::Text /*kind*/, const std::string &value, std::string &text)
{
    if (isPlain(value))
        ((text += '"') += value) += '"';
    else
        text += Json(value).dump(-1, ' ', false, Json::error_handler_t::replace);
}

void appendValue(kind::Time /*kind*/, std::int64_t utc, std::string &text)
{
    usage::appendUtc(text += '"', utc);
    text += '"';
}

void appendValue(kind::Amount /*kind*/, std::int64_t amount, std::string &text)
{
    text += std::to_string(amount);
}

void appendValue(bool value, std::string &text)
{
    text += value ? "true" : "false";
}

} // namespace

/// What stands around members, which are on a line each or all on one.
class JsonSpacing
{
public:
    explicit JsonSpacing(JsonObject::Layout layout)
        : m_isIndented(layout == JsonObject::Layout::Indented)
    {
    }

    void beginLine(std::string &text, int indent) const
    {
        if (!m_isIndented)
            return;
        text += '\n';
        text.append(static_cast<std::size_t>(indent), ' ');
    }
    void beginMember(std::string &text, int indent, std::string_view name) const
    {
        beginLine(text, indent);
        ((text += '"') += name) += m_isIndented ? "\": " : "\":";
    }

private:
    const bool m_isIndented;
};

namespace
{

template <typename Kind>
void appendMember(const JsonSpacing &spacing, std::string &text, std::string_view name,
                  std::int64_t number)
{
    spacing.beginMember(text, indentOfHourMember, name);
    appendValue(Kind(), number, text);
    text += ',';
}

/// The members by their names, as all our JSON has them.
void appendHour(const HourlyBytes &hour, const JsonSpacing &spacing, std::string &text)
{
    spacing.beginLine(text, indentOfHour);
    text += '{';
    appendMember<kind::Bytes>(spacing, text, "downloaded_bytes", hour.downloadedBytes);
    appendMember<kind::Time>(spacing, text, "hour", hour.hourUtc);
    spacing.beginMember(text, indentOfHourMember, "roaming");
    appendValue(hour.isRoaming, text);
    text += ',';
    appendMember<kind::Bytes>(spacing, text, "uploaded_bytes", hour.uploadedBytes);
    text.pop_back();
    spacing.beginLine(text, indentOfHour);
    text += "},";
}

void appendHours(const Exported &exported, const JsonSpacing &spacing, std::string &text)
{
    text += '[';
    for (const HourlyBytes &hour : exported.connection.hours)
        appendHour(hour, spacing, text);
    text.pop_back();
    spacing.beginLine(text, indentOfMember);
    text += ']';
}

void appendKey(const Exported &exported, const JsonSpacing & /*spacing*/, std::string &text)
{
    text += std::to_string(exported.connection.key);
}

void appendMachine(const Exported &exported, const JsonSpacing & /*spacing*/, std::string &text)
{
    appendValue(kind::Text(), *exported.machine, text);
}

void appendRunning(const Exported &exported, const JsonSpacing & /*spacing*/, std::string &text)
{
    appendValue(exported.running != nullptr, text);
}

void appendUpdated(const Exported &exported, const JsonSpacing & /*spacing*/, std::string &text)
{
    appendValue(kind::Time(), exported.running->updatedUtc, text);
}

/// What only finished connections have, is null.
template <std::size_t Place>
void appendField(const Exported &exported, const JsonSpacing & /*spacing*/, std::string &text)
{
    constexpr auto field = std::get<Place>(connectionFields);
    using Field = std::decay_t<decltype(field)>;
    if constexpr (history::IsShared<Field>::value)
        appendValue(typename Field::Kind(), exported.connection.*field.member, text);
    else if (exported.finished)
        appendValue(typename Field::Kind(), exported.finished->*field.member, text);
    else
        text += "null";
}

} // namespace

struct JsonMember {
    const char *name;
    void (*append)(const Exported &exported, const JsonSpacing &spacing, std::string &text);
    bool (*isThere)(const Exported &exported);
};

namespace
{

bool isAlwaysThere(const Exported & /*exported*/)
{
    return true;
}

template <std::size_t... Places>
std::vector<JsonMember> membersByName(std::index_sequence<Places...> /*places*/)
{
    std::vector<JsonMember> members = {
        {jsonKeyName, appendKey, isAlwaysThere},
        {jsonHoursName, appendHours,
         [](const Exported &exported) { return !exported.connection.hours.empty(); }},
        {jsonMachineName, appendMachine,
         [](const Exported &exported) { return exported.machine != nullptr; }},
        {jsonRunningName, appendRunning,
         [](const Exported &exported) { return exported.machine || exported.running; }},
        {jsonUpdatedName, appendUpdated,
         [](const Exported &exported) { return exported.running != nullptr; }},
        {std::get<Places>(connectionFields).name, appendField<Places>, isAlwaysThere}...};
    std::sort(members.begin(), members.end(), [](const JsonMember &left, const JsonMember &right) {
        return std::strcmp(left.name, right.name) < 0;
    });
    return members;
}

} // namespace

class JsonObject::Members
{
public:
    explicit Members(Layout layout)
        : m_spacing(layout)
    {
    }

    void add(const Exported &exported, std::string &text) const
    {
        for (const JsonMember &member : m_members) {
            if (!member.isThere(exported))
                continue;
            m_spacing.beginMember(text, indentOfMember, member.name);
            member.append(exported, m_spacing, text);
            text += ',';
        }
        text.pop_back();
    }

private:
    const JsonSpacing m_spacing;
    const std::vector<JsonMember> m_members =
        membersByName(std::make_index_sequence<std::tuple_size_v<decltype(connectionFields)>>());
};

JsonObject::JsonObject(Layout layout)
    : m_members(std::make_unique<Members>(layout))
{
}

JsonObject::~JsonObject() = default;

void JsonObject::add(const Exported &exported, std::string &text) const
{
    m_members->add(exported, text);
}

} // namespace formats
