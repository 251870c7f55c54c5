// SPDX-License-Identifier: MIT
#pragma once

#include "history/Connection.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace formats
{

class LineReader;

/// The name of a column of our CSV files, "10" and so on behind the last one.
std::string csvColumnName(std::size_t column);

/// The first line of our CSV files.
std::string csvHeader();

/// What csvWriter() writes, read back. Throws CsvError.
std::vector<history::Connection> connectionsFromCsv(LineReader &lines);

/// Whether a file that begins so looks like one of these.
bool isBeginningOfCsv(std::string_view beginning);

} // namespace formats
