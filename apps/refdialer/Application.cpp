// SPDX-License-Identifier: MIT
#include "Application.h"

#include "DemoStore.h"
#include "Failure.h"
#include "MainWindow.h"
#include "Picture.h"
#include "PluginHandle.h"
#include "Recording.h"
#include "ServicePlugin.h"
#include "SummaryChoice.h"
#include "WindowView.h"
#include "apps/common/RecordingChoices.h"
#include "apps/common/StoreErrorText.h"
#include "refhost/libcore/Host.h"

#include "history/Store.h"

#include <QFileInfo>
#include <QLoggingCategory>

#include <utility>

namespace refdialer
{

Application::Application(Options options)
    : m_options(std::move(options))
{
    QLoggingCategory::setFilterRules(m_options.isDebug ? QStringLiteral("default.debug=true")
                                                       : QStringLiteral("default.debug=false"));
    if (!m_options.language.isEmpty())
        refhost::setLanguage(m_options.language);
}

Application::~Application()
{
    refhost::setPluginContainer(nullptr);
}

void Application::run()
{
    chooseStore();
    if (!isFirst())
        return;
    checkStore();
    loadDialupService();
    startRecording();
    startPlugin();
    showWindow();
}

void Application::chooseStore()
{
    QString file;
    if (m_options.isDemo) {
        m_demoStore = std::make_unique<DemoStore>();
        file = m_demoStore->file();
    } else if (!m_options.storeFile.isEmpty()) {
        file = QFileInfo(m_options.storeFile).absoluteFilePath();
    }
    if (!file.isEmpty())
        qputenv("NETINFO_STORE", QFile::encodeName(file));
    m_source = {QString::fromStdString(history::Store::defaultPath()), m_options.isDemo};
}

bool Application::isOwnWindow() const
{
    return !m_options.isDemo && m_options.pictureFile.isEmpty();
}

bool Application::isFirst()
{
    if (!isOwnWindow())
        return true;
    const SingleInstance::Outcome outcome = m_instance.claim(m_source.file);
    if (outcome == SingleInstance::Outcome::OtherIsBusy)
        qWarning("refdialer is running already, but busy; its window comes forward as soon as it "
                 "can.");
    return outcome == SingleInstance::Outcome::First;
}

// The plug-in shows a store that cannot be read as an empty history, so the
// reason is told before that.
void Application::checkStore() const
{
    const auto store = history::Store::openForReading(history::Store::defaultPath());
    if (!store)
        throw Failure{ExitCode::StoreNotUsable, common::storeErrorText(store.error())};
}

void Application::loadDialupService()
{
    if (!m_options.hasDialupService)
        return;
    m_dialupService = std::make_unique<ServicePlugin>(ServicePlugin::dialupServiceFile());
    m_container.add(m_dialupService->classId(), m_dialupService->root());
}

// Before the plug-in reads the history, so that it finds there what an earlier
// run has left unfinished.
void Application::startRecording()
{
    if (!isOwnWindow())
        return;
    offerSummary();
    startRecorder();
}

void Application::startRecorder()
{
    // What the command line asks for holds for this run, whatever is chosen.
    const QStringList interfaces =
        m_options.interfaceNames.isEmpty() ? common::chosenInterfaces() : m_options.interfaceNames;
    m_recording =
        std::make_unique<Recording>(m_source.file, interfaces, m_options.profile, m_state);
    m_recording->start();
}

/// Other interfaces are to be recorded; what lasts is resumed.
void Application::restartRecorder()
{
    if (!m_recording || !m_options.interfaceNames.isEmpty())
        return;
    m_recording.reset();
    // What the former one has said last is not the new one's.
    QCoreApplication::sendPostedEvents(&m_state);
    m_state.setWatched(false);
    m_state.setProblem(QString());
    startRecorder();
}

void Application::checkPlans()
{
    if (m_recording)
        m_recording->checkPlans();
}

void Application::startPlugin()
{
    const QString file = m_options.pluginFile.isEmpty()
                             ? PluginHandle::defaultFile()
                             : QFileInfo(m_options.pluginFile).absoluteFilePath();
    m_trueValues = TrueValues::beginReading(m_source.file.toStdString());
    m_plugin = PluginHandle::load(file);
    m_container.add(m_plugin->classId(), m_plugin->root());
    refhost::setPluginContainer(&m_container);
    if (!m_plugin->start())
        throw Failure{ExitCode::PluginNotLoaded,
                      tr("The plug-in %1 could not start. \"refdialer --debug\" shows how far it "
                         "came.")
                          .arg(file)};
}

void Application::showWindow()
{
    MainWindow window(*m_plugin, m_source, m_state, std::move(m_trueValues));
    refhost::setMainWindow(&window);
    if (!m_options.pictureFile.isEmpty()) {
        window.finishReading();
        savePicture(window, m_options.pictureFile);
        return;
    }
    QObject::connect(&m_instance, &SingleInstance::activated, &window, &MainWindow::comeForward);
    QObject::connect(&window, &MainWindow::interfacesChosen, [this] { restartRecorder(); });
    QObject::connect(&window, &MainWindow::plansRead, [this] { checkPlans(); });
    if (isOwnWindow())
        window.restoreView(storedWindowView());
    window.show();
    QCoreApplication::exec();
    if (isOwnWindow() && !storeWindowView(window.view()))
        qWarning("The window starts as at first next time: the settings cannot be written to %s.",
                 qUtf8Printable(refhost::settingsFile()));
}

} // namespace refdialer
