// SPDX-License-Identifier: MIT
#include "JournalEntry.h"

#include <nlohmann/json.hpp>

#include <array>

namespace formats
{

namespace
{

constexpr std::int64_t microsecondsPerSecond = 1000000;

std::optional<std::int64_t> numberIn(std::string_view text)
{
    const auto number = usage::wholeNumber(text);
    return number && number->isInRange ? std::optional(number->value) : std::nullopt;
}

/// The value of a field; what is no text is written as an array of bytes, and a field
/// that is there several times as an array of its values, of which the first counts.
std::string textOf(const nlohmann::json &value)
{
    if (value.is_string())
        return value.get<std::string>();
    if (!value.is_array() || value.empty())
        return {};
    if (!value.front().is_number_unsigned())
        return value.front().is_string() ? value.front().get<std::string>() : std::string();
    std::string bytes;
    for (const nlohmann::json &byte : value)
        bytes += byte.is_number_unsigned() ? static_cast<char>(byte.get<unsigned>()) : '?';
    return bytes;
}

} // namespace

void JournalEntry::set(std::string_view field, std::string_view value)
{
    struct Target {
        std::string_view field;
        std::string JournalEntry::*text;
    };
    static constexpr std::array<Target, 7> targets = {
        {{"__REALTIME_TIMESTAMP", &JournalEntry::m_received},
         {"_SOURCE_REALTIME_TIMESTAMP", &JournalEntry::m_sent},
         {"_HOSTNAME", &JournalEntry::m_host},
         {"SYSLOG_IDENTIFIER", &JournalEntry::m_identifier},
         {"_COMM", &JournalEntry::m_command},
         {"_PID", &JournalEntry::m_pid},
         {"MESSAGE", &JournalEntry::m_message}}};
    for (const Target &target : targets) {
        if (field == target.field)
            this->*target.text = value;
    }
    if (field == "SYSLOG_PID" && m_pid.empty())
        m_pid = value;
}

LogLine JournalEntry::line() const
{
    LogLine line;
    const auto microseconds = numberIn(m_sent.empty() ? m_received : m_sent);
    if (microseconds && *microseconds >= 0 &&
        *microseconds / microsecondsPerSecond <= usage::latestWrittenTime)
        line.time = usage::utcCalendarTime(*microseconds / microsecondsPerSecond);
    line.host = m_host;
    line.process = m_identifier.empty() ? m_command : m_identifier;
    line.pid = numberIn(m_pid).value_or(-1);
    line.message = m_message;
    return line;
}

JournalEntry journalEntryFromJson(std::string_view text)
{
    JournalEntry entry;
    const auto fields = nlohmann::json::parse(text.begin(), text.end(), nullptr, false);
    if (fields.is_object()) {
        for (const auto &field : fields.items())
            entry.set(field.key(), textOf(field.value()));
    }
    return entry;
}

} // namespace formats
