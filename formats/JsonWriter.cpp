// SPDX-License-Identifier: MIT
#include "ConnectionWriter.h"
#include "JsonFormat.h"
#include "history/ConnectionFields.h"
#include "usage/CalendarTime.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

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

bool isPlain(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte >= 0x20 && byte < 0x7f && byte != '"' && byte != '\\';
}

void appendValue(kind::Text /*kind*/, const std::string &value, std::string &text)
{
    if (std::all_of(value.begin(), value.end(), isPlain))
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

void beginLine(std::string &text, int indent)
{
    text += '\n';
    text.append(static_cast<std::size_t>(indent), ' ');
}

void beginMember(std::string &text, int indent, std::string_view name)
{
    beginLine(text, indent);
    ((text += '"') += name) += "\": ";
}

template <typename Kind>
void appendMember(std::string &text, std::string_view name, std::int64_t number)
{
    beginMember(text, indentOfHourMember, name);
    appendValue(Kind(), number, text);
    text += ',';
}

/// The members by their names, as all our JSON has them.
void appendHour(const HourlyBytes &hour, std::string &text)
{
    beginLine(text, indentOfHour);
    text += '{';
    appendMember<kind::Bytes>(text, "downloaded_bytes", hour.downloadedBytes);
    appendMember<kind::Time>(text, "hour", hour.hourUtc);
    beginMember(text, indentOfHourMember, "roaming");
    text += hour.isRoaming ? "true," : "false,";
    appendMember<kind::Bytes>(text, "uploaded_bytes", hour.uploadedBytes);
    text.pop_back();
    beginLine(text, indentOfHour);
    text += "},";
}

void appendHours(const history::Connection &connection, std::string &text)
{
    text += '[';
    for (const HourlyBytes &hour : connection.hours)
        appendHour(hour, text);
    text.pop_back();
    beginLine(text, indentOfMember);
    text += ']';
}

void appendKey(const history::Connection &connection, std::string &text)
{
    text += std::to_string(connection.key);
}

template <std::size_t Place>
void appendField(const history::Connection &connection, std::string &text)
{
    constexpr auto field = std::get<Place>(connectionFields);
    appendValue(typename decltype(field)::Kind(), connection.*field.member, text);
}

struct Member {
    const char *name;
    void (*appendValue)(const history::Connection &connection, std::string &text);
};

template <std::size_t... Places>
std::vector<Member> membersByName(std::index_sequence<Places...> /*places*/)
{
    std::vector<Member> members = {
        {jsonKeyName, appendKey},
        {jsonHoursName, appendHours},
        {std::get<Places>(connectionFields).name, appendField<Places>}...};
    std::sort(members.begin(), members.end(), [](const Member &left, const Member &right) {
        return std::strcmp(left.name, right.name) < 0;
    });
    return members;
}

class JsonWriter : public ConnectionWriter
{
public:
    void begin(std::string &text) override { text += '['; }
    void add(const history::Connection &connection, std::string &text) override;
    void end(std::string &text) override { text += m_isEmpty ? "]\n" : "\n]\n"; }

private:
    const std::vector<Member> m_members =
        membersByName(std::make_index_sequence<std::tuple_size_v<decltype(connectionFields)>>());
    bool m_isEmpty = true;
};

void JsonWriter::add(const history::Connection &connection, std::string &text)
{
    text += m_isEmpty ? "\n    {" : ",\n    {";
    m_isEmpty = false;
    for (const Member &member : m_members) {
        if (member.appendValue == appendHours && connection.hours.empty())
            continue;
        beginMember(text, indentOfMember, member.name);
        member.appendValue(connection, text);
        text += ',';
    }
    text.pop_back();
    text += "\n    }";
}

} // namespace

std::unique_ptr<ConnectionWriter> jsonWriter()
{
    return std::make_unique<JsonWriter>();
}

} // namespace formats
