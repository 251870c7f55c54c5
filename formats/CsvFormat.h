// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace formats
{

class LineReader;

/// Told how many bytes of the input have been read so far.
using ReadProgress = std::function<void(std::int64_t bytes)>;

/// The name of a column of our CSV files, "10" and so on behind the last one.
std::string csvColumnName(std::size_t column);

/// The connections, without their keys, with a header, each line ended by a
/// line feed.
QByteArray toCsv(const std::vector<history::Connection> &connections);

/// What toCsv() writes, read back. Throws CsvError.
std::vector<history::Connection> connectionsFromCsv(LineReader &lines,
                                                    const ReadProgress &progress);

} // namespace formats
