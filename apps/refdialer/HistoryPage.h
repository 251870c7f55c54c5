// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace refdialer
{

class HistoryArea;
class PluginHandle;

/// The page of the window with the plug-in's history.
class HistoryPage : public QWidget
{
    Q_OBJECT

public:
    /// As for HistoryArea.
    HistoryPage(PluginHandle &plugin, const QString &storeFile, QWidget *parent = nullptr);

    HistoryArea &area() const { return *m_area; }

private:
    HistoryArea *m_area;
};

} // namespace refdialer
