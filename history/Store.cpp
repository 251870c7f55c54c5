// SPDX-License-Identifier: MIT
#include "Store.h"

#include "Fingerprint.h"
#include "StoreDatabase.h"
#include "TotalsSum.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <limits>

namespace history
{

namespace
{

using Kind = StoreError::Kind;

constexpr std::int64_t maximumBytes = std::numeric_limits<std::int64_t>::max();
constexpr std::size_t maximumTextBytes = 31;

std::string environmentValue(const char *name)
{
    const char *const value = std::getenv(name);
    return value ? value : "";
}

std::filesystem::path homeFolder()
{
    const std::string home = environmentValue("HOME");
    if (!home.empty())
        return home;
    const passwd *const user = getpwuid(getuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

std::filesystem::path dataFolder()
{
    const std::filesystem::path folder = environmentValue("XDG_DATA_HOME");
    // A relative path there is to be ignored, as the base directory rules have it.
    return folder.is_absolute() ? folder : homeFolder() / ".local" / "share";
}

void checkRange(const std::string &whose, const char *field, std::int64_t value,
                std::int64_t maximum)
{
    if (value < 0 || value > maximum)
        throw StoreFailure(Kind::BadRecord, "The " + std::string(field) + " of " + whose + " is " +
                                                std::to_string(value) +
                                                ", but must lie between 0 and " +
                                                std::to_string(maximum) + ".");
}

/// As much of a text as a sentence can take; it stays UTF-8 if it is.
std::string beginningOf(const std::string &text)
{
    constexpr std::size_t enough = 64;
    if (text.size() <= enough)
        return text;
    std::size_t end = enough;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80U)
        --end;
    return text.substr(0, end) + "...";
}

void checkText(const std::string &whose, const char *field, const std::string &text,
               std::size_t maximum)
{
    if (text.find('\0') != std::string::npos)
        throw StoreFailure(Kind::BadRecord, "The " + std::string(field) + " of " + whose +
                                                " contains a NUL character, but must be text "
                                                "without one.");
    if (text.size() > maximum)
        throw StoreFailure(Kind::BadRecord,
                           "The " + std::string(field) + " of " + whose + ", \"" +
                               beginningOf(text) + "\", has " + std::to_string(text.size()) +
                               " bytes, but may have 0 to " + std::to_string(maximum) + ".");
}

/// Checks what finished and open connections have in common.
template <typename AnyConnection>
void checkCommon(const AnyConnection &connection, const std::string &whose)
{
    checkText(whose, "profile", connection.profile, longestProfile);
    checkRange(whose, "start time", connection.startUtc, largestTime);
    checkRange(whose, "connected time", connection.connectedSeconds, largestDuration);
    checkRange(whose, "number of bytes sent", connection.uploadedBytes, maximumBytes);
    checkRange(whose, "number of bytes received", connection.downloadedBytes, maximumBytes);
    checkText(whose, "ending", connection.ending, maximumTextBytes);
    checkText(whose, "interface", connection.interfaceName, maximumTextBytes);
}

void check(const Connection &connection, const std::string &whose)
{
    checkCommon(connection, whose);
    checkRange(whose, "end time", connection.endUtc, largestTime);
}

void check(const OpenConnection &connection)
{
    const std::string whose = "the open connection";
    checkCommon(connection, whose);
    checkRange(whose, "time of the last update", connection.updatedUtc, largestTime);
    checkText(whose, "boot id", connection.bootId, longestProfile);
}

void checkAll(const std::vector<Connection> &connections)
{
    for (std::size_t i = 0; i < connections.size(); ++i)
        check(connections[i],
              "connection " + std::to_string(i + 1) + " of " + std::to_string(connections.size()));
}

StoreFailure noSuchOpenConnection(const std::string &path, std::int64_t key)
{
    return {Kind::NoSuchRecord, historyAt(path) + " has no open connection with the key " +
                                    std::to_string(key) +
                                    "; nothing was changed, another program has finished it or "
                                    "the file has been replaced."};
}

StoreFailure noSuchRecord(const std::string &path, std::int64_t key)
{
    return {Kind::NoSuchRecord, historyAt(path) + " has no record with the key " +
                                    std::to_string(key) +
                                    "; nothing was removed, list the records again."};
}

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
    Private(const std::string &path, StoreDatabase::IfMissing ifMissing,
            StoreDatabase::Durability durability, StoreDatabase::LockWait lockWait)
        : database(path, ifMissing, durability, lockWait)
    {
    }

    static Result<Store>
    open(const std::string &path, StoreDatabase::IfMissing ifMissing,
         StoreDatabase::Durability durability = StoreDatabase::Durability::System,
         StoreDatabase::LockWait lockWait = StoreDatabase::LockWait::Long)
    {
        return history::attempt(path, [&] {
            auto opened = std::make_unique<Private>(path, ifMissing, durability, lockWait);
            opened->database.open();
            return Store(std::move(opened));
        });
    }

    template <typename Operation>
    auto attempt(Operation operation)
    {
        return history::attempt(database.path(), operation);
    }

    /// To be called within a write.
    void keepSeen(const OpenConnection &connection)
    {
        if (const auto link = seenLinkOf(connection))
            database.seenLinks().replace(*link);
    }

    void keepOrigin(const std::string &origin)
    {
        if (!origin.empty())
            database.origins().insert(origin);
    }

    StoreDatabase database;
};

std::string Store::defaultPath()
{
    const std::string named = environmentValue("NETINFO_STORE");
    return named.empty() ? (dataFolder() / "refdialer" / "connections.db").string() : named;
}

Result<Store> Store::openOrCreate(const std::string &path)
{
    return Private::open(path, StoreDatabase::IfMissing::Create);
}

Result<Store> Store::openForRecording(const std::string &path)
{
    return Private::open(path, StoreDatabase::IfMissing::Create, StoreDatabase::Durability::Disk,
                         StoreDatabase::LockWait::Short);
}

Result<Store> Store::openForReading(const std::string &path)
{
    return Private::open(path, StoreDatabase::IfMissing::ReadAsEmpty);
}

Result<Store> Store::openForWatching(const std::string &path)
{
    return Private::open(path, StoreDatabase::IfMissing::ReadAsEmpty,
                         StoreDatabase::Durability::System, StoreDatabase::LockWait::Short);
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
    return d->attempt([&] {
        return d->database.read(std::vector<Connection>(), [&](ConnectionTable &table) {
            std::vector<Connection> connections;
            table.visit(range, [&](const ConnectionRow &row) {
                connections.push_back(row.toConnection());
            });
            return connections;
        });
    });
}

Result<std::uint64_t> Store::fingerprint() const
{
    return d->attempt([&] {
        return d->database.read(std::uint64_t{0},
                                [](ConnectionTable &table) { return table.fingerprint(); });
    });
}

std::uint64_t Store::fingerprintOf(const Connection &connection)
{
    return history::fingerprintOf(connection);
}

Result<std::int64_t> Store::add(const Connection &connection)
{
    return d->attempt([&] {
        check(connection, "the connection");
        return d->database.write([&](ConnectionTable &table) { return table.insert(connection); });
    });
}

Result<std::size_t> Store::addMissing(const std::vector<Connection> &connections,
                                      const Progress &progress)
{
    return d->attempt([&] {
        checkAll(connections);
        return d->database.write(
            [&](ConnectionTable &table) { return table.insertMissing(connections, progress); });
    });
}

Result<Store::Merged> Store::merge(const std::vector<Connection> &connections,
                                   const Completion &complete, const Progress &progress)
{
    return d->attempt([&] {
        checkAll(connections);
        return d->database.write(
            [&](ConnectionTable &table) { return table.merge(connections, complete, progress); });
    });
}

Result<std::size_t> Store::remove(const std::vector<std::int64_t> &keys)
{
    return d->attempt([&]() -> std::size_t {
        if (keys.empty())
            return 0;
        const auto distinct = withoutRepetitions(keys);
        if (!d->database.open())
            throw noSuchRecord(d->database.path(), distinct.front());
        return d->database.write([&](ConnectionTable &table) {
            for (const std::int64_t key : distinct) {
                if (!table.remove(key))
                    throw noSuchRecord(d->database.path(), key);
            }
            return distinct.size();
        });
    });
}

Result<OpenConnection> Store::begin(const OpenConnection &connection)
{
    return d->attempt([&] {
        check(connection);
        return d->database.write([&](ConnectionTable &) {
            OpenConnectionTable &table = d->database.openConnections();
            if (auto earlier = table.find(connection.bootId, connection.interfaceIndex))
                return *std::move(earlier);
            OpenConnection stored = connection;
            stored.key = table.insert(connection);
            d->keepSeen(connection);
            return stored;
        });
    });
}

Result<std::int64_t> Store::checkpoint(const OpenConnection &connection, const std::string &origin)
{
    return d->attempt([&] {
        check(connection);
        return d->database.write([&](ConnectionTable &) {
            if (!d->database.openConnections().update(connection))
                throw noSuchOpenConnection(d->database.path(), connection.key);
            d->keepSeen(connection);
            d->keepOrigin(origin);
            return connection.key;
        });
    });
}

Result<std::int64_t> Store::finish(const OpenConnection &open, const Connection &connection,
                                   const std::string &origin)
{
    return d->attempt([&] {
        check(connection, "the connection");
        return d->database.write([&](ConnectionTable &table) -> std::int64_t {
            d->keepOrigin(origin);
            const bool wasOpen = d->database.openConnections().remove(open);
            if (!wasOpen && table.holds(connection.interfaceName, connection.startUtc))
                return 0;
            d->keepSeen(open);
            return table.insert(connection);
        });
    });
}

Result<bool> Store::wasTakenOver(const std::string &origin) const
{
    return d->attempt([&] {
        return d->database.read(
            false, [&](ConnectionTable &) { return d->database.origins().holds(origin); });
    });
}

Result<std::int64_t> Store::forgetOrigins()
{
    return d->attempt([&] {
        return d->database.write([&](ConnectionTable &) { return d->database.origins().clear(); });
    });
}

Result<std::vector<OpenConnection>> Store::listOpen() const
{
    return d->attempt([&] {
        return d->database.read(std::vector<OpenConnection>(), [&](ConnectionTable &) {
            return d->database.openConnections().all();
        });
    });
}

Result<std::size_t> Store::see(const std::vector<SeenLink> &links,
                               const std::vector<Connection> &unwatched)
{
    return d->attempt([&] {
        checkAll(unwatched);
        return d->database.write([&](ConnectionTable &table) {
            for (const Connection &each : unwatched)
                table.insert(each);
            for (const SeenLink &link : links) {
                d->database.seenLinks().replace(link);
                d->database.seenLinks().removeOthersOfTheName(link);
            }
            return unwatched.size();
        });
    });
}

Result<std::vector<SeenLink>> Store::listSeen() const
{
    return d->attempt([&] {
        return d->database.read(std::vector<SeenLink>(),
                                [&](ConnectionTable &) { return d->database.seenLinks().all(); });
    });
}

Result<std::vector<Totals>> Store::totals(const TimeRange &range, Profiles profiles,
                                          const PeriodOf &periodOf) const
{
    return d->attempt([&] {
        return d->database.read(std::vector<Totals>(), [&](ConnectionTable &table) {
            TotalsSum sum(d->database.path(), profiles == Profiles::Apart);
            table.visit(range, [&](const ConnectionRow &row) {
                if (const auto period = periodOf(row.startUtc()))
                    sum.add(row, *period);
            });
            return sum.groups();
        });
    });
}

} // namespace history
