// SPDX-License-Identifier: MIT
#pragma once

#include "StateLine.h"

#include <QMainWindow>

class QAction;
class QMenu;

namespace refhost
{

class HistoryArea;
class PluginHandle;

/// The window: what is shown above, the plug-in's history below.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows the history of a plug-in that has been started and that outlives
    /// the window; the window ends it before its own area goes.
    MainWindow(PluginHandle &plugin, const HistorySource &source);
    ~MainWindow() override;

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void createMenus();
    void createLanguageActions();
    void retranslate();
    void setHistoryVisible(bool isVisible);
    void chooseLanguage(const QString &language);

    PluginHandle &m_plugin;
    HistoryArea *m_area;
    QMenu *m_fileMenu;
    QAction *m_quitAction;
    QMenu *m_viewMenu;
    QAction *m_historyAction;
    QMenu *m_languageMenu;
};

} // namespace refhost
