// SPDX-License-Identifier: MIT
#pragma once

#include "BackgroundUnit.h"
#include "StateLine.h"
#include "WindowView.h"

#include <QMainWindow>

#include <functional>
#include <future>
#include <memory>

class QTabWidget;

namespace refdialer
{

class FileMenu;
class HistoryArea;
class HistoryPage;
class LineState;
class PlanLine;
class PlanWatch;
class PluginHandle;
class TrueValues;
class UsagePage;
class ViewMenu;

/// The window: what is connected above, the pages below.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows the history of a plug-in that has been started, and tells it what
    /// becomes of connections. Both outlive the window, which ends the plug-in
    /// before its own area goes. The true values of what the plug-in has loaded may still
    /// be on their way.
    MainWindow(PluginHandle &plugin, const HistorySource &source, const LineState &state,
               std::future<TrueValues> values);
    ~MainWindow() override;

    /// Returns when everything is shown that is read on other threads.
    void finishReading();

    /// Shows itself above other windows and takes the keyboard.
    void comeForward();

    /// How the user has set it up.
    WindowView view() const;
    void restoreView(const WindowView &view);

signals:
    /// To record besides the mobile ones.
    void interfacesChosen(const QStringList &names);
    /// How data plans stand has been read anew, as after a change of them or of the history.
    void plansRead();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    using OutcomeHandler =
        std::function<void(BackgroundUnit::Outcome outcome, const QString &text)>;

    void createPages();
    void createStatusBar();
    void offerBackground();
    void createMenus();
    void retranslate();
    bool mayClose();
    void turnOnBackground(const OutcomeHandler &handle);
    void closeIfInBackground();
    void recordInBackground();
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
    ViewMenu *m_viewMenu;
};

} // namespace refdialer
