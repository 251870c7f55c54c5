// SPDX-License-Identifier: MIT
#include "Benchmarks.h"
#include "KoraStatistics.h"
#include "SyncCounter.h"
#include "history/Store.h"

#include <QTemporaryDir>

#include <dlfcn.h>
#include <sqlite3.h>

#include <memory>

namespace
{

/// A function of the real libsdk. The plug-in in this program calls those of
/// the same names that work on memory.
template <typename Function>
Function *sdkFunction(const char *name)
{
    static void *const library = dlopen(SDK_FILE, RTLD_NOW | RTLD_LOCAL);
    void *const function = library ? dlsym(library, name) : nullptr;
    if (!function)
        qFatal("%s", dlerror());
    return reinterpret_cast<Function *>(function);
}

std::vector<history::Connection> connections(int count)
{
    std::vector<history::Connection> result(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        history::Connection &connection = result[static_cast<std::size_t>(i)];
        connection.profile = "internet" + std::to_string(i % 7) + ".example";
        connection.startUtc = 1293836400 + std::int64_t{i} * 3600;
        connection.connectedSeconds = 30 + i % 3000;
        connection.endUtc = connection.startUtc + connection.connectedSeconds;
        connection.uploadedBytes = i * 104729LL % 3000000000LL;
        connection.downloadedBytes = i * 1299709LL % 30000000000LL;
        connection.interfaceName = "ppp0";
    }
    return result;
}

/// A real store of so many connections, named as the SDK's while it lives.
class SampleStore
{
public:
    explicit SampleStore(int count)
        : m_path(m_folder.filePath(QStringLiteral("connections.db")).toStdString())
    {
        qputenv("NETINFO_STORE", m_path.c_str());
        auto store = history::Store::openOrCreate(m_path);
        if (!store || !store.value().addMissing(connections(count)))
            qFatal("The store in %s cannot be filled.", m_path.c_str());
    }
    ~SampleStore() { qunsetenv("NETINFO_STORE"); }
    Q_DISABLE_COPY(SampleStore)

    const std::string &path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    std::string m_path;
};

_KORA_ST_CONNRECORD *handOut(int expectedCount)
{
    static auto *const getAll =
        sdkFunction<decltype(KORA_Statistics_GetAllConnRecord)>("KORA_Statistics_GetAllConnRecord");
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = 0;
    if (getAll(&records, &count) != 0 || count != expectedCount)
        qFatal("libsdk handed out %d of %d records.", count, expectedCount);
    return records;
}

void giveBack(_KORA_ST_CONNRECORD *records)
{
    static auto *const release = sdkFunction<decltype(KORA_Statistics_ReleaseConnRecord)>(
        "KORA_Statistics_ReleaseConnRecord");
    release(records);
}

void listThroughSdk(benchmark::State &state, int count)
{
    const SampleStore store(count);
    giveBack(handOut(count)); // opens the store
    for ([[maybe_unused]] auto iteration : state) {
        _KORA_ST_CONNRECORD *records = nullptr;
        measure(state, [&] { records = handOut(count); });
        giveBack(records);
    }
}

/// The rows of the list in its order, every value read.
void stepThroughRows(sqlite3 *database, int expectedCount)
{
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(database,
                       "SELECT key, profile, start_utc, end_utc, connected_seconds, uploaded_bytes,"
                       " downloaded_bytes, ending, interface_name FROM connection"
                       " ORDER BY start_utc, key",
                       -1, &statement, nullptr);
    int count = 0;
    for (; sqlite3_step(statement) == SQLITE_ROW; ++count) {
        for (const int column : {0, 2, 3, 4, 5, 6})
            benchmark::DoNotOptimize(sqlite3_column_int64(statement, column));
        for (const int column : {1, 7, 8})
            benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
    }
    sqlite3_finalize(statement);
    if (count != expectedCount)
        qFatal("SQLite stepped through %d of %d rows.", count, expectedCount);
}

void listWithSqlite(benchmark::State &state, int count)
{
    const SampleStore store(count);
    sqlite3 *database = nullptr;
    sqlite3_open_v2(store.path().c_str(), &database, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX,
                    nullptr);
    stepThroughRows(database, count);
    for ([[maybe_unused]] auto iteration : state)
        measure(state, [&] { stepThroughRows(database, count); });
    sqlite3_close(database);
}

void removeOneByOne(benchmark::State &state, int count)
{
    static auto *const remove = sdkFunction<decltype(KORA_Statistics_ConnRecord_RemoveRecord)>(
        "KORA_Statistics_ConnRecord_RemoveRecord");
    for ([[maybe_unused]] auto iteration : state) {
        const SampleStore store(count);
        giveBack(handOut(count));
        const long syncsBefore = syncsSoFar();
        measureElapsed(state, [&] {
            for (int i = count - 1; i >= 0; --i) {
                if (remove(i) != 0)
                    qFatal("libsdk did not remove the record at %d.", i);
            }
        });
        const long syncs = syncsSoFar() - syncsBefore;
        if (syncs >= count)
            qFatal("libsdk waited %ld times for the disk to remove %d records.", syncs, count);
        state.counters["syncs"] = static_cast<double>(syncs);
    }
}

void registerStore(const std::string &name, void (*work)(benchmark::State &, int), int records,
                   int iterations)
{
    registerOnce(name + "/" + std::to_string(records), [work, records](benchmark::State &state) {
        work(state, records);
    })->Iterations(iterations);
}

} // namespace

void registerStoreBenchmarks(const Sizes &sizes)
{
    registerStore("list/libsdk", listThroughSdk, sizes.storeRecords, 5);
    registerStore("list/sqlite", listWithSqlite, sizes.storeRecords, 5);
    registerStore("removal/libsdk", removeOneByOne, sizes.storeRemovals, 1);
}
