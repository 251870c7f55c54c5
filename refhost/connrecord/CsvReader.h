// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace refhost
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

/// Reads the rows of a CSV file as RFC 4180 writes them; lines may end with a
/// line feed alone, and a byte order mark in front is passed over.
class CsvReader
{
public:
    explicit CsvReader(LineReader &lines);

    /// The next row, nothing after the last one.
    std::optional<CsvRow> next();

private:
    bool startLine();
    bool isAtRowEnd() const;
    void takeField(CsvRow &row);
    std::string plainText(const CsvRow &row);
    std::string quotedText(const CsvRow &row);
    void takeLineBreak(const CsvRow &row, std::int64_t firstLine, std::string &text);

    LineReader &m_lines;
    std::string_view m_rest;
};

} // namespace refhost
