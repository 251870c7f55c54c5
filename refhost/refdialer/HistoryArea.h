// SPDX-License-Identifier: MIT
#pragma once

#include "HistorySort.h"

#include <QWidget>

class QTableWidget;

namespace refhost
{

class PluginHandle;

/// The place in the main window where the plug-in shows its history.
class HistoryArea : public QWidget
{
public:
    /// The plug-in outlives the area and shows the store in this file.
    HistoryArea(PluginHandle &plugin, const QString &storeFile, QWidget *parent = nullptr);

    void showHistory();
    void hideHistory();
    /// Puts the rows in this order, now and whenever they are loaded anew.
    void sort(const HistoryOrder &order);
    /// Lets the plug-in list a connection that has just been finished.
    void showFinishedConnection();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QTableWidget *table() const;
    void sortTable();

    PluginHandle &m_plugin;
    const std::string m_storePath;
    HistoryOrder m_order;
    bool m_hasHistory = false;
};

} // namespace refhost
