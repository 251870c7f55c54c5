// SPDX-License-Identifier: MIT
#pragma once

#include "HistorySort.h"
#include "HistoryWatch.h"
#include "ShownConnections.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

class QTableWidget;

namespace refdialer
{

class PluginHandle;

/// The place in the main window where the plug-in shows its history. What others
/// write to the store appears there within two seconds, but never while the user
/// is about to decide on what is shown: a menu or a question is open, or a button
/// of the mouse is down.
class HistoryArea : public QWidget
{
    Q_OBJECT

public:
    /// The plug-in outlives the area and shows the store in this file.
    HistoryArea(PluginHandle &plugin, const QString &storeFile, QWidget *parent = nullptr);

    void showHistory();
    void hideHistory();
    /// Puts the rows in this order, now and whenever they are loaded anew.
    void sort(const HistoryOrder &order);
    /// Lets the plug-in list a connection that has just been finished.
    void showFinishedConnection();
    /// Lists what the store has at this moment.
    void refresh();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QTableWidget *table() const;
    void sortTable();
    void forgetRows(const QModelIndex &parent, int first, int last);
    void load(const std::function<void()> &loadRows);
    void keepUpToDate();
    void compareWith(quint64 storeFingerprint);

    PluginHandle &m_plugin;
    const std::string m_storePath;
    HistoryOrder m_order;
    bool m_hasHistory = false;
    ShownConnections m_shown;
    HistoryWatch m_watch;
    QTimer m_watchTimer;
    quint64 m_shownWhenAsked = 0;       ///< the fingerprint of what was shown then
    std::optional<quint64> m_loadedFor; ///< the store's fingerprint that made it load
    bool m_isFinishedConnectionDue = false;
};

} // namespace refdialer
