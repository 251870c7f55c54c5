// SPDX-License-Identifier: MIT
#include "CsvFormat.h"

#include "CsvReader.h"
#include "FieldValue.h"
#include "LineReader.h"
#include "Utf8Text.h"
#include "history/ConnectionFields.h"
#include "usage/TextScanner.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <type_traits>

namespace formats
{

namespace
{

using history::connectionFields;
using history::forEachField;
using history::KindOf;
using history::Sentence;
using history::translatable;

constexpr std::size_t columnCount = std::tuple_size_v<decltype(connectionFields)>;

constexpr std::size_t fewestColumns = std::tuple_size_v<decltype(history::identifyingFields)>;

/// Of what only finished connections have.
constexpr std::size_t placeOfEnd()
{
    std::size_t place = 0;
    std::size_t found = 0;
    forEachField(connectionFields, [&](const auto &field) {
        using Field = std::decay_t<decltype(field)>;
        if (!history::IsShared<Field>::value)
            found = place;
        ++place;
    });
    return found;
}

constexpr std::size_t endColumn = placeOfEnd();

using ColumnNames = std::array<const char *, columnCount>;

const ColumnNames &columnNames()
{
    static const auto names = std::apply(
        [](const auto &...field) { return ColumnNames{field.name...}; }, connectionFields);
    return names;
}

bool hasText(const CsvField &field, const char *text)
{
    return field.text == text;
}

/// One row of a file on its way to a connection.
class RowReader
{
public:
    /// For a file of so many columns.
    RowReader(const CsvRow &row, std::size_t columns)
        : m_row(row)
        , m_columns(columns)
    {
    }

    void readInto(history::Connection &connection) const;
    /// Whether it is of one that still lasted, which has no end.
    bool isStillRunning() const
    {
        return m_row.size() == m_columns && m_row[endColumn].text.empty();
    }
    std::int64_t line() const { return m_row.front().line; }
    std::string text() const;
    void checkHeader() const;
    void checkColumnCount() const;

private:
    [[noreturn]] void fail(std::size_t column, const Sentence &reason) const;
    void checkBytes(std::size_t column) const;

    const CsvRow &m_row;
    const std::size_t m_columns;
};

void RowReader::readInto(history::Connection &connection) const
{
    checkColumnCount();
    for (std::size_t column = 0; column < m_columns; ++column)
        checkBytes(column);
    std::size_t column = 0;
    try {
        forEachField(connectionFields, [&](const auto &field) {
            if (column == m_columns)
                return;
            connection.*field.member = parsedValue(KindOf<decltype(field)>(), m_row[column].text,
                                                   field.maximum, connection);
            ++column;
        });
    } catch (const FieldError &error) {
        fail(column, error.reason);
    }
}

std::string RowReader::text() const
{
    std::string text;
    for (std::size_t column = 0; column < m_row.size(); ++column)
        text += (column == 0 ? "" : ",") + m_row[column].text;
    return text;
}

void RowReader::checkHeader() const
{
    const auto *const names = columnNames().data();
    const auto *const right =
        std::mismatch(m_row.begin(), m_row.end(), names, names + m_columns, hasText).second;
    if (right != names + m_columns)
        fail(static_cast<std::size_t>(right - names),
             {translatable("formats", "the first line has to be the header %1"), {csvHeader()}});
    checkColumnCount();
}

void RowReader::fail(std::size_t column, const Sentence &reason) const
{
    throw CsvError{m_row[std::min(column, m_row.size() - 1)].line, column, reason};
}

void RowReader::checkColumnCount() const
{
    if (m_row.size() != m_columns)
        fail(std::min<std::size_t>(m_row.size(), m_columns),
             {translatable("formats", "the line has %1 columns and should have %2"),
              {std::to_string(m_row.size()), std::to_string(m_columns)}});
}

void RowReader::checkBytes(std::size_t column) const
{
    const std::string &text = m_row[column].text;
    if (isPlainAscii(text))
        return;
    if (text.find('\0') != std::string::npos)
        fail(column, translatable("formats", "the text holds a NUL byte"));
    if (!isUtf8(text))
        fail(column, translatable("formats", "the text is not UTF-8"));
}

bool isBlank(const CsvRow &row)
{
    return row.size() == 1 && row.front().text.empty();
}

/// Blank lines are nothing at the end of a file, and wrong before it.
void checkIsBlankEnd(CsvReader &reader, const CsvRow &firstBlank, std::size_t columns)
{
    CsvRow row;
    while (reader.next(row)) {
        if (!isBlank(row))
            RowReader(firstBlank, columns).checkColumnCount();
    }
}

} // namespace

std::string csvColumnName(std::size_t column)
{
    return column < columnCount ? columnNames()[column] : std::to_string(column + 1);
}

std::string csvHeader()
{
    std::string line;
    for (const char *const name : columnNames())
        line += (line.empty() ? "" : ",") + std::string(name);
    return line;
}

void readCsv(LineReader &lines, const ConnectionTaker &take, const RunningVisitor &running)
{
    CsvReader reader(lines, columnCount);
    CsvRow row;
    if (!reader.next(row))
        throw CsvError{1, 0,
                       Sentence{translatable("formats", "the file is empty, the first line has to "
                                                        "be the header %1"),
                                {csvHeader()}}};
    // Files of earlier versions lack the last ones.
    const std::size_t columns = std::clamp(row.size(), fewestColumns, columnCount);
    RowReader(row, columns).checkHeader();
    history::Connection connection;
    while (reader.next(row)) {
        if (isBlank(row))
            return checkIsBlankEnd(reader, row, columns);
        const RowReader reading(row, columns);
        if (running && reading.isStillRunning()) {
            running(reading.line(), reading.text());
            continue;
        }
        reading.readInto(connection);
        take(connection);
    }
}

bool isBeginningOfCsv(std::string_view beginning)
{
    std::string_view text = withoutByteOrderMark(beginning);
    if (usage::startsWith(text, "\""))
        text.remove_prefix(1);
    return usage::startsWith(text, columnNames().front());
}

} // namespace formats
