// SPDX-License-Identifier: MIT
#pragma once

#include "JournalEntry.h"
#include "LogLine.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace formats
{

class LineReader;

/// Reads a system log entry by entry: lines of text, or systemd's journal as
/// journalctl -o json or -o export writes it, told by what they begin with.
class LogReader
{
public:
    explicit LogReader(LineReader &lines);

    /// Whether there is one more entry. What the others return is valid until then.
    bool next();
    const LogLine &entry() const { return m_line; }
    /// The line that the entry begins with, counted from 1.
    std::int64_t lineNumber() const { return m_lineNumber; }
    /// What to show of it.
    std::string_view text() const { return m_text; }

private:
    void takeText(std::string_view text);
    void takeExported();
    void takeField(std::string_view field);
    void show(const JournalEntry &entry);

    LineReader &m_lines;
    JournalEntry m_journalEntry;
    LogLine m_line;
    std::int64_t m_lineNumber = 0;
    std::string_view m_text;
};

} // namespace formats
