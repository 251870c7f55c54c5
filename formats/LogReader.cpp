// SPDX-License-Identifier: MIT
#include "LogReader.h"

#include "LineReader.h"

namespace formats
{

namespace
{

/// What an exported entry of the journal begins with.
constexpr std::string_view exportBeginning = "__CURSOR=";
/// Of the number of bytes in front of an exported field that is no text.
constexpr std::size_t lengthBytes = 8;

std::uint64_t littleEndian(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte)
        number = number << 8 | static_cast<unsigned char>(*byte);
    return number;
}

} // namespace

LogReader::LogReader(LineReader &lines)
    : m_lines(lines)
{
}

bool LogReader::next()
{
    if (!m_lines.next())
        return false;
    m_lineNumber = m_lines.lineNumber();
    if (usage::startsWith(m_lines.line(), exportBeginning))
        takeExported();
    else
        takeText(m_lines.line());
    return true;
}

void LogReader::takeText(std::string_view text)
{
    if (usage::startsWith(text, "{")) {
        m_journalEntry = journalEntryFromJson(text);
        if (!m_journalEntry.isEmpty())
            return show(m_journalEntry);
    }
    m_line = parseLogLine(text);
    m_text = text;
}

void LogReader::takeExported()
{
    m_journalEntry = {};
    while (m_lines.next() && !m_lines.line().empty())
        takeField(m_lines.line());
    show(m_journalEntry);
}

void LogReader::takeField(std::string_view field)
{
    const std::size_t equals = field.find('=');
    if (equals != std::string_view::npos)
        return m_journalEntry.set(field.substr(0, equals), field.substr(equals + 1));
    const std::string name(field);
    const std::uint64_t length = littleEndian(m_lines.takeBytes(lengthBytes));
    m_journalEntry.set(name, m_lines.takeBytes(length));
    m_lines.next(); // the line feed behind the bytes
}

void LogReader::show(const JournalEntry &entry)
{
    m_line = entry.line();
    m_text = m_line.message;
}

} // namespace formats
