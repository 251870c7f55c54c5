// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

#include <vector>

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

/// Whether the filter lists each row of the plug-in's table.
std::vector<bool> matchingRows(const QTableWidget &table, const ShownConnections &shown,
                               const HistoryFilter &filter);

} // namespace refdialer
