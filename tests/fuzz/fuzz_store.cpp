// SPDX-License-Identifier: MIT
// A real store with bytes changed and its end cut, through everything that reads
// and writes it. The input is a list of edits: two bytes for the size that is
// left (any larger one leaves it whole), then three bytes for each change.
#include "Fuzz.h"
#include "KoraStatistics.h"
#include "history/ConnectionFields.h"
#include "history/Store.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <vector>

using history::Connection;
using history::OpenConnection;
using history::Result;
using history::Store;
using history::StoreError;

namespace
{

/// A folder of this process in memory, which goes with it.
class Folder
{
public:
    Folder()
        : m_path("/dev/shm/fuzz-store-" + std::to_string(getpid()))
    {
        std::filesystem::create_directory(m_path);
    }
    ~Folder() { std::filesystem::remove_all(m_path); }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    std::string file(const char *name) const { return m_path + '/' + name; }

private:
    std::string m_path;
};

const Folder &folder()
{
    static const Folder theFolder;
    return theFolder;
}

Connection sampleConnection(int number)
{
    Connection connection;
    connection.profile = "profile " + std::to_string(number % 5);
    connection.startUtc = 1600000000 + number * 1000;
    connection.endUtc = connection.startUtc + 500;
    connection.connectedSeconds = 500;
    connection.uploadedBytes = number * 4096LL;
    connection.downloadedBytes = number * 65536LL;
    connection.interfaceName = "ppp0";
    return connection;
}

OpenConnection sampleOpenConnection()
{
    OpenConnection connection;
    connection.bootId = "boot";
    connection.interfaceIndex = 3;
    connection.interfaceName = "ppp0";
    connection.profile = "profile";
    connection.startUtc = 1700000000;
    connection.updatedUtc = 1700000005;
    return connection;
}

std::string contentsOf(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string makeStore()
{
    const std::string path = folder().file("sample.db");
    {
        auto store = Store::openOrCreate(path);
        fuzz::require(static_cast<bool>(store), "there is a store");
        for (int number = 0; number < 60; ++number)
            fuzz::require(static_cast<bool>(store.value().add(sampleConnection(number))), "added");
        fuzz::require(static_cast<bool>(store.value().begin(sampleOpenConnection())), "begun");
    }
    return contentsOf(path);
}

std::string edited(const std::string &sample, const std::uint8_t *data, std::size_t size)
{
    std::string contents = sample;
    const auto number = [data](std::size_t at) {
        return static_cast<std::size_t>(data[at]) << 8U | data[at + 1];
    };
    if (size >= 2 && number(0) < contents.size())
        contents.resize(number(0));
    for (std::size_t at = 2; at + 3 <= size && !contents.empty(); at += 3)
        contents[number(at) % contents.size()] = static_cast<char>(data[at + 2]);
    return contents;
}

template <typename Value>
void requireSentence(const Result<Value> &result)
{
    fuzz::require(result || !result.error().message.empty(), "an error says what is wrong");
}

std::string schemaOf(const SQLite::Database &database)
{
    std::string schema;
    SQLite::Statement each(database, "SELECT ifnull(sql, '') FROM sqlite_master ORDER BY rowid");
    while (each.executeStep())
        schema += each.getColumn(0).getString() + '\n';
    return schema;
}

/// Whether the database itself finds nothing wrong with the file, so that what is
/// written to it must be there afterwards.
bool isSound(const std::string &path, const std::string &schema)
{
    try {
        const SQLite::Database database(path, SQLite::OPEN_READWRITE);
        SQLite::Statement check(database, "PRAGMA integrity_check");
        return check.executeStep() && check.getColumn(0).getString() == "ok" &&
               schemaOf(database) == schema;
    } catch (const SQLite::Exception &) {
        return false;
    }
}

struct ByContents {
    bool operator()(const Connection &left, const Connection &right) const
    {
        return history::comesBeforeByContents(left, right);
    }
};

/// What was listed before, changed by what the store has acknowledged since.
class ExpectedList
{
public:
    explicit ExpectedList(const std::vector<Connection> &listed)
    {
        for (const Connection &each : listed)
            m_connections.insert(each);
    }
    void add(const Connection &connection) { m_connections.insert(connection); }
    void remove(const Connection &connection)
    {
        const auto found = m_connections.find(connection);
        fuzz::require(found != m_connections.end(), "what is removed was there");
        m_connections.erase(found);
    }
    void requireIn(const Store &store) const
    {
        const auto listed = store.list();
        fuzz::require(static_cast<bool>(listed), "a sound store is still listed");
        fuzz::require(isSameAs(listed.value()), "what was acknowledged is there, and nothing else");
    }

private:
    bool isSameAs(const std::vector<Connection> &listed) const
    {
        const std::multiset<Connection, ByContents> other(listed.begin(), listed.end());
        return std::equal(other.begin(), other.end(), m_connections.begin(), m_connections.end(),
                          history::hasSameContents);
    }

    std::multiset<Connection, ByContents> m_connections;
};

void useStore(Store &store, bool isSoundStore)
{
    const auto listed = store.list();
    requireSentence(listed);
    ExpectedList expected(listed ? listed.value() : std::vector<Connection>());
    requireSentence(store.listOpen());
    requireSentence(store.hours());
    const auto begun = store.begin(sampleOpenConnection());
    requireSentence(begun);
    if (begun) {
        requireSentence(store.checkpoint(begun.value()));
        const auto finished = store.finish(begun.value(), sampleConnection(100));
        requireSentence(finished);
        if (finished)
            expected.add(sampleConnection(100));
    }
    const auto added = store.add(sampleConnection(200));
    requireSentence(added);
    if (added)
        expected.add(sampleConnection(200));
    requireSentence(store.addMissing({sampleConnection(200)})); // already there
    if (listed && !listed.value().empty()) {
        const auto removed = store.remove({listed.value().front().key});
        requireSentence(removed);
        if (removed)
            expected.remove(listed.value().front());
    }
    if (listed && isSoundStore)
        expected.requireIn(store);
}

void useFunctions()
{
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = 0;
    const int status = KORA_Statistics_GetAllConnRecord(&records, &count);
    fuzz::require(status == 0 || count == 0, "a failure hands out nothing");
    for (int i = 0; i < count; ++i) {
        const auto &name = records[i].szProfileName;
        fuzz::require(std::find(std::begin(name), std::end(name), u'\0') != std::end(name),
                      "the profile is terminated");
    }
    if (count > 0)
        KORA_Statistics_ConnRecord_RemoveRecord(count - 1);
    KORA_Statistics_ReleaseConnRecord(records);
    _KORA_ST_CONNRECORD last = {};
    KORA_Statistics_GetLastConnRecord(&last);
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    fuzz::silenceLibraries();
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const std::string sample = makeStore();
    static const std::string schema =
        schemaOf(SQLite::Database(folder().file("sample.db"), SQLite::OPEN_READWRITE));
    static unsigned long number = 0;
    // A name of its own for each: the functions keep the last file open.
    const std::string path = folder().file(std::to_string(++number % 2).c_str());
    for (const char *const suffix : {"", "-wal", "-shm"})
        std::filesystem::remove(path + suffix);
    const std::string contents = edited(sample, data, size);
    std::ofstream(path, std::ios::binary) << contents;

    setenv("NETINFO_STORE", path.c_str(), 1);
    useFunctions();
    const bool isSoundStore = isSound(path, schema);
    auto store = Store::openOrCreate(path);
    if (store)
        useStore(store.value(), isSoundStore);
    else if (store.error().kind == StoreError::Kind::NotAStore ||
             store.error().kind == StoreError::Kind::NewerStore)
        fuzz::require(contentsOf(path) == contents, "what is no store is left as it is");
    return 0;
}
