// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <chrono>
#include <ctime>
#include <string>
#include <vector>

/// How much the benchmarks work on; without display, in one run of each.
struct Sizes {
    int conversions;              ///< of 500 records each
    std::vector<int> historyRows; ///< of fill, Init and reload, and of the other tables
    int hugeHistoryRows;          ///< of the plug-in's fill alone
    int loggedRecords;            ///< of Init with debug output
    int deletionRows;             ///< of the table that rows are deleted from
    int scatteredRows;            ///< deleted, spread evenly over the table
    std::vector<int> blockRows;   ///< deleted, one below the other
    int storeRecords;
    int storeRemovals;
};

void registerConversionBenchmark(const Sizes &sizes);
void registerUnloggedConversionBenchmark(const Sizes &sizes);
void registerPlainConversionBenchmark(const Sizes &sizes);
void registerHistoryBenchmarks(const Sizes &sizes);
void registerLogBenchmarks(const Sizes &sizes);
void registerDeletionBenchmarks(const Sizes &sizes);
void registerStoreBenchmarks(const Sizes &sizes);

/// Times `work` as one iteration; what comes before and after costs nothing.
/// The time is that of the processor, which other programs hardly change.
template <typename Work>
void measure(benchmark::State &state, Work work)
{
    const auto now = [] {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    state.SetIterationTime(now() - start);
}

/// The same, in time on the clock: where a disk is waited for.
template <typename Work>
void measureElapsed(benchmark::State &state, Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(elapsed.count());
}

/// What every benchmark of a prepared state has in common: `work` is timed by
/// measure(), large preparations are not repeated to fill a second, and memory
/// is not scattered by the benchmark before.
template <typename Work>
benchmark::internal::Benchmark *registerOnce(const std::string &name, Work work)
{
    const auto workAnew = [work](benchmark::State &state) {
        malloc_trim(0);
        work(state);
    };
    return benchmark::RegisterBenchmark(name.c_str(), workAnew)
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

/// For the conversion of a few records, soon done, where small differences count.
inline void registerConversion(const char *name, void (*work)(benchmark::State &),
                               const Sizes &sizes)
{
    benchmark::RegisterBenchmark(name, work)
        ->UseManualTime()
        ->Iterations(sizes.conversions)
        ->Repetitions(21)
        ->Unit(benchmark::kMicrosecond);
}
