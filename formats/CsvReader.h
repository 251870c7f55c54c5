// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
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

using CsvRow = std::vector<CsvField>;

/// What is wrong, and where. Thrown by everything that reads CSV.
struct CsvError {
    std::int64_t line;  ///< line of the file, from 1
    std::size_t column; ///< counted from 0
    std::string reason; ///< to be read after "column NAME: "
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

    /// The next row, nothing after the last one.
    std::optional<CsvRow> next();

private:
    bool startLine();
    bool nextLine();
    void checkColumns(const CsvRow &row) const;
    void checkText(const CsvRow &row, std::int64_t firstLine, const std::string &text) const;
    bool isAtRowEnd() const;
    void takeField(CsvRow &row);
    std::string plainText(const CsvRow &row);
    std::string quotedText(const CsvRow &row);
    void takeLineBreak(const CsvRow &row, std::int64_t firstLine, std::string &text);

    LineReader &m_lines;
    const std::size_t m_mostColumns;
    std::string_view m_rest;
};

} // namespace formats
