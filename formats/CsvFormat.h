// SPDX-License-Identifier: MIT
#pragma once

#include "history/Connection.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace formats
{

class LineReader;

/// The name of a column of our CSV files, "10" and so on behind the last one.
std::string csvColumnName(std::size_t column);

/// The first line of our CSV files.
std::string csvHeader();

/// Takes a connection, which changes when the next one is read.
using ConnectionTaker = std::function<void(const history::Connection &connection)>;

/// Told of a connection that still lasted, of which there is but the text of that line.
using RunningVisitor = std::function<void(std::int64_t line, const std::string &text)>;

/// Reads back what csvWriter() writes. Throws CsvError, also for a connection that still
/// lasted if nobody is to be told, and what is thrown by `take`, which may have got some
/// connections by then.
void readCsv(LineReader &lines, const ConnectionTaker &take, const RunningVisitor &running = {});

/// Whether a file that begins so looks like one of these.
bool isBeginningOfCsv(std::string_view beginning);

} // namespace formats
