// SPDX-License-Identifier: MIT
#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>

#include <QString>

#include <optional>

/// Keeps all others from writing into a store.
class StoreLock
{
public:
    explicit StoreLock(const QString &path)
        : m_store(path.toStdString(), SQLite::OPEN_READWRITE)
        , m_transaction(std::in_place, m_store, SQLite::TransactionBehavior::IMMEDIATE)
    {
    }
    void release() { m_transaction.reset(); }

private:
    SQLite::Database m_store;
    std::optional<SQLite::Transaction> m_transaction;
};
