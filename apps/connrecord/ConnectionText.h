// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

namespace connrecord
{

/// A name from the store as the tables show it: on one line, and cut if it is long.
QString nameText(const std::string &name);
/// As much of a SIM's number as is shown.
QString simText(const std::string &number);

/// The connections as a table for people, times in local time.
QByteArray toTable(const std::vector<history::Connection> &connections);

} // namespace connrecord
