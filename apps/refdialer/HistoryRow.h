// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

class QTableWidget;

namespace refdialer
{

/// The columns of the plug-in's table, from the left.
enum class HistoryColumn { Profile, Start, End, ConnectedTime, Uploaded, Downloaded };

/// What one row of the plug-in's table shows. Volumes are rounded there.
struct HistoryRow {
    QString profile;
    QDateTime start; ///< in local time; not valid if it shows none
    QDateTime end;
    qint64 connectedSeconds = 0; ///< 0 if it shows none, like the volumes
    double uploadedBytes = 0;
    double downloadedBytes = 0;
};

HistoryRow historyRow(const QTableWidget &table, int row);

} // namespace refdialer
