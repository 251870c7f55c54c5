// SPDX-License-Identifier: MIT
#include "StoreUpkeep.h"

#include "StoreFailure.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include <sqlite3.h>

namespace history
{

namespace
{

StoreFailure copyFailed(const std::string &path, const std::string &reason)
{
    return {StoreError::Kind::WriteFailed, "A copy of the connection history \"" + path +
                                               "\" cannot be written (" + reason +
                                               "); check the disk and the folder of the copy."};
}

bool isOfOriginal(int code)
{
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
}

void copyPages(SQLite::Database &copy, SQLite::Database &original)
{
    constexpr int allPages = -1;
    SQLite::Backup backup(copy, original);
    if (const int code = backup.executeStep(allPages); code != SQLITE_DONE)
        throw SQLite::Exception(sqlite3_errstr(code), code);
}

} // namespace

void copyDatabase(SQLite::Database &database, const std::string &path, const std::string &copyPath)
{
    try {
        SQLite::Database copy(copyPath, SQLite::OPEN_READWRITE);
        copyPages(copy, database);
        // A log beside it would be left behind by whoever takes the file away.
        copy.exec("PRAGMA journal_mode = DELETE");
    } catch (const SQLite::Exception &exception) {
        if (isOfOriginal(exception.getErrorCode()))
            throw;
        throw copyFailed(path, exception.what());
    }
}

std::vector<std::string> damagesOf(SQLite::Database &database)
{
    std::vector<std::string> damages;
    SQLite::Statement check(database, "PRAGMA integrity_check");
    while (check.executeStep()) {
        const std::string line = check.getColumn(0).getString();
        if (line != "ok")
            damages.push_back(line);
    }
    return damages;
}

} // namespace history
