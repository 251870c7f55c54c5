// SPDX-License-Identifier: MIT
#pragma once

#include "AccumulateDialogRecord.h"
#include "ConnectionRecord.h"
#include "RecurringTexts.h"
#ifdef NETINFORECORD_WIRE_STATISTICS
#    include "AccumulateTotals.h"

#    include <QDate>

#    include <optional>
#endif

#include <QHash>
#include <QString>
#include <QVector>

struct _KORA_ST_CONNRECORD;

/// The record store: the plug-in's only way to the statistics SDK and the cache
/// of what it handed out last. One instance per process, GUI thread only.
class NetInfoRecordLogic
{
public:
    /// The single instance, made on the first call.
    static NetInfoRecordLogic *Instance();
    /// The single instance, null if there is none.
    static NetInfoRecordLogic *current() { return m_pNetInfoRecordLogicInst; }
    /// Ends the single instance if there is one.
    static void Destroy();

    /// Adds every record of the SDK to the map, keyed by its position; false,
    /// with the map as it was, when the SDK reports a failure. The caller has
    /// emptied the map: a key that is already there loses its record.
    bool GetAllConnectedRecords();
    /// Refreshes the last-record slot; false, with the slot as it was, when the
    /// SDK has no record to give.
    bool GetLastConnectedRecord();
    /// Converts one record of the SDK and puts it into the map under `id`.
    void populateSDKtoUIStructure(int id, const _KORA_ST_CONNRECORD *record);

    /// Removes one record in the SDK; the map is the caller's to change.
    bool DeleteRecord(int id);
    /// Removes as many records in the SDK as the map holds; true if at least one
    /// went. The map is the caller's to empty.
    bool DeleteAll();

    /// Empties map and rows of statistics. Frees no record: whoever empties the
    /// table has done so, or the records live on in it.
    void forgetRecords();
    /// Takes one record out of map and statistics; it is the caller's now. Null if the
    /// map has none.
    ConnectionRecord *takeRecord(int id);
#ifdef NETINFORECORD_WIRE_STATISTICS
    /// Brings the rows of statistics to this day and to the records that are left.
    void updateStatistics(const QDate &today);
#endif

    /// Writes seconds as "HH:MM:SS" into `out`; hours grow without limit.
    void convertTimeToString(qint64 seconds, QString &out);
    /// Kilobytes as text with two decimals and the unit KB, MB or GB.
    QString TransformUnits(double kilobytes);

    // Read and edited directly by the history window, which also frees the
    // records: the map owns none of them.
    QHash<int, ConnectionRecord *> m_records;
    QVector<AccumulateDialogRecord> m_accumulateRecords;
    ConnectionRecord m_lastRecord;

private:
    NetInfoRecordLogic();
    ~NetInfoRecordLogic();
    Q_DISABLE_COPY(NetInfoRecordLogic)

    void convertRecords(const _KORA_ST_CONNRECORD *records, int count);
    void convertFields(const _KORA_ST_CONNRECORD &from, ConnectionRecord &to);

    RecurringTexts m_recurringTexts;
#ifdef NETINFORECORD_WIRE_STATISTICS
    std::optional<AccumulateTotals> m_totals; // of the last fetch
    QDate m_monthOfRows;                      // invalid: the rows are out of date
#endif

    static NetInfoRecordLogic *m_pNetInfoRecordLogicInst;
};
