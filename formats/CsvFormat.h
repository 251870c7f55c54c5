// SPDX-License-Identifier: MIT
#pragma once

#include "history/Connection.h"

#include <cstdint>
#include <functional>
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

/// Told of a connection that still lasted, of which there is but the text of that line.
using RunningVisitor = std::function<void(std::int64_t line, const std::string &text)>;
/// What csvWriter() writes, read back. Throws CsvError, also for a connection that still
/// lasted if nobody is to be told.
std::vector<history::Connection> connectionsFromCsv(LineReader &lines,
                                                    const RunningVisitor &running = {});

/// Whether a file that begins so looks like one of these.
bool isBeginningOfCsv(std::string_view beginning);

} // namespace formats
