// SPDX-License-Identifier: MIT
#pragma once

#include "history/Sentence.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace formats
{

class LineReader;

struct CsvField {
    std::string text;
    std::int64_t line = 0; ///< the line of the file that it begins in, from 1
};

/// The fields of a row; those of former rows keep their room.
class CsvRow
{
public:
    std::size_t size() const { return m_size; }
    const CsvField &operator[](std::size_t column) const { return m_fields[column]; }
    const CsvField &front() const { return m_fields.front(); }
    const CsvField *begin() const { return m_fields.data(); }
    const CsvField *end() const { return begin() + m_size; }

    void clear() { m_size = 0; }
    /// The field behind the last one, with an empty text.
    CsvField &add(std::int64_t line)
    {
        if (m_size == m_fields.size())
            m_fields.emplace_back();
        CsvField &field = m_fields[m_size++];
        field.text.clear();
        field.line = line;
        return field;
    }

private:
    std::vector<CsvField> m_fields;
    std::size_t m_size = 0;
};

/// What is wrong, and where. Thrown by everything that reads CSV.
struct CsvError {
    std::int64_t line;        ///< line of the file, from 1
    std::size_t column;       ///< counted from 0
    history::Sentence reason; ///< a clause, to be read after "column NAME: "
};

/// The most bytes that a text may have, and those of a line of the file, which holds
/// such a text even if all of it are quotation marks.
constexpr std::size_t largestCsvText = 1048576;
constexpr std::size_t longestCsvLine = 4 * largestCsvText;

/// Reads the rows of a CSV file as RFC 4180 writes them; lines may end with a
/// line feed alone, and a byte order mark in front is passed over. What is beyond a
/// limit is an error before it takes much memory.
class CsvReader
{
public:
    /// `lines` has to give one byte more than longestCsvLine of each line.
    CsvReader(LineReader &lines, std::size_t mostColumns);

    /// Puts the next row into `row`; false after the last one.
    bool next(CsvRow &row);

private:
    bool startLine();
    bool nextLine();
    void checkColumns(const CsvRow &row) const;
    void checkText(std::size_t column, const CsvField &field) const;
    bool isAtRowEnd() const;
    void takeField(CsvRow &row);
    void takePlainText(std::size_t column, CsvField &field);
    void takeQuotedText(std::size_t column, CsvField &field);
    void takeLineBreak(std::size_t column, CsvField &field);

    LineReader &m_lines;
    const std::size_t m_mostColumns;
    std::string_view m_rest;
};

} // namespace formats
