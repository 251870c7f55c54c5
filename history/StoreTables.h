// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionTable.h"
#include "HourTable.h"
#include "OpenConnectionTable.h"
#include "PlanTable.h"
#include "RecorderTables.h"
#include "Store.h"
#include "StoreFailure.h"
#include "StoreReports.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace history
{

/// The tables of an open store, and what Store does with several of them at once. All
/// of it is part of the transaction that it is called in. Operations throw
/// SQLite::Exception and StoreFailure.
class StoreTables
{
public:
    /// For the history in `path`, which errors name.
    StoreTables(SQLite::Database &database, std::string path);

    ConnectionTable connections;
    /// Apart from the finished ones.
    OpenConnectionTable openConnections;
    SeenLinkTable seenLinks;
    OriginTable origins;
    PlanTable plans;

    /// See Store::revision().
    std::uint64_t revision();
    std::int64_t insert(const Connection &connection);
    std::size_t insertMissing(ConnectionSource &given, const Store::Progress &progress);
    Store::Merged merge(const std::vector<Connection> &given, const Store::Completion &complete,
                        const Store::Progress &progress);
    /// In the place of the one with its key, whose hours it gets, under a new key: who has
    /// seen the former one sees that it has changed.
    void replace(const Connection &connection);
    bool remove(std::int64_t key);
    std::size_t remove(const std::vector<std::int64_t> &keys);
    std::vector<ConnectionHour> hours(const TimeRange &range);
    /// See Store::visit().
    std::size_t visit(const ConnectionSelection &selection, const ConnectionVisitor &visitor,
                      const OpenConnectionVisitor &openVisitor);
    std::size_t visitHours(const TimeRange &range, const Store::HourVisitor &visitor);
    std::vector<ConnectionSum> sums();
    GivenKeys givenKeys();
    Overview overview();
    std::vector<OpenConnection> listOpen();
    OpenConnection begin(const OpenConnection &connection);
    std::int64_t checkpoint(const OpenConnection &connection, const std::string &origin);
    std::int64_t finish(const OpenConnection &open, const Connection &connection,
                        const std::string &origin);
    /// See Store::copyTo() and Store::examine().
    bool copyTo(const std::string &path);
    Examination examine();
    std::size_t see(const std::vector<SeenLink> &links, const std::vector<Connection> &unwatched);

private:
    std::string hoursSelection() const;
    void keepSeen(const OpenConnection &connection);
    void keepOrigin(const std::string &origin);

    void writeHours(HourTable &table, std::int64_t key, const std::vector<HourlyBytes> &hours);

    SQLite::Database &m_database;
    HourTable m_hours;
    HourTable m_openHours;
    std::string m_path;
    std::uint64_t m_revision = 0;
    std::optional<ConnectionTable::Writes> m_revisionWrites; ///< before which it was given
};

/// The error for the key of no finished connection of this store.
StoreFailure noSuchRecord(const std::string &path, std::int64_t key);

} // namespace history
