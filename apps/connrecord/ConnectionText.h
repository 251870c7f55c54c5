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
/// Enough of a SIM's number to tell one's cards apart; the whole is nobody else's business.
QString simText(const std::string &number);

/// The connections as a table for people, times in local time.
QByteArray toTable(const std::vector<history::Connection> &connections);

} // namespace connrecord
