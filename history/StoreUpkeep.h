// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace SQLite
{
class Database;
}

namespace history
{

/// Writes what the database of the history in `path` holds, in the transaction that this
/// is called in, into the empty file `copyPath`. Throws StoreFailure, and
/// SQLite::Exception where the database itself cannot be read.
void copyDatabase(SQLite::Database &database, const std::string &path, const std::string &copyPath);

/// What SQLite finds to be wrong with the database; nothing if it is sound. Throws
/// SQLite::Exception.
std::vector<std::string> damagesOf(SQLite::Database &database);

} // namespace history
