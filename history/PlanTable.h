// SPDX-License-Identifier: MIT
#pragma once

#include "DataPlan.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace SQLite
{
class Database;
}

namespace history
{

class Row;

/// The tables of data plans and of the warnings given of them. Operations throw
/// SQLite::Exception and StoreFailure.
class PlanTable
{
public:
    /// For the history in `path`, which errors name.
    PlanTable(SQLite::Database &database, std::string path);

    /// See Store's functions of these names.
    std::vector<DataPlan> all();
    std::int64_t set(const DataPlan &plan, const std::vector<int> &reached);
    PlanOutcome replace(const std::optional<DataPlan> &former, const DataPlan &plan,
                        const std::vector<int> &reached);
    bool remove(const std::string &name);
    std::vector<int> noteWarnings(std::int64_t plan, JulianDay periodFirst,
                                  const std::vector<int> &percentages);
    std::size_t forgetWarnings(std::int64_t plan, JulianDay periodFirst,
                               const std::vector<int> &percentages);
    std::vector<int> warningsGiven(std::int64_t plan, JulianDay periodFirst);

    /// Of rows that are no plans, a sentence each.
    std::vector<std::string> problems();

private:
    bool noteWarning(std::int64_t plan, JulianDay periodFirst, int percent);
    void checkNameIsFree(const DataPlan &plan);
    std::int64_t insert(const DataPlan &plan);
    void update(const DataPlan &plan, const std::vector<int> &reached);
    void forgetWarningsOfAnotherAmount(const DataPlan &plan, const std::vector<int> &reached);
    void replaceThresholds(std::int64_t plan, const std::vector<int> &percentages);
    std::vector<int> thresholdsOf(std::int64_t plan);
    void removeOf(std::int64_t plan, const char *table);
    DataPlan planIn(const Row &row);

    SQLite::Database &m_database;
    std::string m_path;
};

} // namespace history
