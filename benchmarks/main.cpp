// SPDX-License-Identifier: MIT
#include "Benchmarks.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstring>

namespace
{

const Sizes wholeSizes = {100,  {1000, 10000, 100000},     1000000, 10000, 100000,
                          1000, {1000, 2000, 5000, 10000}, 100000,  10000};
const Sizes smallSizes = {1, {10, 100}, 1000, 100, 200, 10, {10, 20}, 100, 20};

/// Takes "--small" out of the arguments, which asks for every benchmark at a
/// size that only shows that it works.
Sizes sizesOf(int &argc, char **argv)
{
    if (argc < 2 || std::strcmp(argv[1], "--small") != 0)
        return wholeSizes;
    std::memmove(argv + 1, argv + 2, sizeof(char *) * static_cast<std::size_t>(argc - 1));
    --argc;
    return smallSizes;
}

} // namespace

int main(int argc, char **argv)
{
    // The same everywhere: no display, and a time zone with daylight saving but where a
    // benchmark takes it away.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "Europe/Berlin");
    const Sizes sizes = sizesOf(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;

    const QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    benchmark::AddCustomContext("qt", qVersion());
    registerConversionBenchmark(sizes);
    registerUnloggedConversionBenchmark(sizes);
    registerPlainConversionBenchmark(sizes);
    registerHistoryBenchmarks(sizes);
    registerLogBenchmarks(sizes);
    registerDeletionBenchmarks(sizes);
    registerStoreBenchmarks(sizes);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
