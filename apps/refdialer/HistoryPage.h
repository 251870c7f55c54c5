// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryNotice.h"

#include <QPointer>
#include <QWidget>

namespace refdialer
{

class ColumnRoom;
class HistoryArea;
class HistorySearch;
class PluginHandle;

/// The page of the window with the plug-in's history, and a search above it.
class HistoryPage : public QWidget
{
    Q_OBJECT

public:
    /// As for HistoryArea.
    HistoryPage(PluginHandle &plugin, const QString &storeFile, QWidget *parent = nullptr);

    HistoryArea &area() const { return *m_area; }
    HistoryNotice &notice() const { return *m_notice; }

    /// Lets the user type what to search for.
    void beginSearch();
    /// Lists no connections that are shorter.
    void setShortest(qint64 seconds);

private:
    void addKeys();
    void applyFilter();
    void giveColumnsRoom();
    void showReason();

    HistorySearch *m_search;
    HistoryNotice *m_notice;
    HistoryArea *m_area;
    QPointer<ColumnRoom> m_columns; ///< the table's
    qint64 m_shortestSeconds = 0;
};

} // namespace refdialer
