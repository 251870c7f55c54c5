// SPDX-License-Identifier: MIT
#pragma once

#include "formats/JsonText.h"
#include "history/Store.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

namespace connrecord
{

/// A name from the store as the tables show it: on one line, and cut if it is long.
QString nameText(const std::string &name);

/// The connections as a table for people, times in local time.
QByteArray toTable(const std::vector<history::Connection> &connections);

/// The connections for programs: exact integers, times as ISO 8601 in UTC.
formats::Json toJson(const std::vector<history::Connection> &connections);

} // namespace connrecord
