// SPDX-License-Identifier: MIT
#include "BareTable.h"
#include "Benchmarks.h"
#include "ConnectionHistoryDlg.h"
#include "LimitTable.h"
#include "MemorySdk.h"
#include "NetInfoRecordLogic.h"
#include "PluginWindow.h"

#include <malloc.h>

#include <functional>

namespace
{

std::size_t memoryInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// Fills the record store with samples, without a table that shows them.
const QHash<int, ConnectionRecord *> &convertSamples(int count)
{
    MemorySdk::setRecords(MemorySdk::samples(count));
    NetInfoRecordLogic::Instance()->GetAllConnectedRecords();
    MemorySdk::setRecords({});
    return NetInfoRecordLogic::Instance()->m_records;
}

/// Samples that no window of the plug-in ever shows, which would own them then.
class ConvertedRecords
{
public:
    explicit ConvertedRecords(int count)
        : all(convertSamples(count))
    {
    }
    ~ConvertedRecords()
    {
        qDeleteAll(all);
        NetInfoRecordLogic::Destroy();
    }
    Q_DISABLE_COPY(ConvertedRecords)

    const QHash<int, ConnectionRecord *> all;
};

/// Times `fill`, and notes how much memory each row has taken.
template <typename Fill>
void measureFill(benchmark::State &state, int rows, Fill fill)
{
    const std::size_t before = memoryInUse();
    measure(state, fill);
    state.counters["bytes_per_row"] = static_cast<double>(memoryInUse() - before) / rows;
}

void fillPlugin(benchmark::State &state, int rows)
{
    ConnectionHistoryDlg *window = ConnectionHistoryDlg::Instance();
    window->uiSetText();
    for ([[maybe_unused]] auto iteration : state) {
        convertSamples(rows);
        measureFill(state, rows, [&] { window->populateTable(); });
        window->ReleaseTable();
        NetInfoRecordLogic::Instance()->forgetRecords();
        window->populateTable();
    }
    ConnectionHistoryDlg::Destroy();
}

void fillLimit(benchmark::State &state, int rows)
{
    const ConvertedRecords records(rows);
    LimitTable table(records.all);
    for ([[maybe_unused]] auto iteration : state) {
        measureFill(state, rows, [&] { table.fill(); });
        table.clear();
    }
}

void fillBare(benchmark::State &state, int rows)
{
    const ConvertedRecords records(rows);
    BareTable table;
    for ([[maybe_unused]] auto iteration : state) {
        measureFill(state, rows, [&] { table.fill(records.all); });
        table.clear();
    }
}

void init(benchmark::State &state, int rows)
{
    for ([[maybe_unused]] auto iteration : state) {
        PluginWindow window(rows);
        measure(state, [&] { window.init(); });
    }
}

void reload(benchmark::State &state, int rows)
{
    PluginWindow window(rows);
    window.init();
    window.show();
    for ([[maybe_unused]] auto iteration : state)
        measure(state, [&] { window.reload(); });
}

using Work = std::function<void(benchmark::State &, int)>;

/// The same where the environment names no time zone, as on most desktops: then
/// /etc/localtime decides, and the C library looks whether it is still the same.
Work withoutZone(const Work &work)
{
    return [work](benchmark::State &state, int rows) {
        const QByteArray zone = qgetenv("TZ");
        qunsetenv("TZ");
        work(state, rows);
        qputenv("TZ", zone);
    };
}

void registerRows(const std::string &name, const Work &work, int rows)
{
    // Small tables are filled several times: one fill is soon over.
    const int iterations = rows < 10000 ? 10 : 1;
    registerOnce(name + "/" + std::to_string(rows), [work, rows](benchmark::State &state) {
        work(state, rows);
    })->Iterations(iterations);
}

} // namespace

void registerHistoryBenchmarks(const Sizes &sizes)
{
    for (const int rows : sizes.historyRows) {
        registerRows("fill/bare", fillBare, rows);
        registerRows("fill/limit", fillLimit, rows);
        registerRows("fill/plug-in", fillPlugin, rows);
        registerRows("fill/plug-in/no-zone", withoutZone(fillPlugin), rows);
        registerRows("init", init, rows);
        registerRows("init/no-zone", withoutZone(init), rows);
        registerRows("reload", reload, rows);
    }
    registerRows("fill/plug-in", fillPlugin, sizes.hugeHistoryRows);
}
