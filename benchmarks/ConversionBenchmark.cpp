// SPDX-License-Identifier: MIT
// Compiled twice: for the plug-in's own record store, and for one whose log
// lines are compiled out.
#include "Benchmarks.h"
#include "MemorySdk.h"
#include "NetInfoRecordLogic.h"

namespace
{

void convertRecords(benchmark::State &state)
{
    const auto samples = MemorySdk::samples(500);
    NetInfoRecordLogic *store = NetInfoRecordLogic::Instance();
    for ([[maybe_unused]] auto iteration : state) {
        measure(state, [&] {
            for (std::size_t i = 0; i < samples.size(); ++i)
                store->populateSDKtoUIStructure(static_cast<int>(i), &samples[i]);
        });
        qDeleteAll(store->m_records);
        store->m_records.clear();
    }
    state.counters["records"] = static_cast<double>(samples.size());
    NetInfoRecordLogic::Destroy();
}

} // namespace

void registerConversionBenchmark(const Sizes &sizes)
{
    registerConversion(CONVERSION_NAME, convertRecords, sizes);
}
