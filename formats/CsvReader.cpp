// SPDX-License-Identifier: MIT
#include "CsvReader.h"

#include "LineReader.h"
#include "Utf8Text.h"
#include "usage/TextScanner.h"

namespace formats
{

using history::Sentence;
using history::translatable;

CsvReader::CsvReader(LineReader &lines, std::size_t mostColumns)
    : m_lines(lines)
    , m_mostColumns(mostColumns)
{
}

bool CsvReader::next(CsvRow &row)
{
    if (!startLine())
        return false;
    row.clear();
    takeField(row);
    while (!isAtRowEnd()) {
        m_rest.remove_prefix(1); // the comma
        checkColumns(row);
        takeField(row);
    }
    return true;
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
                       Sentence{translatable("formats", "the line has more than %1 bytes"),
                                {std::to_string(longestCsvLine)}}};
    return true;
}

void CsvReader::checkColumns(const CsvRow &row) const
{
    if (row.size() == m_mostColumns)
        throw CsvError{m_lines.lineNumber(), row.size(),
                       Sentence{translatable("formats", "the line has more than %1 columns"),
                                {std::to_string(m_mostColumns)}}};
}

void CsvReader::checkText(std::size_t column, const CsvField &field) const
{
    if (field.text.size() > largestCsvText)
        throw CsvError{field.line, column,
                       Sentence{translatable("formats", "the text has more than %1 bytes"),
                                {std::to_string(largestCsvText)}}};
}

bool CsvReader::isAtRowEnd() const
{
    return m_rest.empty() || m_rest == "\r";
}

void CsvReader::takeField(CsvRow &row)
{
    const std::size_t column = row.size();
    CsvField &field = row.add(m_lines.lineNumber());
    const bool isQuoted = !m_rest.empty() && m_rest.front() == '"';
    if (isQuoted)
        takeQuotedText(column, field);
    else
        takePlainText(column, field);
    checkText(column, field);
}

void CsvReader::takePlainText(std::size_t column, CsvField &field)
{
    std::string_view text = m_rest.substr(0, m_rest.find(','));
    m_rest.remove_prefix(text.size());
    if (m_rest.empty() && !text.empty() && text.back() == '\r')
        text.remove_suffix(1);
    if (text.find('"') != std::string_view::npos)
        throw CsvError{m_lines.lineNumber(), column,
                       translatable("formats",
                                    "a quotation mark stands in a text that is not quoted "
                                    "as a whole")};
    if (text.find('\r') != std::string_view::npos)
        throw CsvError{m_lines.lineNumber(), column,
                       translatable("formats", "a carriage return stands in a text that is not "
                                               "quoted")};
    field.text = text;
}

void CsvReader::takeQuotedText(std::size_t column, CsvField &field)
{
    m_rest.remove_prefix(1);
    for (;;) {
        const std::size_t quote = m_rest.find('"');
        field.text += m_rest.substr(0, quote);
        if (quote == std::string_view::npos) {
            takeLineBreak(column, field);
            continue;
        }
        m_rest.remove_prefix(quote + 1);
        if (!usage::startsWith(m_rest, "\""))
            break;
        field.text += '"';
        m_rest.remove_prefix(1);
    }
    if (!isAtRowEnd() && m_rest.front() != ',')
        throw CsvError{m_lines.lineNumber(), column,
                       translatable("formats",
                                    "something stands between the closing quotation mark "
                                    "and the next comma")};
}

void CsvReader::takeLineBreak(std::size_t column, CsvField &field)
{
    checkText(column, field);
    if (!nextLine())
        throw CsvError{field.line, column,
                       translatable("formats", "the quotation mark is never closed")};
    field.text += '\n';
}

} // namespace formats
