// SPDX-License-Identifier: MIT
#include "PlanTable.h"

#include "PlanCheck.h"
#include "RowQuery.h"
#include "StoreFailure.h"
#include "ValueCheck.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

namespace history
{

namespace
{

using Kind = StoreError::Kind;

constexpr const char *allPlans =
    "SELECT key, name, covers, covered, network, counts, amount, month_day, cycle_days, first_day,"
    " last_day, used_elsewhere, used_elsewhere_day FROM plan ORDER BY name";

/// Parameters 1 to 12 are the values of a plan, and 13 its key.
constexpr const char *insertion =
    "INSERT INTO plan (name, covers, covered, network, counts, amount, month_day, cycle_days,"
    " first_day, last_day, used_elsewhere, used_elsewhere_day)"
    " VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12)";
constexpr const char *change =
    "UPDATE plan SET name = ?1, covers = ?2, covered = ?3, network = ?4, counts = ?5, amount = ?6,"
    " month_day = ?7, cycle_days = ?8, first_day = ?9, last_day = ?10, used_elsewhere = ?11,"
    " used_elsewhere_day = ?12 WHERE key = ?13";

using Number = std::optional<std::int64_t>;

/// A rule as its columns have it: those that it does not need are null.
struct RuleColumns {
    Number monthDay;
    Number cycleDays;
    Number firstDay;
    Number lastDay;
};

struct ColumnsOfRule {
    RuleColumns operator()(const MonthlyFrom &rule) const { return {rule.day, {}, {}, {}}; }
    RuleColumns operator()(const EveryDays &rule) const { return {{}, rule.days, rule.from, {}}; }
    RuleColumns operator()(const OnceBetween &rule) const
    {
        return {{}, {}, rule.first, rule.last};
    }
};

StoreFailure badRow(const std::string &sentence)
{
    return {Kind::BadRecord, sentence};
}

PeriodRule ruleOf(const std::string &name, const RuleColumns &columns)
{
    const auto &[monthDay, cycleDays, firstDay, lastDay] = columns;
    if (monthDay && !cycleDays && !firstDay && !lastDay)
        return MonthlyFrom{*monthDay};
    if (!monthDay && cycleDays && firstDay && !lastDay)
        return EveryDays{*cycleDays, *firstDay};
    if (!monthDay && !cycleDays && firstDay && lastDay)
        return OnceBetween{*firstDay, *lastDay};
    throw badRow("The period of " + planCalled(name) +
                 " is not a day of the month, nor a number of days from a day on, nor a first and "
                 "a last day.");
}

/// The value that the text names, or an error that tells the choice.
template <typename Names>
auto valueIn(const Row &row, int column, const Names &names, const char *what,
             const std::string &plan)
{
    const std::string text(row.text(column));
    if (const auto value = valueNamed(names, text))
        return *value;
    std::string choice;
    for (const auto &each : names)
        choice += (choice.empty() ? "" : ", ") + std::string(each.name);
    throw badRow("The " + std::string(what) + " of " + planCalled(plan) + ", \"" +
                 beginningOf(text) + "\", is none of " + choice + '.');
}

void bindNumber(SQLite::Statement &statement, int index, const Number &value)
{
    if (value)
        statement.bind(index, *value);
    else
        statement.bind(index);
}

void bindPlan(SQLite::Statement &statement, const DataPlan &plan)
{
    const RuleColumns rule = std::visit(ColumnsOfRule(), plan.period);
    const auto &elsewhere = plan.usedElsewhere;
    statement.bind(1, plan.name);
    statement.bind(2, nameOf(coverNames, plan.covers));
    statement.bind(3, plan.covered);
    statement.bind(4, nameOf(networkNames, plan.network));
    statement.bind(5, nameOf(countNames, plan.counts));
    bindNumber(statement, 6, plan.amount);
    bindNumber(statement, 7, rule.monthDay);
    bindNumber(statement, 8, rule.cycleDays);
    bindNumber(statement, 9, rule.firstDay);
    bindNumber(statement, 10, rule.lastDay);
    bindNumber(statement, 11, elsewhere ? Number(elsewhere->bytes) : Number());
    bindNumber(statement, 12, elsewhere ? Number(elsewhere->day) : Number());
}

std::optional<UsedElsewhere> usedElsewhereOf(const std::string &name, const Number &bytes,
                                             const Number &day)
{
    if (bytes.has_value() != day.has_value())
        throw badRow("What was used elsewhere of " + planCalled(name) +
                     " is not both bytes and a day.");
    return bytes ? std::optional(UsedElsewhere{*bytes, *day}) : std::nullopt;
}

/// One that no int holds becomes one that is refused as well.
int percentageIn(const Row &row)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(row.integer(0), Limits::min(), Limits::max()));
}

