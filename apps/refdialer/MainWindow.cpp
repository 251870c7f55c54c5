// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "BackgroundUnit.h"
#include "ClosingChoice.h"
#include "FileMenu.h"
#include "HistoryArea.h"
#include "HistoryPage.h"
#include "LanguageChoice.h"
#include "LineState.h"
#include "PlanLine.h"
#include "PlanMenu.h"
#include "PlanWatch.h"
#include "PluginHandle.h"
#include "ProblemLine.h"
#include "SettingsDialog.h"
#include "UsagePage.h"
#include "ViewMenu.h"
#include "recorder/bus/RecorderService.h"
#include "refhost/libcore/Host.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace refdialer
{

namespace
{

// Wide enough for the six columns of the history beside a scroll bar.
constexpr QSize defaultSize(780, 500);

/// The service records into the user's own history only.
BackgroundUnit *makeBackgroundUnit(const HistorySource &source, QObject *parent)
{
    using recorder::RecorderService;
    const bool isOwn = !source.isSample &&
                       RecorderService::nameFor(source.file) == RecorderService::interfaceName();
    return isOwn ? new BackgroundUnit(QDBusConnection::sessionBus(), parent) : nullptr;
}

} // namespace

MainWindow::MainWindow(PluginHandle &plugin, const HistorySource &source, const LineState &state)
    : m_plugin(plugin)
    , m_state(state)
    , m_background(makeBackgroundUnit(source, this))
    , m_plans(std::make_unique<PlanWatch>(source.file))
    , m_planLine(new PlanLine(*m_plans))
    , m_pages(new QTabWidget)
    , m_historyPage(new HistoryPage(plugin, source.file))
    , m_area(m_historyPage->area())
    , m_usagePage(new UsagePage(source.file.toStdString()))
    , m_fileMenu(new FileMenu(source.file, this))
{
    auto *const content = new QWidget;
    auto *const layout = new QVBoxLayout(content);
    // Each part brings margins of its own.
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new StateLine(source, state));
    layout->addWidget(m_planLine);
    layout->addWidget(m_pages, 1);
    layout->addWidget(new ProblemLine(state, content));
    setCentralWidget(content);
    createPages();
    createMenus();
    retranslate();
    resize(defaultSize);
    m_area.showHistory();
    m_area.sort(HistoryOrder());
    connect(&state, &LineState::connected, this, [this] { m_plugin.tellConnected(); });
    connect(&state, &LineState::disconnected, this, &MainWindow::showFinishedConnection);
}

MainWindow::~MainWindow()
{
    m_plugin.end();
}

void MainWindow::finishReading()
{
    m_plans->finish();
}

void MainWindow::comeForward()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    // What the window waits for has the keyboard instead of it.
    QWidget *const dialog = QApplication::activeModalWidget();
    (dialog ? dialog : this)->activateWindow();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!mayClose() || !m_fileMenu->mayClose()) {
        event->ignore();
        return;
    }
    m_plugin.end();
    QMainWindow::closeEvent(event);
}

/// False if the user wants it to stay open, or until a service records.
bool MainWindow::mayClose()
{
    const bool isRecordingConnections = m_state.isRecording() && !m_state.connections().isEmpty();
    if (!m_background || !isRecordingConnections || m_isClosingDecided || qApp->isSavingSession())
        return true;
    const ClosingChoice choice = chooseClosing(this);
    if (choice == ClosingChoice::RecordInBackground)
        closeIfInBackground();
    return choice == ClosingChoice::StopRecording;
}

void MainWindow::closeIfInBackground()
{
    auto *const order = new QObject(this);
    connect(m_background, &BackgroundUnit::done, order,
            [this, order](BackgroundUnit::Outcome outcome, const QString &reason) {
                order->deleteLater();
                m_isClosingDecided = outcome == BackgroundUnit::Outcome::On;
                if (m_isClosingDecided) {
                    close();
                    return;
                }
                forgetClosingChoice();
                QMessageBox::warning(this, windowTitle(), BackgroundUnit::textFor(outcome, reason));
            });
    m_background->turnOn();
}

void MainWindow::createPages()
{
    m_pages->setDocumentMode(true);
    m_pages->addTab(m_historyPage, QString());
    m_pages->addTab(m_usagePage, QString());
    connect(m_pages, &QTabWidget::currentChanged, this,
            [this] { setHistoryVisible(m_pages->currentWidget() == m_historyPage); });
}

void MainWindow::createMenus()
{
    menuBar()->addMenu(m_fileMenu);
    connect(m_fileMenu, &FileMenu::settingsChosen, this, &MainWindow::showSettings);
    connect(m_fileMenu, &FileMenu::quitChosen, this, &QWidget::close);

    auto *const viewMenu = new ViewMenu(m_plugin.hasStatistics(), menuBar());
    menuBar()->addMenu(viewMenu);
    connect(viewMenu, &ViewMenu::pageChosen, m_pages, &QTabWidget::setCurrentIndex);
    connect(m_pages, &QTabWidget::currentChanged, viewMenu, &ViewMenu::setPage);
    connect(viewMenu, &ViewMenu::orderChosen, &m_area, &HistoryArea::sort);
    connect(viewMenu, &ViewMenu::refreshWanted, &m_area, &HistoryArea::refresh);
    connect(viewMenu, &ViewMenu::refreshWanted, m_usagePage, &UsagePage::refresh);
    connect(viewMenu, &ViewMenu::statisticsWanted, this, &MainWindow::showStatistics);

    auto *const planMenu = new PlanMenu(*m_plans, this);
    menuBar()->addMenu(planMenu);
    connect(m_planLine, &PlanLine::plansWanted, planMenu, &PlanMenu::showPlans);
    connect(m_planLine, &PlanLine::planWanted, planMenu, &PlanMenu::addPlan);
}

void MainWindow::retranslate()
{
    setLocale(localeFor(refhost::language()));
    setWindowTitle(tr("Connection history"));
    m_pages->setTabText(m_pages->indexOf(m_historyPage), tr("History"));
    m_pages->setTabText(m_pages->indexOf(m_usagePage), tr("Usage"));
}

void MainWindow::setHistoryVisible(bool isVisible)
{
    if (isVisible)
        m_area.showHistory();
    else
        m_area.hideHistory();
}

void MainWindow::showFinishedConnection()
{
    // The plug-in knows of one connection at a time, and an end without a
    // beginning before it means nothing to it; another one may have ended since.
    m_plugin.tellConnected();
    m_area.showFinishedConnection();
}

void MainWindow::showSettings()
{
    SettingsDialog dialog(m_background, this);
    connect(&dialog, &SettingsDialog::languageChosen, this,
            [this](const QString &language) { m_plugin.changeLanguage(language); });
    dialog.exec();
}

void MainWindow::showStatistics()
{
    if (!m_plugin.showStatistics())
        QMessageBox::warning(this, windowTitle(),
                             tr("The history plug-in says that it has statistics but cannot be "
                                "asked for them. Start refdialer with another one: --plugin "
                                "FILE."));
}

} // namespace refdialer
