// SPDX-License-Identifier: MIT
#pragma once

#include "formats/ConnectionWriter.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace connrecord
{

/// A name from the store as the tables show it: on one line, and cut if it is long.
QString nameText(const std::string &name);
/// As much of a SIM's number as is shown.
QString simText(const std::string &number);

/// A table for people, times in local time. Its columns are as wide as the first 1000
/// connections need; behind them, they may become wider, never narrower.
std::unique_ptr<formats::ConnectionWriter> tableWriter();
/// The whole table.
QByteArray toTable(const std::vector<history::Connection> &connections);

} // namespace connrecord
