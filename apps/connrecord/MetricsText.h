// SPDX-License-Identifier: MIT
#pragma once

#include "history/StoreReports.h"
#include "usage/StandingPlan.h"

#include <QByteArray>

#include <array>
#include <vector>

namespace connrecord
{

/// How a history stands, for a program that watches it.
struct Metrics {
    std::vector<history::ConnectionSum> sums;
    std::vector<usage::StandingPlan> plans;
    bool isRecording = false;
};

/// A way to write metrics. The two that there are differ in what they call a counter: no text
/// suits readers of both.
struct MetricsFormat {
    const char *name;
    const char *help;
    bool isOpenMetrics;
};

constexpr std::array<MetricsFormat, 2> metricsFormats = {{
    {"prometheus", "the text that Prometheus' textfile collector and promtool read", false},
    {"openmetrics", "for readers of OpenMetrics 1.0", true},
}};

/// The metrics in a stable order; integers are exact.
QByteArray toText(const Metrics &metrics, const MetricsFormat &format);

} // namespace connrecord
