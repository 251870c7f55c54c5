// SPDX-License-Identifier: MIT
#include "Benchmarks.h"
#include "ConnectionRecord.h"
#include "MemorySdk.h"
#include "NetInfoRecordLogic.h"
#include "SdkText.h"

#include <QDateTime>
#include <QHash>

namespace
{

QString timeText(quint32 secondsSinceEpoch)
{
    return QDateTime::fromSecsSinceEpoch(secondsSinceEpoch)
        .toString(QStringLiteral("yyyyMMddhhmmss"));
}

template <std::size_t Size>
double kilobytes(const char (&field)[Size])
{
    return SdkText::real(field) * 0.0009765625;
}

/// What the record store does, but with Qt's own way from a number of
/// seconds to a text.
ConnectionRecord *converted(int id, const _KORA_ST_CONNRECORD &from, NetInfoRecordLogic &store)
{
    auto *to = new ConnectionRecord;
    to->m_nRecordId = id;
    to->m_strProfileName = SdkText::bounded(from.szProfileName);
    to->m_strDownloaded = store.TransformUnits(kilobytes(from.szDownloadBytes));
    to->m_strEndTime = timeText(SdkText::seconds(from.szEndTime));
    to->m_strExtraText2 = SdkText::bounded(from.szExtraText2);
    to->m_strStartTime = timeText(SdkText::seconds(from.szStartTime));
    to->m_strExtraText1 = SdkText::bounded(from.szExtraText1);
    to->m_strUploaded = store.TransformUnits(kilobytes(from.szUploadBytes));
    store.convertTimeToString(SdkText::integer(from.szDuration), to->m_strConnectedTime);
    return to;
}

void convertPlainly(benchmark::State &state)
{
    const auto samples = MemorySdk::samples(500);
    NetInfoRecordLogic *store = NetInfoRecordLogic::Instance();
    for ([[maybe_unused]] auto iteration : state) {
        measure(state, [&] {
            for (std::size_t i = 0; i < samples.size(); ++i) {
                const int id = static_cast<int>(i);
                store->m_records.insert(id, converted(id, samples[i], *store));
            }
        });
        qDeleteAll(store->m_records);
        store->m_records.clear();
    }
    state.counters["records"] = static_cast<double>(samples.size());
    NetInfoRecordLogic::Destroy();
}

} // namespace

void registerPlainConversionBenchmark(const Sizes &sizes)
{
    registerConversion("conversion/plain", convertPlainly, sizes);
}