std::vector<int> percentagesIn(RowQuery &query)
{
    std::vector<int> percentages;
    while (query.next())
        percentages.push_back(percentageIn(query.row()));
    return percentages;
}

/// Of a plan that no program of this version would have stored. What is wrong with it is told in
/// English alone.
StoreFailure strangePlan(const std::string &path, const StoreFailure &failure)
{
    return {Kind::Damaged,
            Sentence{translatable("history", "%1 The connection history \"%2\" has it so from "
                                             "another program; remove this plan and make it "
                                             "again."),
                     {failure.error().message, path}}};
}

} // namespace

PlanTable::PlanTable(SQLite::Database &database, std::string path)
    : m_database(database)
    , m_path(std::move(path))
{
}

std::vector<DataPlan> PlanTable::all()
{
    RowQuery query(m_database, allPlans);
    std::vector<DataPlan> plans;
    while (query.next()) {
        try {
            plans.push_back(planIn(query.row()));
        } catch (const StoreFailure &failure) {
            throw strangePlan(m_path, failure);
        }
    }
    return plans;
}

std::vector<std::string> PlanTable::problems()
{
    RowQuery query(m_database, allPlans);
    std::vector<std::string> problems;
    while (query.next()) {
        try {
            planIn(query.row());
        } catch (const StoreFailure &failure) {
            problems.push_back(failure.error().message);
        }
    }
    return problems;
}

std::int64_t PlanTable::set(const DataPlan &plan, const std::vector<int> &reached)
{
    checkNameIsFree(plan);
    const std::int64_t key = plan.key == 0 ? insert(plan) : plan.key;
    if (plan.key != 0)
        update(plan, reached);
    replaceThresholds(key, plan.warnAtPercent);
    return key;
}

PlanOutcome PlanTable::replace(const std::optional<DataPlan> &former, const DataPlan &plan,
                               const std::vector<int> &reached)
{
    for (const DataPlan &stored : all()) {
        const bool isReplaced = former ? stored.key == former->key : stored.name == plan.name;
        if (isReplaced && !(stored == former))
            return stored;
    }
    return set(plan, reached);
}

void PlanTable::checkNameIsFree(const DataPlan &plan)
{
    RowQuery query(m_database, "SELECT 1 FROM plan WHERE name = ? AND key <> ?");
    query.bind(1, plan.name);
    query.bind(2, plan.key);
    if (query.next())
        throw StoreFailure(
            Kind::BadRecord,
            Sentence{translatable("history", "The connection history \"%1\" has the plan \"%2\" "
                                             "already; nothing was changed, choose another name."),
                     {m_path, beginningOf(plan.name)}});
}

std::int64_t PlanTable::insert(const DataPlan &plan)
{
    SQLite::Statement statement(m_database, insertion);
    bindPlan(statement, plan);
    statement.exec();
    return m_database.getLastInsertRowid();
}

void PlanTable::update(const DataPlan &plan, const std::vector<int> &reached)
{
    forgetWarningsOfAnotherAmount(plan, reached);
    SQLite::Statement statement(m_database, change);
    bindPlan(statement, plan);
    statement.bind(13, plan.key);
    if (statement.exec() == 0)
        throw StoreFailure(
            Kind::NoSuchRecord,
            Sentence{translatable("history", "The connection history \"%1\" has the plan \"%2\" no "
                                             "longer; another program has removed it, make it "
                                             "again."),
                     {m_path, beginningOf(plan.name)}});
}

void PlanTable::forgetWarningsOfAnotherAmount(const DataPlan &plan, const std::vector<int> &reached)
{
    RowQuery query(m_database, "SELECT percent, period_first_day FROM plan_warning"
                               " WHERE plan = ?1"
                               " AND (SELECT amount FROM plan WHERE key = ?1) IS NOT ?2");
    query.bind(1, plan.key);
    if (plan.amount)
        query.bind(2, *plan.amount);
    std::vector<std::pair<JulianDay, int>> forgotten;
    while (query.next()) {
        const int percent = percentageIn(query.row());
        if (std::find(reached.begin(), reached.end(), percent) == reached.end())
            forgotten.emplace_back(query.row().integer(1), percent);
    }
    for (const auto &[periodFirst, percent] : forgotten)
        forgetWarnings(plan.key, periodFirst, {percent});
}

