// SPDX-License-Identifier: MIT
#pragma once

#include "StoreReports.h"

namespace SQLite
{
class Database;
}

namespace history
{

/// See givenKeys() in StoreReports.h. Throws SQLite::Exception.
GivenKeys givenKeysIn(SQLite::Database &database);

} // namespace history
