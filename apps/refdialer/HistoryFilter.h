// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

#include <functional>

class QTableWidget;

namespace refdialer
{

class ShownConnections;

/// Which connections the history lists: all, but for what is given.
struct HistoryFilter {
    /// A part of the profile's name; neither case nor accents count.
    QString profile;
    QDate firstDay; ///< of the start, in local time; not valid for no bound
    QDate lastDay;
    qint64 shortestSeconds = 0;

    bool isSearch() const;
    bool isEverything() const { return !isSearch() && shortestSeconds <= 0; }
};

bool operator==(const HistoryFilter &a, const HistoryFilter &b);

/// Tells of a row whether it is listed.
using RowFilter = std::function<bool(int row)>;
/// Of the rows of the plug-in's table, as long as that and what it shows are there.
RowFilter rowFilter(const QTableWidget &table, const ShownConnections &shown,
                    const HistoryFilter &filter);

} // namespace refdialer
