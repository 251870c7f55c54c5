// SPDX-License-Identifier: MIT
#pragma once

#include "LogLine.h"

#include <string>
#include <string_view>

namespace formats
{

/// An entry of systemd's journal with the fields that a log line has.
class JournalEntry
{
public:
    /// Fields of other names are passed over. Times and process ids come as digits.
    void set(std::string_view field, std::string_view value);
    bool isEmpty() const { return m_message.empty(); }

    /// The views of the result point into this entry.
    LogLine line() const;

private:
    std::string m_received; ///< microseconds since 1970-01-01 00:00 UTC
    std::string m_sent;     ///< the same, as the sender says
    std::string m_host;
    std::string m_identifier;
    std::string m_command;
    std::string m_pid;
    std::string m_message;
};

/// An entry as journalctl -o json writes it, in one line; an empty one if it is none.
JournalEntry journalEntryFromJson(std::string_view text);

} // namespace formats