void PlanTable::replaceThresholds(std::int64_t plan, const std::vector<int> &percentages)
{
    removeOf(plan, "plan_threshold");
    SQLite::Statement statement(m_database, "INSERT INTO plan_threshold VALUES (?, ?)");
    statement.bind(1, plan);
    for (const int percent : percentages) {
        statement.bind(2, percent);
        statement.exec();
        statement.reset();
    }
}

bool PlanTable::remove(const std::string &name)
{
    RowQuery query(m_database, "SELECT key FROM plan WHERE name = ?");
    query.bind(1, name);
    if (!query.next())
        return false;
    const std::int64_t plan = query.row().integer(0);
    removeOf(plan, "plan_threshold");
    removeOf(plan, "plan_warning");
    SQLite::Statement statement(m_database, "DELETE FROM plan WHERE key = ?");
    statement.bind(1, plan);
    return statement.exec() == 1;
}

void PlanTable::removeOf(std::int64_t plan, const char *table)
{
    SQLite::Statement statement(m_database,
                                std::string("DELETE FROM ") + table + " WHERE plan = ?");
    statement.bind(1, plan);
    statement.exec();
}

std::vector<int> PlanTable::noteWarnings(std::int64_t plan, JulianDay periodFirst,
                                         const std::vector<int> &percentages)
{
    std::vector<int> added;
    std::copy_if(percentages.begin(), percentages.end(), std::back_inserter(added),
                 [&](int percent) { return noteWarning(plan, periodFirst, percent); });
    return added;
}

bool PlanTable::noteWarning(std::int64_t plan, JulianDay periodFirst, int percent)
{
    // A plan that has been removed meanwhile is not warned of.
    SQLite::Statement statement(m_database, "INSERT OR IGNORE INTO plan_warning"
                                            " SELECT key, ?, ? FROM plan WHERE key = ?");
    statement.bind(1, periodFirst);
    statement.bind(2, percent);
    statement.bind(3, plan);
    return statement.exec() == 1;
}

std::size_t PlanTable::forgetWarnings(std::int64_t plan, JulianDay periodFirst,
                                      const std::vector<int> &percentages)
{
    SQLite::Statement statement(m_database, "DELETE FROM plan_warning WHERE plan = ?"
                                            " AND period_first_day = ? AND percent = ?");
    statement.bind(1, plan);
    statement.bind(2, periodFirst);
    std::size_t forgotten = 0;
    for (const int percent : percentages) {
        statement.bind(3, percent);
        forgotten += static_cast<std::size_t>(statement.exec());
        statement.reset();
    }
    return forgotten;
}

std::vector<int> PlanTable::warningsGiven(std::int64_t plan, JulianDay periodFirst)
{
    RowQuery query(m_database, "SELECT percent FROM plan_warning WHERE plan = ?"
                               " AND period_first_day = ? ORDER BY percent");
    query.bind(1, plan);
    query.bind(2, periodFirst);
    return percentagesIn(query);
}

std::vector<int> PlanTable::thresholdsOf(std::int64_t plan)
{
    RowQuery query(m_database,
                   "SELECT percent FROM plan_threshold WHERE plan = ? ORDER BY percent");
    query.bind(1, plan);
    return percentagesIn(query);
}

DataPlan PlanTable::planIn(const Row &row)
{
    DataPlan plan;
    plan.key = row.integer(0);
    plan.name = row.text(1);
    plan.covers = valueIn(row, 2, coverNames, "coverage", plan.name);
    plan.covered = row.text(3);
    plan.network = valueIn(row, 4, networkNames, "network", plan.name);
    plan.counts = valueIn(row, 5, countNames, "direction", plan.name);
    plan.amount = row.integerIfAny(6);
    plan.period = ruleOf(plan.name, {row.integerIfAny(7), row.integerIfAny(8), row.integerIfAny(9),
                                     row.integerIfAny(10)});
    plan.usedElsewhere = usedElsewhereOf(plan.name, row.integerIfAny(11), row.integerIfAny(12));
    plan.warnAtPercent = thresholdsOf(plan.key);
    check(plan);
    return plan;
}

} // namespace history
