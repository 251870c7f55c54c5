// SPDX-License-Identifier: MIT
#pragma once

#include "DialupContainer.h"
#include "NetInfoRecordUIPlugin.h"

#include <QTableWidget>
#include <QWidget>

#include <memory>

/// The plug-in in a host's window, whose store is in memory and whose every
/// question is confirmed.
class PluginWindow
{
public:
    explicit PluginWindow(int records);
    ~PluginWindow();

    void init() { m_plugin->Init(); }
    void show();
    /// A connection ends, upon which the plug-in fetches and fills everything.
    void reload();
    QTableWidget *table() const { return m_area.findChild<QTableWidget *>(); }

private:
    scripted::DialupContainer m_container;
    QWidget m_area;
    std::unique_ptr<NetInfoRecordUIPlugin> m_plugin;
};
