// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "BackgroundUnit.h"
#include "ClosingChoice.h"
#include "FileMenu.h"
#include "HelpMenu.h"
#include "HistoryArea.h"
#include "HistoryPage.h"
#include "LanguageChoice.h"
#include "LineState.h"
#include "ListChoice.h"
#include "MessageBox.h"
#include "PlanLine.h"
#include "PlanMenu.h"
#include "PlanWatch.h"
#include "PluginHandle.h"
#include "ProblemLine.h"
#include "SettingsDialog.h"
#include "SumLabel.h"
#include "TrueValues.h"
#include "UsagePage.h"
#include "ViewMenu.h"
#include "recorder/bus/RecorderService.h"
#include "refhost/libcore/Host.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace refdialer
{

namespace
{

/// The service records into the user's own history only.
BackgroundUnit *makeBackgroundUnit(const HistorySource &source, QObject *parent)
{
    using recorder::RecorderService;
    const bool isOwn = !source.isSample &&
                       RecorderService::nameFor(source.file) == RecorderService::interfaceName();
    return isOwn ? new BackgroundUnit(QDBusConnection::sessionBus(), parent) : nullptr;
}

} // namespace

MainWindow::MainWindow(PluginHandle &plugin, const HistorySource &source, const LineState &state,
                       std::future<TrueValues> values)
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
    createStatusBar();
    retranslate();
    resize(usualSizeOf(*this).boundedTo(screen()->availableSize()));
    m_area.showHistory();
    m_area.takeRows(values.get());
    m_historyPage->setShortest(shortestListed());
    offerBackground();
    connect(m_plans.get(), &PlanWatch::changed, this, &MainWindow::plansRead);
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

WindowView MainWindow::view() const
{
    return {saveGeometry(), m_pages->currentIndex(), m_viewMenu->order()};
}

void MainWindow::restoreView(const WindowView &view)
{
    restoreGeometry(view.geometry);
    // One that is not there is left out.
    m_pages->setCurrentIndex(view.page);
    const HistoryOrder &order = m_viewMenu->order();
    // A long history takes its time to sort.
    if (order.column != view.order.column || order.direction != view.order.direction)
        m_viewMenu->chooseOrder(view.order);
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

/// Turns the service on, and calls with what became of that.
void MainWindow::turnOnBackground(const OutcomeHandler &handle)
{
    auto *const order = new QObject(this);
    connect(m_background, &BackgroundUnit::done, order,
            [order, handle](BackgroundUnit::Outcome outcome, const QString &reason) {
                order->deleteLater();
                handle(outcome, BackgroundUnit::textFor(outcome, reason));
            });
    m_background->turnOn();
}

void MainWindow::closeIfInBackground()
{
    turnOnBackground([this](BackgroundUnit::Outcome outcome, const QString &text) {
        m_isClosingDecided = outcome == BackgroundUnit::Outcome::On;
        if (m_isClosingDecided) {
            close();
            return;
        }
        forgetClosingChoice();
        MessageBox(QMessageBox::Warning, windowTitle(), text, this).exec();
    });
}

void MainWindow::recordInBackground()
{
    m_historyPage->notice().offerBackground(false);
    turnOnBackground([this](BackgroundUnit::Outcome, const QString &text) {
        m_background->look();
        MessageBox(QMessageBox::Information, windowTitle(), text, this).exec();
    });
}

void MainWindow::createPages()
{
    m_pages->setDocumentMode(true);
    m_pages->addTab(m_historyPage, QString());
    m_pages->addTab(m_usagePage, QString());
    connect(m_pages, &QTabWidget::currentChanged, this,
            [this] { setHistoryVisible(m_pages->currentWidget() == m_historyPage); });
}

void MainWindow::createStatusBar()
{
    auto *const sum = new SumLabel(m_area);
    statusBar()->addWidget(sum, 1);
    connect(m_pages, &QTabWidget::currentChanged, sum,
            [this, sum] { sum->setVisible(m_pages->currentWidget() == m_historyPage); });
    connect(&m_area, &HistoryArea::deletionBegins, this, [this] {
        statusBar()->showMessage(tr("Deleting connections…"));
        statusBar()->repaint();
    });
    connect(&m_area, &HistoryArea::deletionEnded, statusBar(), &QStatusBar::clearMessage);
}

/// A history without connections offers it, where it is not on already.
void MainWindow::offerBackground()
{
    if (!m_background)
        return;
    HistoryNotice &notice = m_historyPage->notice();
    connect(m_background, &BackgroundUnit::found, &notice,
            [&notice](bool isOn) { notice.offerBackground(!isOn); });
    connect(&notice, &HistoryNotice::backgroundWanted, this, &MainWindow::recordInBackground);
    if (m_area.connectionCount() == 0)
        m_background->look();
}

void MainWindow::createMenus()
{
    menuBar()->addMenu(m_fileMenu);
    connect(m_fileMenu, &FileMenu::settingsChosen, this, &MainWindow::showSettings);
    connect(&m_historyPage->notice(), &HistoryNotice::importWanted, m_fileMenu,
            &FileMenu::importFiles);
    connect(m_fileMenu, &FileMenu::quitChosen, this, &QWidget::close);

    m_viewMenu = new ViewMenu(m_plugin.hasStatistics(), menuBar());
    menuBar()->addMenu(m_viewMenu);
    connect(m_viewMenu, &ViewMenu::pageChosen, m_pages, &QTabWidget::setCurrentIndex);
    connect(m_pages, &QTabWidget::currentChanged, m_viewMenu, &ViewMenu::setPage);
    connect(m_viewMenu, &ViewMenu::orderChosen, &m_area, &HistoryArea::sort);
    connect(m_viewMenu, &ViewMenu::refreshWanted, &m_area, &HistoryArea::refresh);
    connect(m_viewMenu, &ViewMenu::refreshWanted, m_usagePage, &UsagePage::refresh);
    connect(m_viewMenu, &ViewMenu::statisticsWanted, this, &MainWindow::showStatistics);
    connect(m_viewMenu, &ViewMenu::searchWanted, this, [this] {
        m_pages->setCurrentWidget(m_historyPage);
        m_historyPage->beginSearch();
    });

    auto *const planMenu = new PlanMenu(*m_plans, this);
    menuBar()->addMenu(planMenu);
    connect(m_planLine, &PlanLine::plansWanted, planMenu, &PlanMenu::showPlans);
    connect(m_planLine, &PlanLine::planWanted, planMenu, &PlanMenu::addPlan);
    menuBar()->addMenu(new HelpMenu(menuBar()));
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
    connect(&dialog, &SettingsDialog::shortestChosen, m_historyPage, &HistoryPage::setShortest);
    connect(&dialog, &SettingsDialog::interfacesChosen, this, &MainWindow::interfacesChosen);
    dialog.exec();
}

void MainWindow::showStatistics()
{
    if (!m_plugin.showStatistics())
        MessageBox(QMessageBox::Warning, windowTitle(),
                   tr("The history plug-in says that it has statistics but cannot be asked for "
                      "them. Start refdialer with another one: --plugin FILE."),
                   this)
            .exec();
}

} // namespace refdialer
