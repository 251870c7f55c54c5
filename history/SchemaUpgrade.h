// SPDX-License-Identifier: MIT
#pragma once

#include "StoreSchema.h"

#include <cstdint>
#include <string>

namespace SQLite
{
class Database;
}

namespace history
{

/// Throws StoreFailure unless this version of the library can work with a store
/// of that version.
void checkSchemaVersion(const std::string &path, std::int32_t version);

/// Throws StoreFailure unless the database is what some of the steps, from the first
/// one on, have made of it, and SQLite::Exception.
void checkSchema(const std::string &path, SQLite::Database &database, const SchemaSteps &steps);

/// Whether it lacks steps that are known here; to be asked of one that is a store.
bool isOutdated(SQLite::Database &database, const SchemaSteps &steps);

/// Takes the steps that the database still lacks, all or none. Throws
/// StoreFailure if it is somebody else's, newer, or holds what no step has made,
/// SQLite::Exception.
void upgradeSchema(const std::string &path, SQLite::Database &database, const SchemaSteps &steps);

} // namespace history
