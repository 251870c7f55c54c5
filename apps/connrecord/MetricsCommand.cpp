// SPDX-License-Identifier: MIT
#include "MetricsCommand.h"

#include "Output.h"
#include "StoreResult.h"
#include "recorder/RecorderLock.h"

#include <QFile>

#include <ctime>

namespace connrecord
{

void writeMetrics(const CommonRequest &common, const MetricsRequest &request)
{
    checkIsNotOfHistory(request.outputPath, common.storePath);
    Output output(request.outputPath, common::Audience::Everybody);
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    Metrics metrics;
    metrics.sums = valueOrFailure(history::connectionSums(common.storePath));
    metrics.plans = valueOrFailure(usage::standingPlans(store, std::time(nullptr)));
    metrics.isRecording =
        recorder::isRecordedInto(QFile::decodeName(QByteArray::fromStdString(common.storePath)));
    output.write(toText(metrics, *request.format));
}

} // namespace connrecord
