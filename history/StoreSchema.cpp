// SPDX-License-Identifier: MIT
#include "StoreSchema.h"

#include <iterator>

namespace history
{

namespace
{

// The index by start time gives the order of the list without sorting: equal
// start times follow by key, which every index entry ends with.
constexpr const char *releasedSteps[] = {
    R"(
        CREATE TABLE connection (
            key INTEGER PRIMARY KEY AUTOINCREMENT,
            profile TEXT NOT NULL,
            start_utc INTEGER NOT NULL,
            end_utc INTEGER NOT NULL,
            connected_seconds INTEGER NOT NULL,
            uploaded_bytes INTEGER NOT NULL,
            downloaded_bytes INTEGER NOT NULL,
            ending TEXT NOT NULL,
            interface_name TEXT NOT NULL
        ) STRICT;
        CREATE INDEX connection_by_start ON connection (start_utc);
        CREATE INDEX connection_by_end ON connection (end_utc);
        )",
    R"(
        CREATE TABLE open_connection (
            key INTEGER PRIMARY KEY AUTOINCREMENT,
            boot_id TEXT NOT NULL,
            interface_index INTEGER NOT NULL,
            interface_name TEXT NOT NULL,
            profile TEXT NOT NULL,
            link_mark TEXT NOT NULL,
            start_utc INTEGER NOT NULL,
            start_boot_ms INTEGER NOT NULL,
            base_uploaded INTEGER NOT NULL,
            base_downloaded INTEGER NOT NULL,
            uploaded_bytes INTEGER NOT NULL,
            downloaded_bytes INTEGER NOT NULL,
            updated_utc INTEGER NOT NULL,
            connected_seconds INTEGER NOT NULL,
            ending TEXT NOT NULL,
            UNIQUE (boot_id, interface_index)
        ) STRICT;
        )",
    R"(
        CREATE TABLE seen_link (
            boot_id TEXT NOT NULL,
            interface_index INTEGER NOT NULL,
            interface_name TEXT NOT NULL,
            uploaded INTEGER NOT NULL,
            downloaded INTEGER NOT NULL,
            seen_utc INTEGER NOT NULL,
            PRIMARY KEY (boot_id, interface_index)
        ) STRICT;
        CREATE TABLE taken_over (
            id TEXT PRIMARY KEY NOT NULL
        ) STRICT;
        )",
    R"(
        CREATE TABLE log_base (
            only INTEGER PRIMARY KEY CHECK (only = 1),
            file_inode INTEGER NOT NULL,
            file_written_ns INTEGER NOT NULL,
            log_inode INTEGER NOT NULL
        ) STRICT;
        )",
    R"(
        ALTER TABLE connection ADD COLUMN operator_name TEXT NOT NULL DEFAULT '';
        ALTER TABLE connection ADD COLUMN operator_code TEXT NOT NULL DEFAULT '';
        ALTER TABLE connection ADD COLUMN sim TEXT NOT NULL DEFAULT '';
        ALTER TABLE connection ADD COLUMN roaming TEXT NOT NULL DEFAULT '';
        ALTER TABLE connection ADD COLUMN technology TEXT NOT NULL DEFAULT '';
        ALTER TABLE open_connection ADD COLUMN operator_name TEXT NOT NULL DEFAULT '';
        ALTER TABLE open_connection ADD COLUMN operator_code TEXT NOT NULL DEFAULT '';
        ALTER TABLE open_connection ADD COLUMN sim TEXT NOT NULL DEFAULT '';
        ALTER TABLE open_connection ADD COLUMN roaming TEXT NOT NULL DEFAULT '';
        ALTER TABLE open_connection ADD COLUMN technology TEXT NOT NULL DEFAULT '';
        CREATE TABLE connection_hour (
            connection INTEGER NOT NULL,
            hour_utc INTEGER NOT NULL,
            is_roaming INTEGER NOT NULL,
            uploaded_bytes INTEGER NOT NULL,
            downloaded_bytes INTEGER NOT NULL,
            PRIMARY KEY (connection, hour_utc, is_roaming)
        ) STRICT, WITHOUT ROWID;
        CREATE INDEX connection_hour_by_hour ON connection_hour (hour_utc);
        CREATE TABLE open_connection_hour (
            connection INTEGER NOT NULL,
            hour_utc INTEGER NOT NULL,
            is_roaming INTEGER NOT NULL,
            uploaded_bytes INTEGER NOT NULL,
            downloaded_bytes INTEGER NOT NULL,
            PRIMARY KEY (connection, hour_utc, is_roaming)
        ) STRICT, WITHOUT ROWID;
        )",
    R"(
        CREATE TABLE plan (
            key INTEGER PRIMARY KEY AUTOINCREMENT,
            name TEXT NOT NULL UNIQUE,
            covers TEXT NOT NULL,
            covered TEXT NOT NULL,
            network TEXT NOT NULL,
            counts TEXT NOT NULL,
            amount INTEGER,
            month_day INTEGER,
            cycle_days INTEGER,
            first_day INTEGER,
            last_day INTEGER,
            used_elsewhere INTEGER,
            used_elsewhere_day INTEGER
        ) STRICT;
        CREATE TABLE plan_threshold (
            plan INTEGER NOT NULL,
            percent INTEGER NOT NULL,
            PRIMARY KEY (plan, percent)
        ) STRICT, WITHOUT ROWID;
        CREATE TABLE plan_warning (
            plan INTEGER NOT NULL,
            period_first_day INTEGER NOT NULL,
            percent INTEGER NOT NULL,
            PRIMARY KEY (plan, period_first_day, percent)
        ) STRICT, WITHOUT ROWID;
        )",
};

} // namespace

const SchemaSteps &storeSchema()
{
    static const SchemaSteps steps(std::begin(releasedSteps), std::end(releasedSteps));
    return steps;
}

} // namespace history
