// SPDX-License-Identifier: MIT
#pragma once

#include "apps/refdialer/LineState.h"
#include "apps/refdialer/MainWindow.h"
#include "apps/refdialer/PluginHandle.h"
#include "apps/refdialer/ServicePlugin.h"
#include "history/Store.h"
#include "refhost/libcore/PluginContainer.h"

#include <QTemporaryDir>

#include <memory>
#include <vector>

class QTableWidget;

/// 2026-09-01 00:00 UTC
constexpr std::int64_t firstDay = 1788220800;

/// A connection of 01:02:05 that sent 2.00 KB and received 5.00 MB, so many days
/// after the first day.
history::Connection connection(const std::string &profile, int daysLater);

/// The built plug-in and the dial-up service in our window, in English, on a real
/// store and with settings of its own.
class HistoryWindow
{
public:
    HistoryWindow();
    ~HistoryWindow();

    std::string storePath() const { return m_storePath; }
    /// Adds the connections to the store.
    bool store(const std::vector<history::Connection> &connections) const;
    QStringList storedProfiles() const;
    QList<qint64> storedKeys() const;
    static QString pluginFile();
    /// Runs SQL on the store, as another program would.
    bool runSql(const std::string &sql) const;

    bool open(bool hasDialupService = true);
    void close();

    refdialer::LineState &state() { return m_state; }
    refdialer::PluginHandle &plugin() const { return *m_plugin; }
    refdialer::MainWindow &window() const { return *m_window; }
    QTableWidget &table() const;
    QStringList column(int column) const;
    QStringList shownProfiles() const { return column(0); }

    void clickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Presses a key as the window system does: whoever has the focus gets it.
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

private:
    QTemporaryDir m_folder;
    std::string m_storePath;
    refdialer::LineState m_state;
    refhost::PluginContainer m_container;
    refdialer::ServicePlugin m_service;
    std::unique_ptr<refdialer::PluginHandle> m_plugin;
    std::unique_ptr<refdialer::MainWindow> m_window;
};
