// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <set>
#include <string>

namespace SQLite
{
class Database;
}

namespace history
{

struct FileChange;

/// Tells the log of a store's file from one that was left beside a former file in
/// its place: SQLite plays the changes in any log into whatever file it finds. So
/// the log itself says, in a row of the table log_base, which file it is for and
/// when that was changed last. Operations throw SQLite::Exception and StoreFailure.
class LogBase
{
public:
    /// For the open database in the file at `path`, a path without links.
    LogBase(SQLite::Database &database, std::string path);

    /// Writes the row where it is not true any more; part of each write transaction.
    void record();

    /// Whether the log, if there is one, may be played into the file. Nothing may
    /// have been written through the database yet.
    bool isOfThisFile();

private:
    bool matches();
    bool isRecorded(const FileChange &file, const FileChange &log);
    std::set<std::uint32_t> tellingPages();

    SQLite::Database &m_database;
    std::string m_path;
};

} // namespace history
