// SPDX-License-Identifier: MIT
#pragma once

#include "StateLine.h"

#include <QMainWindow>

#include <memory>

class QTabWidget;

namespace refdialer
{

class BackgroundUnit;
class FileMenu;
class HistoryArea;
class HistoryPage;
class LineState;
class PlanLine;
class PlanWatch;
class PluginHandle;
class UsagePage;

/// The window: what is connected above, the pages below.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows the history of a plug-in that has been started, and tells it what
    /// becomes of connections. Both outlive the window, which ends the plug-in
    /// before its own area goes.
    MainWindow(PluginHandle &plugin, const HistorySource &source, const LineState &state);
    ~MainWindow() override;

    /// Returns when everything is shown that is read on other threads.
    void finishReading();

    /// Shows itself above other windows and takes the keyboard.
    void comeForward();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void createPages();
    void createMenus();
    void retranslate();
    bool mayClose();
    void closeIfInBackground();
    void setHistoryVisible(bool isVisible);
    void showFinishedConnection();
    void showSettings();
    void showStatistics();

    PluginHandle &m_plugin;
    const LineState &m_state;
    /// A child; null where the service records into another history than the window's.
    BackgroundUnit *const m_background;
    bool m_isClosingDecided = false;
    const std::unique_ptr<PlanWatch> m_plans;
    PlanLine *m_planLine;
    QTabWidget *m_pages;
    HistoryPage *m_historyPage;
    HistoryArea &m_area;
    UsagePage *m_usagePage;
    FileMenu *m_fileMenu;
};

} // namespace refdialer
