// SPDX-License-Identifier: MIT
#include "Store.h"

#include "ConnectionCheck.h"
#include "Fingerprint.h"
#include "KeptException.h"
#include "PlanCheck.h"
#include "StoreDatabase.h"

#include <algorithm>
#include <exception>

namespace history
{

namespace
{

using Durability = StoreDatabase::Durability;
using IfMissing = StoreDatabase::IfMissing;
using LockWait = StoreDatabase::LockWait;

std::vector<std::int64_t> withoutRepetitions(std::vector<std::int64_t> keys)
{
    std::sort(keys.begin(), keys.end());
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    return keys;
}

} // namespace

class Store::Private
{
public:
    Private(const std::string &path, IfMissing ifMissing, Durability durability, LockWait lockWait)
        : database(path, ifMissing, durability, lockWait)
    {
    }

    static Result<Store> open(const std::string &path, IfMissing ifMissing,
                              Durability durability = Durability::System,
                              LockWait lockWait = LockWait::Long)
    {
        return attempt(path, [&] {
            auto opened = std::make_unique<Private>(path, ifMissing, durability, lockWait);
            opened->database.open();
            return Store(std::move(opened));
        });
    }

    /// Without a file, the answer is an empty value.
    template <typename Operation>
    auto read(Operation operation)
    {
        return attempt(database.path(), [&] { return database.read(operation); });
    }

    template <typename Operation>
    auto write(Operation operation)
    {
        return attempt(database.path(), [&] { return database.write(operation); });
    }

    /// Only if `given`, which is to be written, is in order.
    template <typename Given, typename Operation>
    auto write(const Given &given, Operation operation)
    {
        return attempt(database.path(), [&] {
            check(given);
            return database.write(operation);
        });
    }

    std::size_t remove(const std::vector<std::int64_t> &keys)
    {
        if (keys.empty())
            return 0;
        if (!database.open())
            throw noSuchRecord(database.path(), keys.front());
        return database.write([&](StoreTables &tables) { return tables.remove(keys); });
    }

    bool removePlan(const std::string &name)
    {
        // No history is made for a plan that it would not have.
        return database.open() &&
               database.write([&](StoreTables &tables) { return tables.plans.remove(name); });
    }

