// SPDX-License-Identifier: MIT
#include "StoreTables.h"

#include "ConnectionCheck.h"
#include "StoreUpkeep.h"
#include "TotalsSum.h"

#include <utility>

namespace history
{

namespace
{

StoreFailure noSuchOpenConnection(const std::string &path, std::int64_t key)
{
    return {StoreError::Kind::NoSuchRecord,
            historyAt(path) + " has no open connection with the key " + std::to_string(key) +
                "; nothing was changed, another program has finished it or the file has been "
                "replaced."};
}

template <typename AnyConnection>
void addProblem(Examination &result, const AnyConnection &connection)
{
    try {
        check(connection);
    } catch (const StoreFailure &failure) {
        result.problems.push_back("Key " + std::to_string(connection.key) + ": " + failure.what());
    }
}

} // namespace

StoreFailure noSuchRecord(const std::string &path, std::int64_t key)
{
    return {StoreError::Kind::NoSuchRecord, historyAt(path) + " has no record with the key " +
                                                std::to_string(key) +
                                                "; nothing was removed, list the records again."};
}

StoreTables::StoreTables(SQLite::Database &database, std::string path)
    : connections(database)
    , openConnections(database)
    , seenLinks(database)
    , origins(database)
    , m_database(database)
    , m_path(std::move(path))
{
}

std::size_t StoreTables::remove(const std::vector<std::int64_t> &keys)
{
    for (const std::int64_t key : keys) {
        if (!connections.remove(key))
            throw noSuchRecord(m_path, key);
    }
    return keys.size();
}

std::vector<Totals> StoreTables::totals(const TimeRange &range, Store::Profiles profiles,
                                        const Store::PeriodOf &periodOf)
{
    TotalsSum sum(m_path, profiles == Store::Profiles::Apart);
    connections.visit(range, [&](const ConnectionRow &row) {
        if (const auto period = periodOf(row.get<&Connection::startUtc>()))
            sum.add(row, *period);
    });
    return sum.groups();
}

OpenConnection StoreTables::begin(const OpenConnection &connection)
{
    if (auto earlier = openConnections.find(connection.bootId, connection.interfaceIndex))
        return *std::move(earlier);
    OpenConnection stored = connection;
    stored.key = openConnections.insert(connection);
    keepSeen(connection);
    return stored;
}

std::int64_t StoreTables::checkpoint(const OpenConnection &connection, const std::string &origin)
{
    if (!openConnections.update(connection))
        throw noSuchOpenConnection(m_path, connection.key);
    keepSeen(connection);
    keepOrigin(origin);
    return connection.key;
}

std::int64_t StoreTables::finish(const OpenConnection &open, const Connection &connection,
                                 const std::string &origin)
{
    keepOrigin(origin);
    const bool wasOpen = openConnections.remove(open);
    if (!wasOpen && connections.holds(connection.interfaceName, connection.startUtc))
        return 0;
    keepSeen(open);
    return connections.insert(connection);
}

std::size_t StoreTables::see(const std::vector<SeenLink> &links,
                             const std::vector<Connection> &unwatched)
{
    for (const Connection &each : unwatched)
        connections.insert(each);
    for (const SeenLink &link : links) {
        seenLinks.replace(link);
        seenLinks.removeOthersOfTheName(link);
    }
    return unwatched.size();
}

void StoreTables::keepSeen(const OpenConnection &connection)
{
    if (const auto link = seenLinkOf(connection))
        seenLinks.replace(*link);
}

void StoreTables::keepOrigin(const std::string &origin)
{
    if (!origin.empty())
        origins.insert(origin);
}

bool StoreTables::copyTo(const std::string &path)
{
    copyDatabase(m_database, m_path, path);
    return true;
}

Examination StoreTables::examine()
{
    Examination result{damagesOf(m_database), 0, 0};
    const std::vector<OpenConnection> open = openConnections.all();
    result.openConnections = open.size();
    for (const OpenConnection &connection : open)
        addProblem(result, connection);
    connections.visit(TimeRange(), [&](const ConnectionRow &row) {
        ++result.connections;
        addProblem(result, row.toConnection());
    });
    return result;
}

} // namespace history
