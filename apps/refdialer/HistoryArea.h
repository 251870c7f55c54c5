// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryFilter.h"
#include "HistorySort.h"
#include "HistorySum.h"
#include "HistoryWatch.h"
#include "ShownConnections.h"

#include <QByteArray>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

class QTableWidget;

namespace refdialer
{

class PluginHandle;
class TrueValues;
class VisibleSelection;

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
    ~HistoryArea() override;

    void showHistory();
    void hideHistory();
    /// Takes over the rows that the plug-in has loaded, of which these are the true values.
    void takeRows(TrueValues values);
    /// Puts the rows in this order, now and whenever they are loaded anew.
    void sort(const HistoryOrder &order);
    /// Lists these connections only, now and whenever they are loaded anew. The others'
    /// rows are hidden: they are not selected, and nothing done to the list deletes them.
    void setFilter(const HistoryFilter &filter);
    const HistoryFilter &filter() const { return m_filter; }
    /// Lets the plug-in list a connection that has just been finished.
    void showFinishedConnection();
    /// Lists what the store has at this moment.
    void refresh();

    /// How many connections there are, listed or not.
    int connectionCount() const { return m_shown.count(); }
    /// Whether the store could be read; if not, nobody knows how many there are.
    bool isReadable() const { return m_isReadable; }
    /// Of what is selected, or else of what is listed.
    HistorySum sum() const;
    /// What is selected, as the rows show it.
    void copySelection();
    /// Opens the plug-in's menu at the current row.
    void openContextMenu();
    /// Gives the keyboard to the list.
    void takeFocus();

signals:
    /// Connections, which of them are listed, or which are selected; once for many changes.
    void changed();
    /// The plug-in is about to delete, maybe for seconds; before that, only what is
    /// painted at once is seen.
    void deletionBegins();
    void deletionEnded();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QTableWidget *table() const;
    void adopt(QTableWidget &table);
    void retranslate();
    void arrangeRows();
    void applyFilter();
    void announceDeletion();
    void endFiltering();
    void forgetRows(const QModelIndex &parent, int first, int last);
    void load(const std::function<void()> &loadRows);
    void keepUpToDate();
    void compareWith(quint64 storeFingerprint);

    PluginHandle &m_plugin;
    const std::string m_storePath;
    HistoryOrder m_order;
    HistoryFilter m_filter;
    QPointer<VisibleSelection> m_selection; ///< the table's
    QTimer m_changeTimer;
    bool m_hasHistory = false;
    ShownConnections m_shown;
    bool m_isReadable = true;
    HistoryWatch m_watch;
    QTimer m_watchTimer;
    quint64 m_shownWhenAsked = 0;       ///< the fingerprint of what was shown then
    std::optional<quint64> m_loadedFor; ///< the store's fingerprint that made it load
    QByteArray m_loadedZone;            ///< of local time, when it loaded
    bool m_isFinishedConnectionDue = false;
};

} // namespace refdialer
