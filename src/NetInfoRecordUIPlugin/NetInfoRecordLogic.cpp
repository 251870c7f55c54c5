// SPDX-License-Identifier: MIT
#include "NetInfoRecordLogic.h"

#include "KoraStatistics.h"
#include "Log.h"
#include "SdkText.h"
#include "ShortText.h"
#include "TimeText.h"
#include "VolumeText.h"

#include <algorithm>

using Log::now;

namespace
{

const char sourcePath[] = "../../src/NetInfoRecordUIPlugin/NetInfoRecordLogic";

double kilobytes(double bytes)
{
    return bytes * 0.0009765625;
}

/// Negative values get the leading zero too ("0-5"); that is meant.
void addTwoDigits(ShortText &text, qint64 value)
{
    if (value <= 9)
        text.add('0');
    text.add(value);
}

} // namespace

NetInfoRecordLogic *NetInfoRecordLogic::m_pNetInfoRecordLogicInst = nullptr;

NetInfoRecordLogic::NetInfoRecordLogic()
{
    Log::line("Start: %s: %s: %s %d", now, sourcePath, __func__, 34);
    Log::line("End  : %s: %s: %s %d", now, sourcePath, __func__, 36);
}

NetInfoRecordLogic::~NetInfoRecordLogic()
{
    Log::line("Start: %s: %s: %s %d", now, sourcePath, __func__, 58);
    Log::line("End  : %s: %s: %s %d", now, sourcePath, __func__, 60);
}

NetInfoRecordLogic *NetInfoRecordLogic::Instance()
{
    Log::line("Start: %s: %s: %s %d", now, sourcePath, __func__, 85);
    if (!m_pNetInfoRecordLogicInst)
        m_pNetInfoRecordLogicInst = new NetInfoRecordLogic;
    Log::line("End  : %s: %s: %s %d", now, sourcePath, __func__, 91);
    return m_pNetInfoRecordLogicInst;
}

void NetInfoRecordLogic::Destroy()
{
    Log::line("Start  : %s: %s: %s %d", now, sourcePath, __func__, 111);
    delete m_pNetInfoRecordLogicInst;
    m_pNetInfoRecordLogicInst = nullptr;
    Log::line("End  : %s: %s: %s %d", now, sourcePath, __func__, 115);
}

bool NetInfoRecordLogic::GetLastConnectedRecord()
{
    Log::line("Start: %s: %s: %s %d", now, sourcePath, __func__, 169);
    _KORA_ST_CONNRECORD record = {};
    Log::line("=======> %s: %s: %s: %d: Calling KORA_Statistics_GetLastConnRecord()", now,
              sourcePath, __func__, 177);
    const int status = KORA_Statistics_GetLastConnRecord(&record);
    Log::line("<======= %s: %s: %s: %d: Finished KORA_Statistics_GetLastConnRecord(), retVal=%ld",
              now, sourcePath, __func__, 182, static_cast<long>(status));
    const bool succeeded = status == 0;
    if (succeeded)
        convertFields(record, m_lastRecord);
    Log::line("End: %s: %s: %s %d", now, sourcePath, __func__, 233);
    return succeeded;
}

bool NetInfoRecordLogic::GetAllConnectedRecords()
{
    Log::line("Start: %s: %s: %s %d", now, sourcePath, __func__, 253);
    _KORA_ST_CONNRECORD *records = nullptr;
    int count = 0;
    Log::line("=======> %s: %s: %s: %d: Calling KORA_Statistics_GetAllConnRecord()", now,
              sourcePath, __func__, 263);
    const int status = KORA_Statistics_GetAllConnRecord(&records, &count);
    Log::line("<======= %s: %s: %s: %d: Finished KORA_Statistics_GetAllConnRecord(), retVal=%ld",
              now, sourcePath, __func__, 269, static_cast<long>(status));
    const bool succeeded = status == 0;
    if (succeeded) {
        // A null array has no second element to go on to: its first one is
        // reported as missing, and that is all.
        const int convertible = records ? count : std::min(count, 1);
        for (int i = 0; i < convertible; ++i)
            populateSDKtoUIStructure(i, records ? records + i : nullptr);
#ifdef NETINFORECORD_WIRE_STATISTICS
        m_totals.emplace();
        for (int i = 0; records && i < count; ++i)
            m_totals->add(records[i]);
        m_monthOfRows = QDate();
        updateStatistics(QDate::currentDate());
#endif
    }
    KORA_Statistics_ReleaseConnRecord(records);
    Log::line("Exit: %s: %s: %s %d", now, sourcePath, __func__, 282);
    return succeeded;
}

