// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace refhost
{

class PluginHandle;

/// The place in the main window where the plug-in shows its history.
class HistoryArea : public QWidget
{
public:
    explicit HistoryArea(PluginHandle &plugin, QWidget *parent = nullptr);

    void showHistory();
    void hideHistory();
    /// Puts the rows in the order of their start, once; the table's own sorting
    /// stays off.
    void sortNewestFirst();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    PluginHandle &m_plugin;
    bool m_hasHistory = false;
};

} // namespace refhost
