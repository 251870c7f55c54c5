// SPDX-License-Identifier: MIT
#pragma once

#include "StoreReports.h"

#include <string>
#include <vector>

namespace SQLite
{
class Database;
}

namespace history
{

/// See connectionSums() in StoreReports.h. SQLite adds up, so that a long history is not read
/// row by row. Throws SQLite::Exception, and StoreFailure for the store in `path` if a sum is
/// too large.
std::vector<ConnectionSum> connectionSums(SQLite::Database &database, const std::string &path);

} // namespace history