void NetInfoRecordLogic::populateSDKtoUIStructure(int id, const _KORA_ST_CONNRECORD *record)
{
    Log::line("Enter: %s: %s: %s %d", now, sourcePath, __func__, 302);
    if (Log::isMissing(record, sourcePath, __func__, 304))
        return;
    auto *converted = new ConnectionRecord;
    converted->m_nRecordId = id;
    convertFields(*record, *converted);
    m_records.insert(id, converted);
    Log::line("Exit: %s: %s: %s %d", now, sourcePath, __func__, 352);
}

void NetInfoRecordLogic::convertFields(const _KORA_ST_CONNRECORD &from, ConnectionRecord &to)
{
    to.m_strProfileName = SdkText::bounded(from.szProfileName);
    to.m_strDownloaded = TransformUnits(kilobytes(SdkText::real(from.szDownloadBytes)));
    to.m_strEndTime = TimeText::of(SdkText::seconds(from.szEndTime));
    to.m_strExtraText2 = SdkText::bounded(from.szExtraText2);
    to.m_strStartTime = TimeText::of(SdkText::seconds(from.szStartTime));
    to.m_strExtraText1 = SdkText::bounded(from.szExtraText1);
    to.m_strUploaded = TransformUnits(kilobytes(SdkText::real(from.szUploadBytes)));
    convertTimeToString(SdkText::integer(from.szDuration), to.m_strConnectedTime);
}

bool NetInfoRecordLogic::DeleteRecord(int id)
{
    Log::line("Enter: %s: %s: %s %d", now, sourcePath, __func__, 370);
    Log::line("Start: %s: %s: %s %d", now, sourcePath, __func__, 372);
    Log::line("=======> %s: %s: %s: %d: Calling KORA_Statistics_ConnRecord_RemoveRecord ()", now,
              sourcePath, __func__, 377);
    const int status = KORA_Statistics_ConnRecord_RemoveRecord(id);
    // The blank missing after "Finished" is part of the line, here and below.
    Log::line("<======= %s: %s: %s: %d: FinishedKORA_Statistics_ConnRecord_RemoveRecord (), "
              "retVal=%ld",
              now, sourcePath, __func__, 383, static_cast<long>(status));
    Log::line("End: %s: %s: %s %d", now, sourcePath, __func__, 390);
    return status == 0;
}

bool NetInfoRecordLogic::DeleteAll()
{
    Log::line("Start: %s: %s: %s %d", now, sourcePath, __func__, 410);
    Log::line("=======> %s: %s: %s: %d: Calling KORA_Statistics_ConnRecord_RemoveRecord ()", now,
              sourcePath, __func__, 415);
    bool anyRemoved = false;
    const auto count = m_records.size();
    for (auto i = count; i > 0; --i) {
        // Always index 0, of which the SDK takes the first record that is left.
        const int status = KORA_Statistics_ConnRecord_RemoveRecord(0);
        Log::line("<======= %s: %s: %s: %d: FinishedKORA_Statistics_ConnRecord_RemoveRecord (), "
                  "retVal=%ld",
                  now, sourcePath, __func__, 423, static_cast<long>(status));
        anyRemoved = anyRemoved || status == 0;
    }
    Log::line("End: %s: %s: %s %d", now, sourcePath, __func__, 431);
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
    Log::line("%s: %s: %s: Entered", now, sourcePath, __func__);
    const qint64 rest = seconds % 3600;
    ShortText text;
    addTwoDigits(text, seconds / 3600);
    text.add(':');
    addTwoDigits(text, rest / 60);
    text.add(':');
    addTwoDigits(text, rest % 60);
    out = text.toString();
    Log::line("%s: %s: %s %d: Exit", now, sourcePath, __func__, 457);
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
