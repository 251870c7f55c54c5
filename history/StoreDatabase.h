// SPDX-License-Identifier: MIT
#pragma once

#include "LogBase.h"
#include "StoreFailure.h"
#include "StoreFile.h"
#include "StoreTables.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace history
{

/// The store's file and, once it is needed, the open database in it. All
/// operations throw StoreFailure only.
class StoreDatabase
{
public:
    enum class IfMissing { Create, ReadAsEmpty };
    /// What a change that is done survives: the program's end, or the system's too.
    enum class Durability { System, Disk };
    /// How long operations wait for a store that another process has locked.
    enum class LockWait { Long, Short };

    StoreDatabase(const std::string &path, IfMissing ifMissing,
                  Durability durability = Durability::System, LockWait lockWait = LockWait::Long);
    ~StoreDatabase();
    StoreDatabase(const StoreDatabase &) = delete;
    StoreDatabase &operator=(const StoreDatabase &) = delete;

    const std::string &path() const { return m_path; }

    /// The file that is open; keys read from another one mean nothing in it.
    const std::optional<FileIdentity> &file() const { return m_file; }

    /// Opens the file, or another one that has taken its place; false when there
    /// is none and none is to be made.
    bool open();

    /// Calls `operation` with the tables in one read transaction; without a file
    /// the answer is an empty value.
    template <typename Operation>
    auto read(Operation operation) -> decltype(operation(std::declval<StoreTables &>()))
    {
        if (!open())
            return {};
        return translated(Access::Reading, [&] {
            SQLite::Transaction transaction(*m_database);
            checkVersion();
            auto value = operation(*m_tables);
            transaction.commit();
            return value;
        });
    }

    /// Calls `operation` with the tables in one write transaction, whose changes
    /// stay only if it does not throw.
    template <typename Operation>
    auto write(Operation operation)
    {
        openForWriting();
        return translated(Access::Writing, [&] {
            SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
            checkVersion();
            auto value = operation(*m_tables);
            m_logBase->record();
            transaction.commit();
            return value;
        });
    }

private:
    template <typename Operation>
    auto translated(Access access, Operation operation)
    {
        try {
            return operation();
        } catch (const SQLite::Exception &exception) {
            throw failure(access, exception);
        }
    }

    StoreFailure failure(Access access, const SQLite::Exception &exception);
    int systemErrorBehind(int code) const;
    void checkLogAfterReplacement() const;
    void checkLogBase();
    void checkVersion();
    void connect();
    void openFile();
    void prepareForReading();
    void prepareForWriting();
    void close();
    void openForWriting();
    void setCheckpointOnClose(bool enabled);

    std::string m_path;
    IfMissing m_ifMissing;
    Durability m_durability;
    LockWait m_lockWait;
    std::unique_ptr<SQLite::Database> m_database;
    std::unique_ptr<StoreTables> m_tables;
    std::unique_ptr<LogBase> m_logBase;
    std::optional<FileIdentity> m_file;
    bool m_isReadOnly = false;
    bool m_isChecked = false;
};

} // namespace history
