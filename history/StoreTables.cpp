// SPDX-License-Identifier: MIT
#include "StoreTables.h"

#include "ConnectionCheck.h"
#include "ConnectionSums.h"
#include "ConnectionWalk.h"
#include "GivenKeys.h"
#include "StoreUpkeep.h"

#include <atomic>
#include <set>
#include <utility>

namespace history
{

namespace
{

/// Of no other tables of this process, so that another file never looks like the former one.
std::uint64_t newRevision()
{
    static std::atomic<std::uint64_t> latest{0};
    return ++latest;
}

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

void addHoursProblem(Examination &result, HourTable &hours, std::int64_t key)
{
    if (!hours.addUp(key))
        result.problems.push_back("Key " + std::to_string(key) +
                                  ": Its hours do not add up to its byte counts.");
}

StoreFailure wrongHours(const std::string &path)
{
    return {StoreError::Kind::BadRecord,
            historyAt(path) + " was not changed: the hours of the connection do not add up to its "
                              "byte counts."};
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
    , plans(database, path)
    , m_database(database)
    , m_hours(database, "connection")
    , m_openHours(database, "open_connection")
    , m_path(std::move(path))
{
}

std::uint64_t StoreTables::revision()
{
    const ConnectionTable::Writes writes = connections.writes();
    if (m_revisionWrites != writes) {
        m_revision = newRevision();
        m_revisionWrites = writes;
    }
    return m_revision;
}

std::int64_t StoreTables::insert(const Connection &connection)
{
    const std::int64_t key = connections.insert(connection);
    // A new one without them has none to add up.
    if (!connection.hours.empty())
        writeHours(m_hours, key, connection.hours);
    return key;
}

void StoreTables::replace(const Connection &connection)
{
    const std::int64_t key = connections.insert(connection);
    m_hours.takeOver(m_hours, connection.key, key);
    connections.remove(connection.key);
}

std::size_t StoreTables::insertMissing(ConnectionSource &given, const Store::Progress &progress)
{
    return connections.insertMissing(
        given, [this](const Connection &missing) { insert(missing); }, progress);
}

Store::Merged StoreTables::merge(const std::vector<Connection> &given,
                                 const Store::Completion &complete, const Store::Progress &progress)
{
    return connections.merge(
        given, [this](const Connection &missing) { insert(missing); },
        [this](const Connection &completed) { replace(completed); }, complete, progress);
}

bool StoreTables::remove(std::int64_t key)
{
    m_hours.remove(key);
    return connections.remove(key);
}

std::size_t StoreTables::remove(const std::vector<std::int64_t> &keys)
{
    for (const std::int64_t key : keys) {
        if (!remove(key))
            throw noSuchRecord(m_path, key);
    }
    return keys.size();
}

std::vector<ConnectionHour> StoreTables::hours(const TimeRange &range)
{
    std::vector<ConnectionHour> hours;
    RowQuery query(m_database, hoursSelection() + " ORDER BY utc, 2, 1, 8");
    visitHoursOf(query, range, [&hours](const ConnectionHour &hour) { hours.push_back(hour); });
    return hours;
}

std::size_t StoreTables::visit(const ConnectionSelection &selection,
                               const ConnectionVisitor &visitor,
                               const OpenConnectionVisitor &openVisitor)
{
    std::size_t count = ConnectionWalk(m_database, m_hours, selection).visit(visitor);
    if (!openVisitor)
        return count;
    const TimeRange &range = selection.range;
    for (const OpenConnection &open : listOpen()) {
        const bool isInRange = open.startUtc >= range.fromUtc && open.startUtc < range.untilUtc;
        if (isInRange && (!selection.isWanted || selection.isWanted(open))) {
            openVisitor(open);
            ++count;
        }
    }
    return count;
}

std::size_t StoreTables::visitHours(const TimeRange &range, const Store::HourVisitor &visitor)
{
    RowQuery query(m_database, hoursSelection());
    return visitHoursOf(query, range, visitor);
}

std::string StoreTables::hoursSelection() const
{
    return m_hours.selection(false) + " UNION ALL " + m_openHours.selection(true);
}

std::vector<ConnectionSum> StoreTables::sums()
{
    return connectionSums(m_database, m_path);
}

GivenKeys StoreTables::givenKeys()
{
    return givenKeysIn(m_database);
}

Overview StoreTables::overview()
{
    Overview overview;
    RowQuery first(m_database, "SELECT min(utc) FROM (SELECT min(start_utc) AS utc FROM connection"
                               " UNION ALL SELECT min(start_utc) FROM open_connection)");
    first.next();
    overview.firstUtc = first.row().integerIfAny(0);
    // One walk over the connections for both.
    std::set<std::string, std::less<>> profiles;
    std::set<std::string, std::less<>> sims;
    RowQuery names(m_database, "SELECT DISTINCT profile, sim FROM connection"
                               " UNION SELECT profile, sim FROM open_connection");
    while (names.next()) {
        profiles.emplace(names.row().text(0));
        sims.emplace(names.row().text(1));
    }
    overview.hasConnectionsWithoutSim = sims.erase(std::string()) > 0;
    overview.profiles.assign(profiles.begin(), profiles.end());
    overview.sims.assign(sims.begin(), sims.end());
    return overview;
}

std::vector<OpenConnection> StoreTables::listOpen()
{
    std::vector<OpenConnection> open = openConnections.all();
    for (OpenConnection &each : open)
        each.hours = m_openHours.of(each.key);
    return open;
}

OpenConnection StoreTables::begin(const OpenConnection &connection)
{
    if (auto earlier = openConnections.find(connection.bootId, connection.interfaceIndex)) {
        earlier->hours = m_openHours.of(earlier->key);
        return *std::move(earlier);
    }
    OpenConnection stored = connection;
    stored.key = openConnections.insert(connection);
    writeHours(m_openHours, stored.key, stored.hours);
    keepSeen(connection);
    return stored;
}

std::int64_t StoreTables::checkpoint(const OpenConnection &connection, const std::string &origin)
{
    if (!openConnections.update(connection))
        throw noSuchOpenConnection(m_path, connection.key);
    writeHours(m_openHours, connection.key, connection.hours);
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
    const std::int64_t key = connections.insert(connection);
    if (wasOpen)
        m_hours.takeOver(m_openHours, open.key, key);
    writeHours(m_hours, key, connection.hours);
    return key;
}

std::size_t StoreTables::see(const std::vector<SeenLink> &links,
                             const std::vector<Connection> &unwatched)
{
    for (const Connection &each : unwatched)
        insert(each);
    for (const SeenLink &link : links) {
        seenLinks.replace(link);
        seenLinks.removeOthersOfTheName(link);
    }
    return unwatched.size();
}

void StoreTables::writeHours(HourTable &table, std::int64_t key,
                             const std::vector<HourlyBytes> &hours)
{
    table.replace(key, hours);
    if (!table.addUp(key))
        throw wrongHours(m_path);
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
    for (const OpenConnection &connection : open) {
        addProblem(result, connection);
        addHoursProblem(result, m_openHours, connection.key);
    }
    connections.visit(TimeRange(), [&](const ConnectionRow &row) {
        ++result.connections;
        addProblem(result, row.toConnection());
        addHoursProblem(result, m_hours, row.key());
    });
    for (const std::string &problem : plans.problems())
        result.problems.push_back(problem);
    return result;
}

} // namespace history
