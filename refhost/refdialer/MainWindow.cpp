// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "HistoryArea.h"
#include "Host.h"
#include "LanguageChoice.h"
#include "PluginHandle.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

namespace refhost
{

namespace
{

// Wide enough for the six columns of the history beside a scroll bar.
constexpr QSize defaultSize(780, 500);

} // namespace

MainWindow::MainWindow(PluginHandle &plugin, const HistorySource &source)
    : m_plugin(plugin)
    , m_area(new HistoryArea(plugin))
{
    auto *const content = new QWidget;
    auto *const layout = new QVBoxLayout(content);
    // The history brings margins of its own.
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new StateLine(source));
    layout->addWidget(m_area, 1);
    setCentralWidget(content);
    createMenus();
    retranslate();
    resize(defaultSize);
    m_area->showHistory();
    m_area->sortNewestFirst();
}

MainWindow::~MainWindow()
{
    m_plugin.end();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_plugin.end();
    QMainWindow::closeEvent(event);
}

void MainWindow::createMenus()
{
    m_fileMenu = menuBar()->addMenu(QString());
    m_quitAction = m_fileMenu->addAction(QString());
    m_quitAction->setShortcut(QKeySequence::Quit);
    connect(m_quitAction, &QAction::triggered, this, &QWidget::close);

    m_viewMenu = menuBar()->addMenu(QString());
    m_historyAction = m_viewMenu->addAction(QString());
    m_historyAction->setCheckable(true);
    m_historyAction->setChecked(true);
    connect(m_historyAction, &QAction::toggled, this, &MainWindow::setHistoryVisible);

    m_languageMenu = menuBar()->addMenu(QString());
    createLanguageActions();
}

void MainWindow::createLanguageActions()
{
    auto *const group = new QActionGroup(this);
    for (const QString &code : availableLanguages()) {
        QAction *const action = m_languageMenu->addAction(languageName(code));
        action->setCheckable(true);
        action->setChecked(code == language());
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, code] { chooseLanguage(code); });
    }
}

void MainWindow::retranslate()
{
    setLocale(localeFor(language()));
    setWindowTitle(tr("Connection history"));
    m_fileMenu->setTitle(tr("&File"));
    m_quitAction->setText(tr("&Quit"));
    m_viewMenu->setTitle(tr("&View"));
    m_historyAction->setText(tr("&History"));
    m_languageMenu->setTitle(tr("&Language"));
}

void MainWindow::setHistoryVisible(bool isVisible)
{
    if (isVisible)
        m_area->showHistory();
    else
        m_area->hideHistory();
}

void MainWindow::chooseLanguage(const QString &language)
{
    if (!setLanguage(language))
        return;
    storeLanguage(language);
    m_plugin.changeLanguage(language);
}

} // namespace refhost