    StoreDatabase database;
};

Result<Store> Store::openOrCreate(const std::string &path)
{
    return Private::open(path, IfMissing::Create);
}

Result<Store> Store::openForRecording(const std::string &path)
{
    return Private::open(path, IfMissing::Create, Durability::Disk, LockWait::Short);
}

Result<Store> Store::openForReading(const std::string &path)
{
    return Private::open(path, IfMissing::ReadAsEmpty);
}

Result<Store> Store::openForWatching(const std::string &path)
{
    return Private::open(path, IfMissing::ReadAsEmpty, Durability::System, LockWait::Short);
}

Store::Store(std::unique_ptr<Private> privateData)
    : d(std::move(privateData))
{
}

Store::Store(Store &&) noexcept = default;
Store &Store::operator=(Store &&) noexcept = default;
Store::~Store() = default;

Result<std::vector<Connection>> Store::list(const TimeRange &range) const
{
    return d->read([&](StoreTables &tables) { return tables.connections.list(range); });
}

Result<std::size_t> Store::visit(const ConnectionSelection &selection,
                                 const ConnectionVisitor &visitor,
                                 const OpenConnectionVisitor &openVisitor) const
{
    std::exception_ptr thrown;
    auto count = d->read([&](StoreTables &tables) {
        return tables.visit(selection, keeping(thrown, visitor), keeping(thrown, openVisitor));
    });
    if (thrown)
        std::rethrow_exception(thrown);
    return count;
}

Result<std::int64_t> Store::count() const
{
    return d->read([](StoreTables &tables) { return tables.connections.count(); });
}

Result<std::uint64_t> Store::fingerprint() const
{
    return d->read([](StoreTables &tables) { return tables.connections.fingerprint(); });
}

std::uint64_t Store::fingerprintOf(const Connection &connection)
{
    return history::fingerprintOf(connection);
}

Result<std::uint64_t> Store::revision() const
{
    return d->read([](StoreTables &tables) { return tables.revision(); });
}

Result<Overview> Store::overview() const
{
    return d->read([](StoreTables &tables) { return tables.overview(); });
}

Result<std::int64_t> Store::add(const Connection &connection)
{
    return d->write(connection, [&](StoreTables &tables) { return tables.insert(connection); });
}

Result<std::size_t> Store::addMissing(const std::vector<Connection> &connections,
                                      const Progress &progress)
{
    ListedConnections listed(connections);
    return d->write(connections,
                    [&](StoreTables &tables) { return tables.insertMissing(listed, progress); });
}

Result<std::size_t> Store::addMissing(ConnectionSource &connections, const Progress &progress)
{
    CheckedConnections checked(connections);
    return d->write([&](StoreTables &tables) { return tables.insertMissing(checked, progress); });
}

Result<Store::Merged> Store::merge(const std::vector<Connection> &connections,
                                   const Completion &complete, const Progress &progress)
{
    return d->write(connections, [&](StoreTables &tables) {
        return tables.merge(connections, complete, progress);
    });
}

Result<std::size_t> Store::remove(const std::vector<std::int64_t> &keys)
{
    return attempt(d->database.path(), [&] { return d->remove(withoutRepetitions(keys)); });
}

Result<OpenConnection> Store::begin(const OpenConnection &connection)
{
    return d->write(connection, [&](StoreTables &tables) { return tables.begin(connection); });
}

Result<std::int64_t> Store::checkpoint(const OpenConnection &connection, const std::string &origin)
{
    return d->write(connection,
                    [&](StoreTables &tables) { return tables.checkpoint(connection, origin); });
}

Result<std::int64_t> Store::finish(const OpenConnection &open, const Connection &connection,
                                   const std::string &origin)
{
    return d->write(connection,
                    [&](StoreTables &tables) { return tables.finish(open, connection, origin); });
}

Result<bool> Store::wasTakenOver(const std::string &origin) const
{
    return d->read([&](StoreTables &tables) { return tables.origins.holds(origin); });
}

Result<std::int64_t> Store::forgetOrigins()
{
    return d->write([](StoreTables &tables) { return tables.origins.clear(); });
}

Result<std::vector<OpenConnection>> Store::listOpen() const
{
    return d->read([](StoreTables &tables) { return tables.listOpen(); });
}

Result<std::size_t> Store::see(const std::vector<SeenLink> &links,
                               const std::vector<Connection> &unwatched)
{
    return d->write(unwatched, [&](StoreTables &tables) { return tables.see(links, unwatched); });
}

Result<std::vector<SeenLink>> Store::listSeen() const
{
    return d->read([](StoreTables &tables) { return tables.seenLinks.all(); });
}

Result<std::vector<ConnectionHour>> Store::hours(const TimeRange &range) const
{
    return d->read([&](StoreTables &tables) { return tables.hours(range); });
}

Result<std::size_t> Store::visitHours(const TimeRange &range, const HourVisitor &visitor) const
{
    return d->read([&](StoreTables &tables) { return tables.visitHours(range, visitor); });
}

Result<std::vector<DataPlan>> Store::plans() const
{
    return d->read([](StoreTables &tables) { return tables.plans.all(); });
}

Result<std::int64_t> Store::setPlan(const DataPlan &plan)
{
    return d->write(plan, [&](StoreTables &tables) { return tables.plans.set(plan, {}); });
}

Result<PlanOutcome> Store::setPlan(const DataPlan &plan, const std::optional<DataPlan> &former,
                                   const std::vector<int> &reached)
{
    return d->write(
        plan, [&](StoreTables &tables) { return tables.plans.replace(former, plan, reached); });
}

Result<bool> Store::removePlan(const std::string &name)
{
    return attempt(d->database.path(), [&] { return d->removePlan(name); });
}

Result<std::vector<int>> Store::noteWarnings(std::int64_t planKey, JulianDay periodFirst,
                                             const std::vector<int> &percentages)
{
    return d->write([&](StoreTables &tables) {
        return tables.plans.noteWarnings(planKey, periodFirst, percentages);
    });
}

Result<std::size_t> Store::forgetWarnings(std::int64_t planKey, JulianDay periodFirst,
                                          const std::vector<int> &percentages)
{
    return d->write([&](StoreTables &tables) {
        return tables.plans.forgetWarnings(planKey, periodFirst, percentages);
    });
}

Result<std::vector<int>> Store::warningsGiven(std::int64_t planKey, JulianDay periodFirst) const
{
    return d->read(
        [&](StoreTables &tables) { return tables.plans.warningsGiven(planKey, periodFirst); });
}

Result<bool> Store::copyTo(const std::string &path) const
{
    return d->read([&](StoreTables &tables) { return tables.copyTo(path); });
}

Result<Examination> Store::examine() const
{
    return d->read([](StoreTables &tables) { return tables.examine(); });
}

} // namespace history
