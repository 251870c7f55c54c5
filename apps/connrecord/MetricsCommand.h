// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "MetricsText.h"
#include "Output.h"

#include <string>

namespace connrecord
{

struct MetricsRequest {
    const MetricsFormat *format = &metricsFormats.front();
    std::string outputPath = standardOutputPath;
};

/// Tells a program that watches machines how the history stands. Throws Failure.
void writeMetrics(const CommonRequest &common, const MetricsRequest &request);

} // namespace connrecord
