// SPDX-License-Identifier: MIT
#include "Application.h"

#include "DemoStore.h"
#include "Failure.h"
#include "Host.h"
#include "MainWindow.h"
#include "Picture.h"
#include "PluginHandle.h"

#include "StatisticsStore.h"

#include <QFileInfo>
#include <QLoggingCategory>

#include <utility>

namespace refhost
{

Application::Application(Options options)
    : m_options(std::move(options))
{
    QLoggingCategory::setFilterRules(m_options.isDebug ? QStringLiteral("default.debug=true")
                                                       : QStringLiteral("default.debug=false"));
    if (!m_options.language.isEmpty())
        setLanguage(m_options.language);
}

Application::~Application()
{
    setPluginContainer(nullptr);
}

void Application::run()
{
    chooseStore();
    checkStore();
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
    m_source = {QString::fromStdString(StatisticsStore::defaultPath()), m_options.isDemo};
}

// The plug-in shows a store that cannot be read as an empty history, so the
// reason is told before that.
void Application::checkStore() const
{
    const auto store = StatisticsStore::openForReading(StatisticsStore::defaultPath());
    if (!store)
        throw Failure{ExitCode::StoreNotUsable, QString::fromStdString(store.error().message)};
    const auto connections = store.value().list();
    if (!connections)
        throw Failure{ExitCode::StoreNotUsable,
                      QString::fromStdString(connections.error().message)};
}

void Application::startPlugin()
{
    const QString file = m_options.pluginFile.isEmpty()
                             ? PluginHandle::defaultFile()
                             : QFileInfo(m_options.pluginFile).absoluteFilePath();
    m_plugin = PluginHandle::load(file);
    m_container.add(m_plugin->classId(), m_plugin->root());
    setPluginContainer(&m_container);
    if (!m_plugin->start())
        throw Failure{ExitCode::PluginNotLoaded,
                      tr("The plug-in %1 could not start. \"refdialer --debug\" shows how far it "
                         "came.")
                          .arg(file)};
}

void Application::showWindow()
{
    MainWindow window(*m_plugin, m_source);
    setMainWindow(&window);
    if (!m_options.pictureFile.isEmpty()) {
        savePicture(window, m_options.pictureFile);
        return;
    }
    window.show();
    QCoreApplication::exec();
}

} // namespace refhost
