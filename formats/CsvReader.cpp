// SPDX-License-Identifier: MIT
#include "CsvReader.h"

#include "LineReader.h"
#include "Utf8Text.h"
#include "usage/TextScanner.h"

namespace formats
{

CsvReader::CsvReader(LineReader &lines, std::size_t mostColumns)
    : m_lines(lines)
    , m_mostColumns(mostColumns)
{
}

std::optional<CsvRow> CsvReader::next()
{
    if (!startLine())
        return std::nullopt;
    CsvRow row;
    takeField(row);
    while (!isAtRowEnd()) {
        m_rest.remove_prefix(1); // the comma
        checkColumns(row);
        takeField(row);
    }
    return row;
}

bool CsvReader::startLine()
{
    if (!nextLine())
        return false;
    if (m_lines.lineNumber() == 1)
        m_rest = withoutByteOrderMark(m_rest);
    return true;
}

bool CsvReader::nextLine()
{
    if (!m_lines.next())
        return false;
    m_rest = m_lines.line();
    if (m_rest.size() > longestCsvLine)
        throw CsvError{m_lines.lineNumber(), 0,
                       "the line has more than " + std::to_string(longestCsvLine) + " bytes"};
    return true;
}

void CsvReader::checkColumns(const CsvRow &row) const
{
    if (row.size() == m_mostColumns)
        throw CsvError{m_lines.lineNumber(), row.size(),
                       "the line has more than " + std::to_string(m_mostColumns) + " columns"};
}

void CsvReader::checkText(const CsvRow &row, std::int64_t firstLine, const std::string &text) const
{
    if (text.size() > largestCsvText)
        throw CsvError{firstLine, row.size(),
                       "the text has more than " + std::to_string(largestCsvText) + " bytes"};
}

bool CsvReader::isAtRowEnd() const
{
    return m_rest.empty() || m_rest == "\r";
}

void CsvReader::takeField(CsvRow &row)
{
    const std::int64_t line = m_lines.lineNumber();
    const bool isQuoted = !m_rest.empty() && m_rest.front() == '"';
    std::string text = isQuoted ? quotedText(row) : plainText(row);
    checkText(row, line, text);
    row.push_back({std::move(text), line});
}

std::string CsvReader::plainText(const CsvRow &row)
{
    std::string_view text = m_rest.substr(0, m_rest.find(','));
    m_rest.remove_prefix(text.size());
    if (m_rest.empty() && !text.empty() && text.back() == '\r')
        text.remove_suffix(1);
    if (text.find('"') != std::string_view::npos)
        throw CsvError{m_lines.lineNumber(), row.size(),
                       "a quotation mark stands in a text that is not quoted as a whole"};
    if (text.find('\r') != std::string_view::npos)
        throw CsvError{m_lines.lineNumber(), row.size(),
                       "a carriage return stands in a text that is not quoted"};
    return std::string(text);
}

std::string CsvReader::quotedText(const CsvRow &row)
{
    const std::int64_t firstLine = m_lines.lineNumber();
    std::string text;
    m_rest.remove_prefix(1);
    for (;;) {
        const std::size_t quote = m_rest.find('"');
        text += m_rest.substr(0, quote);
        if (quote == std::string_view::npos) {
            takeLineBreak(row, firstLine, text);
            continue;
        }
        m_rest.remove_prefix(quote + 1);
        if (!usage::startsWith(m_rest, "\""))
            break;
        text += '"';
        m_rest.remove_prefix(1);
    }
    if (!isAtRowEnd() && m_rest.front() != ',')
        throw CsvError{m_lines.lineNumber(), row.size(),
                       "something stands between the closing quotation mark and the next comma"};
    return text;
}

void CsvReader::takeLineBreak(const CsvRow &row, std::int64_t firstLine, std::string &text)
{
    checkText(row, firstLine, text);
    if (!nextLine())
        throw CsvError{firstLine, row.size(), "the quotation mark is never closed"};
    text += '\n';
}

} // namespace formats
