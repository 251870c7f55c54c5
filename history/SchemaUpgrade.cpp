// SPDX-License-Identifier: MIT
#include "SchemaUpgrade.h"

#include "StoreFailure.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <algorithm>
#include <string>
#include <vector>

namespace history
{

namespace
{

using Kind = StoreError::Kind;

bool isWhiteSpace(char character)
{
    return character == ' ' || character == '\n';
}

struct SchemaState {
    std::int32_t applicationId;
    std::int32_t version;
    bool hasTables;
};

SchemaState stateOf(SQLite::Database &database)
{
    return {database.execAndGet("PRAGMA application_id").getInt(),
            database.execAndGet("PRAGMA user_version").getInt(),
            database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt() != 0};
}

bool isNew(const SchemaState &state)
{
    return state.applicationId == 0 && state.version == 0 && !state.hasTables;
}

void checkVersion(const std::string &path, std::int32_t version, std::size_t newest)
{
    if (version < 1)
        throw damaged(path, Sentence{translatable("history", "it says that its version is %1"),
                                     {std::to_string(version)}});
    if (static_cast<std::size_t>(version) > newest)
        throw StoreFailure(
            Kind::NewerStore,
            Sentence{translatable("history", "The connection history \"%1\" has version %2, but "
                                             "this program knows only versions up to %3; it was "
                                             "left as it is, update and restart this program to "
                                             "use it."),
                     {path, std::to_string(version), std::to_string(newest)}});
}

/// Something that a database consists of.
struct SchemaObject {
    std::string type;
    std::string name;
    std::string table;
    std::string sql; ///< without its white space
};

bool operator==(const SchemaObject &left, const SchemaObject &right)
{
    return left.type == right.type && left.name == right.name && left.sql == right.sql;
}

std::vector<SchemaObject> objectsIn(SQLite::Database &database)
{
    SQLite::Statement query(database, "SELECT type, name, tbl_name, coalesce(sql, '')"
                                      " FROM sqlite_schema"
                                      " WHERE name NOT LIKE 'sqlite^_%' ESCAPE '^'"
                                      " OR type NOT IN ('table', 'index')");
    std::vector<SchemaObject> objects;
    while (query.executeStep()) {
        std::string sql = query.getColumn(3).getString();
        sql.erase(std::remove_if(sql.begin(), sql.end(), isWhiteSpace), sql.end());
        objects.push_back({query.getColumn(0).getString(), query.getColumn(1).getString(),
                           query.getColumn(2).getString(), sql});
    }
    return objects;
}

/// Whether it is an index that only puts rows into an order, by columns and as SQLite
/// itself compares them; any other may refuse a record.
bool isPlainIndex(SQLite::Database &database, const SchemaObject &object)
{
    if (object.type != "index")
        return false;
    SQLite::Statement query(database,
                            "SELECT NOT \"unique\" AND NOT partial"
                            " AND NOT EXISTS (SELECT 1 FROM pragma_index_xinfo(?2)"
                            " WHERE cid < -1 OR coll NOT IN ('BINARY', 'NOCASE', 'RTRIM'))"
                            " FROM pragma_index_list(?1) WHERE name = ?2");
    query.bind(1, object.table);
    query.bind(2, object.name);
    return query.executeStep() && query.getColumn(0).getInt() != 0;
}

/// Triggers, views and virtual tables are programs that would run here, and some indexes
/// can refuse a record: whatever the steps have not made is somebody else's.
void checkObjects(const std::string &path, SQLite::Database &database, const SchemaSteps &steps,
                  std::size_t taken)
{
    SQLite::Database model(":memory:", SQLite::OPEN_READWRITE);
    for (std::size_t i = 0; i < taken; ++i)
        model.exec(steps[i]);
    const auto ours = objectsIn(model);
    for (const SchemaObject &object : objectsIn(database)) {
        const bool isOurs = std::find(ours.begin(), ours.end(), object) != ours.end();
        if (!isOurs && !isPlainIndex(database, object))
            throw damaged(path, Sentence{translatable("history", "its %1 \"%2\" is not one that "
                                                                 "this program makes"),
                                         {object.type, object.name}});
    }
}

/// How many of the steps have been taken; to be asked within a transaction.
std::size_t stepsTaken(const std::string &path, SQLite::Database &database,
                       const SchemaSteps &steps)
{
    const SchemaState state = stateOf(database);
    if (isNew(state))
        return 0;
    if (state.applicationId != storeApplicationId)
        throw anotherDatabase(path);
    checkVersion(path, state.version, steps.size());
    const auto taken = static_cast<std::size_t>(state.version);
    checkObjects(path, database, steps, taken);
    return taken;
}

/// The same in a transaction of its own, for an answer from one moment.
std::size_t stepsTakenNow(const std::string &path, SQLite::Database &database,
                          const SchemaSteps &steps)
{
    const SQLite::Transaction transaction(database);
    return stepsTaken(path, database, steps);
}

} // namespace

void checkSchemaVersion(const std::string &path, std::int32_t version)
{
    checkVersion(path, version, storeSchema().size());
}

void checkSchema(const std::string &path, SQLite::Database &database, const SchemaSteps &steps)
{
    stepsTakenNow(path, database, steps);
}

bool isOutdated(SQLite::Database &database, const SchemaSteps &steps)
{
    return static_cast<std::size_t>(stateOf(database).version) < steps.size();
}

void upgradeSchema(const std::string &path, SQLite::Database &database, const SchemaSteps &steps)
{
    const std::size_t seen = stepsTakenNow(path, database, steps);
    if (seen == steps.size())
        return;
    // A store is made without a log, so that there is no moment at which its mark
    // is only in the log and the file itself looks like another program's.
    if (seen == 0)
        database.tryExec("PRAGMA journal_mode = DELETE");
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    // Another process may have taken steps before this one got the lock.
    for (std::size_t i = stepsTaken(path, database, steps); i < steps.size(); ++i)
        database.exec(steps[i]);
    database.exec("PRAGMA application_id = " + std::to_string(storeApplicationId));
    database.exec("PRAGMA user_version = " + std::to_string(steps.size()));
    transaction.commit();
}

} // namespace history
