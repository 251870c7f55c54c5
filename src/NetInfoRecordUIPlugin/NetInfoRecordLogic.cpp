// SPDX-License-Identifier: MIT
#include "NetInfoRecordLogic.h"

#include "KoraStatistics.h"
#include "LocalZone.h"
#include "Log.h"
#include "SdkText.h"
#include "ShortText.h"
#include "TimeText.h"
#include "VolumeText.h"

#include <algorithm>
#include <utility>

using Log::Details;

namespace
{

constexpr Log::Form request{"Start: %s: %s: %s %d", "End: %s: %s: %s %d", Details::TimeThenPlace};
constexpr Log::Form fetch{"Start: %s: %s: %s %d", "Exit: %s: %s: %s %d", Details::TimeThenPlace};
constexpr Log::Form conversion{"Enter: %s: %s: %s %d", "Exit: %s: %s: %s %d",
                               Details::TimeThenPlace};
constexpr Log::Form deletion{"Enter: %s: %s: %s %d", "End: %s: %s: %s %d", Details::TimeThenPlace};

// The blank missing after "Finished" is part of the line.
constexpr char removing[] =
    "=======> %s: %s: %s: %d: Calling KORA_Statistics_ConnRecord_RemoveRecord ()";
constexpr char removed[] =
    "<======= %s: %s: %s: %d: FinishedKORA_Statistics_ConnRecord_RemoveRecord (), retVal=%ld";

double kilobytes(double bytes)
{
    return bytes * 0.0009765625;
}

/// Negative values get the leading zero too ("0-5"); that is meant.
void addTwoDigits(ShortText &text, qint64 value)
{
    if (value >= 0 && value <= 99)
        return text.addTwoDigits(static_cast<int>(value));
    if (value < 0)
        text.add('0');
    text.add(value);
}

} // namespace

NetInfoRecordLogic *NetInfoRecordLogic::m_pNetInfoRecordLogicInst = nullptr;

NetInfoRecordLogic::NetInfoRecordLogic()
{
    const Log::Operation log(Log::instance, Log::netInfoRecordLogic, __func__);
    log.entry(34);
    log.exit(36);
}

NetInfoRecordLogic::~NetInfoRecordLogic()
{
    const Log::Operation log(Log::instance, Log::netInfoRecordLogic, __func__);
    log.entry(58);
    log.exit(60);
}

NetInfoRecordLogic *NetInfoRecordLogic::Instance()
{
    const Log::Operation log(Log::instance, Log::netInfoRecordLogic, __func__);
    log.entry(85);
    if (!m_pNetInfoRecordLogicInst)
        m_pNetInfoRecordLogicInst = new NetInfoRecordLogic;
    log.exit(91);
    return m_pNetInfoRecordLogicInst;
}

void NetInfoRecordLogic::Destroy()
{
    const Log::Operation log(Log::destroy, Log::netInfoRecordLogic, __func__);
    log.entry(111);
    delete m_pNetInfoRecordLogicInst;
    m_pNetInfoRecordLogicInst = nullptr;
    log.exit(115);
}

bool NetInfoRecordLogic::GetLastConnectedRecord()
{
    const Log::Operation log(request, Log::netInfoRecordLogic, __func__);
    log.entry(169);
    _KORA_ST_CONNRECORD record = {};
    log.line("=======> %s: %s: %s: %d: Calling KORA_Statistics_GetLastConnRecord()", 177);
    const int status = KORA_Statistics_GetLastConnRecord(&record);
    log.line("<======= %s: %s: %s: %d: Finished KORA_Statistics_GetLastConnRecord(), retVal=%ld",
             182, static_cast<long>(status));
    const bool succeeded = status == 0;
    if (succeeded)
        convertFields(record, m_lastRecord);
    log.exit(233);
    return succeeded;
}

bool NetInfoRecordLogic::GetAllConnectedRecords()
{
    const Log::Operation log(fetch, Log::netInfoRecordLogic, __func__);
    log.entry(253);
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = 0;
    log.line("=======> %s: %s: %s: %d: Calling KORA_Statistics_GetAllConnRecord()", 263);
    const int status = KORA_Statistics_GetAllConnRecord(&records, &count);
    log.line("<======= %s: %s: %s: %d: Finished KORA_Statistics_GetAllConnRecord(), retVal=%ld",
             269, static_cast<long>(status));
    const bool succeeded = status == 0;
    if (succeeded)
        convertRecords(records, count);
    KORA_Statistics_ReleaseConnRecord(records);
    log.exit(282);
    return succeeded;
}

