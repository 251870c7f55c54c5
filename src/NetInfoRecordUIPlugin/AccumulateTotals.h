// SPDX-License-Identifier: MIT
#pragma once

#include "AccumulateDialogRecord.h"

#include <QMap>
#include <QString>
#include <QVector>

#include <optional>
#include <vector>

struct _KORA_ST_CONNRECORD;
class QDate;

/// Sums up connections per profile and month into the rows that the statistics
/// dialog shows. A connection counts wholly in the local month of its start.
/// Sums are integers throughout; only the finished texts are rounded.
class AccumulateTotals
{
public:
    /// Takes one connection into account, under the profile and the start
    /// ("yyyyMMddhhmmss") that its row shows.
    void add(const _KORA_ST_CONNRECORD &record, const QString &profile, const QString &start);
    /// Takes the connection out again that was added at this zero-based position, if it
    /// is still in.
    void remove(int position);
    /// The rows as seen on this day: one for all profiles, under a translatable
    /// identifier and stamped with the day's month, then one for each profile
    /// and month with connections, stamped with that month, in the order of the
    /// names and months.
    QVector<AccumulateDialogRecord> rows(const QDate &today) const;

private:
    friend class AccumulateAgreementTest;

    __extension__ using Bytes = __int128; // no sum of 64-bit counts overflows it

    struct Totals {
        Bytes uploaded = 0;
        Bytes downloaded = 0;
        qint64 seconds = 0;

        void add(const Totals &other);
    };
    using TotalsByMonth = QMap<QString, Totals>; // key "yyyyMM"
    struct Sums {
        TotalsByMonth ofAllProfiles;
        QMap<QString, TotalsByMonth> byProfile;
    };

    struct Connection {
        QString profile;
        QString start; // "yyyyMMddhhmmss"
        Totals totals;
    };

    Sums sums() const;
    static Totals totalsOf(const _KORA_ST_CONNRECORD &record);
    static Bytes bytesOf(const char (&field)[64]);
    static QString megabytes(Bytes bytes);
    static AccumulateDialogRecord row(const QString &name, const QString &month,
                                      const TotalsByMonth &totals, const QDate &today);

    std::vector<std::optional<Connection>> m_connections; // by position
};
