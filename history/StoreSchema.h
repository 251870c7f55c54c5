// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

namespace history
{

/// Marks a database as a store: "RDCH" in the header's application_id.
constexpr std::int32_t storeApplicationId = 0x52444348;

/// The SQL of the upgrade steps: the first makes the tables, and each one after
/// it turns version n into version n + 1. The version (user_version in the
/// header) is the number of steps taken. A step that has been released is never
/// changed, only new ones are added.
using SchemaSteps = std::vector<const char *>;
const SchemaSteps &storeSchema();

} // namespace history