void NetInfoRecordLogic::convertRecords(const _KORA_ST_CONNRECORD *records, int count)
{
    const LocalZone::Hold zone;
#ifdef NETINFORECORD_WIRE_STATISTICS
    AccumulateTotals totals;
#endif
    // A null array has no second element: its first one is reported as missing,
    // and that is all.
    const int convertible = records ? count : std::min(count, 1);
    for (int i = 0; i < convertible; ++i) {
        const _KORA_ST_CONNRECORD *const record = records ? records + i : nullptr;
        populateSDKtoUIStructure(i, record);
#ifdef NETINFORECORD_WIRE_STATISTICS
        // At once, while the record is in the processor's caches.
        if (record) {
            const ConnectionRecord &shown = *m_records.value(i);
            totals.add(*record, shown.m_strProfileName, shown.m_strStartTime);
        }
#endif
    }
#ifdef NETINFORECORD_WIRE_STATISTICS
    m_totals = std::move(totals);
    m_monthOfRows = QDate();
#endif
}

void NetInfoRecordLogic::populateSDKtoUIStructure(int id, const _KORA_ST_CONNRECORD *record)
{
    const Log::Operation log(conversion, Log::netInfoRecordLogic, __func__);
    log.entry(302);
    if (log.isMissing(record, 304))
        return;
    auto *converted = new ConnectionRecord;
    converted->m_nRecordId = id;
    convertFields(*record, *converted);
    m_records.insert(id, converted);
    log.exit(352);
}

void NetInfoRecordLogic::convertFields(const _KORA_ST_CONNRECORD &from, ConnectionRecord &to)
{
    to.m_strProfileName = m_recurringTexts.of(from.szProfileName);
    to.m_strDownloaded = TransformUnits(kilobytes(SdkText::real(from.szDownloadBytes)));
    to.m_strEndTime = TimeText::of(SdkText::seconds(from.szEndTime));
    to.m_strExtraText2 = m_recurringTexts.of(from.szExtraText2);
    to.m_strStartTime = TimeText::of(SdkText::seconds(from.szStartTime));
    to.m_strExtraText1 = m_recurringTexts.of(from.szExtraText1);
    to.m_strUploaded = TransformUnits(kilobytes(SdkText::real(from.szUploadBytes)));
    convertTimeToString(SdkText::integer(from.szDuration), to.m_strConnectedTime);
}

bool NetInfoRecordLogic::DeleteRecord(int id)
{
    const Log::Operation log(deletion, Log::netInfoRecordLogic, __func__);
    log.entry(370);
    log.line("Start: %s: %s: %s %d", 372);
    log.line(removing, 377);
    const int status = KORA_Statistics_ConnRecord_RemoveRecord(id);
    log.line(removed, 383, static_cast<long>(status));
    log.exit(390);
    return status == 0;
}

bool NetInfoRecordLogic::DeleteAll()
{
    const Log::Operation log(request, Log::netInfoRecordLogic, __func__);
    log.entry(410);
    log.line(removing, 415);
    bool anyRemoved = false;
    const auto count = m_records.size();
    for (auto i = count; i > 0; --i) {
        // Always index 0, of which the SDK takes the first record that is left.
        const int status = KORA_Statistics_ConnRecord_RemoveRecord(0);
        log.line(removed, 423, static_cast<long>(status));
        anyRemoved = anyRemoved || status == 0;
    }
    log.exit(431);
    return anyRemoved;
}

void NetInfoRecordLogic::forgetRecords()
{
    m_records = {};
    m_accumulateRecords = {};
#ifdef NETINFORECORD_WIRE_STATISTICS
    m_totals.reset();
#endif
}

ConnectionRecord *NetInfoRecordLogic::takeRecord(int id)
{
#ifdef NETINFORECORD_WIRE_STATISTICS
    if (m_totals && m_records.contains(id)) {
        m_totals->remove(id);
        m_monthOfRows = QDate();
    }
#endif
    return m_records.take(id);
}

#ifdef NETINFORECORD_WIRE_STATISTICS
void NetInfoRecordLogic::updateStatistics(const QDate &today)
{
    const QDate month(today.year(), today.month(), 1);
    if (!m_totals || m_monthOfRows == month)
        return;
    m_accumulateRecords = m_totals->rows(today);
    m_monthOfRows = month;
}
#endif

void NetInfoRecordLogic::convertTimeToString(qint64 seconds, QString &out)
{
    Log::line("%s: %s: %s: Entered", Log::now, Log::netInfoRecordLogic, __func__);
    const qint64 rest = seconds % 3600;
    ShortText text;
    addTwoDigits(text, seconds / 3600);
    text.add(':');
    addTwoDigits(text, rest / 60);
    text.add(':');
    addTwoDigits(text, rest % 60);
    out = text.toString();
    Log::line("%s: %s: %s %d: Exit", Log::now, Log::netInfoRecordLogic, __func__, 457);
}

QString NetInfoRecordLogic::TransformUnits(double kilobytes)
{
    // The unit is chosen before rounding, so 1023.999 KB stays "1024.00 KB".
    const char *unit = " KB";
    if (kilobytes >= 1024.0 && kilobytes < 1048576.0) {
        kilobytes *= 0.0009765625;
        unit = " MB";
    } else if (kilobytes >= 1048576.0) {
        kilobytes *= 9.5367431640625e-07;
        unit = " GB";
    }
    return VolumeText::of(kilobytes, unit);
}
