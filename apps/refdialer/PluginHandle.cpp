// SPDX-License-Identifier: MIT
#include "PluginHandle.h"

#include "Failure.h"
#include "PluginFile.h"
#include "SummaryChoice.h"

#include "INotify.h"
#include "IUIPlugin.h"

#include <QApplication>
#include <QFileInfo>
#include <QPluginLoader>
#include <QRect>
#include <QWidget>

namespace refdialer
{

namespace
{

constexpr unsigned int textsChanged = 1024;
constexpr unsigned int connectionChanged = 1536;

/// The plug-in's history window, which is known by the name of its class alone;
/// null once the plug-in has ended.
QWidget *historyWindow()
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        if (qstrcmp(widget->metaObject()->className(), "ConnectionHistoryDlg") == 0)
            return widget;
    }
    return nullptr;
}

} // namespace

QString PluginHandle::defaultFile()
{
    return pluginFile(QStringLiteral(NETINFORECORD_PLUGINDIR_FROM_BINDIR),
                      QStringLiteral("NetInfoRecordUIPlugin"));
}

std::unique_ptr<PluginHandle> PluginHandle::load(const QString &file)
{
    if (!QFileInfo(file).isFile())
        fail(tr("The plug-in %1 is not there.").arg(file));
    QPluginLoader loader(file);
    // All symbols at once: one that libcore or libsdk does not give is a sentence
    // now and not a crash later.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    checkMetadata(file, loader);
    QObject *const root = loader.instance();
    if (!root)
        fail(tr("The plug-in %1 cannot be loaded: %2.").arg(file, loader.errorString()));
    auto handle = adopt(root);
    if (!handle) {
        delete root;
        fail(tr("The plug-in %1 does not offer the interfaces %2 and %3.")
                 .arg(file, QStringLiteral(IUIPlugin_iid), QStringLiteral(INotify_iid)));
    }
    handle->m_hasStatistics = ownMetadata(loader).value(QStringLiteral("Statistics")).toBool();
    return handle;
}

void PluginHandle::checkMetadata(const QString &file, const QPluginLoader &loader)
{
    const QString interface = loader.metaData().value(QStringLiteral("IID")).toString();
    if (interface.isEmpty())
        fail(tr("%1 is not a plug-in for Qt %2: %3.")
                 .arg(file, QString::fromLatin1(qVersion()), loader.errorString()));
    if (interface != QStringLiteral(IUIPlugin_iid))
        fail(tr("The plug-in %1 is for something else: its interface is %2 and not %3.")
                 .arg(file, interface, QStringLiteral(IUIPlugin_iid)));
}

void PluginHandle::fail(const QString &problem)
{
    throw Failure{
        ExitCode::PluginNotLoaded,
        problem + QLatin1Char(' ') +
            tr("Install refdialer again, or name the file of a fitting plug-in with --plugin.")};
}

std::unique_ptr<PluginHandle> PluginHandle::adopt(QObject *root)
{
    auto *const ui = qobject_cast<IUIPlugin *>(root);
    auto *const events = qobject_cast<INotify *>(root);
    if (!ui || !events)
        return nullptr;
    return std::unique_ptr<PluginHandle>(new PluginHandle(root, ui, events));
}

PluginHandle::PluginHandle(QObject *root, IUIPlugin *ui, INotify *events)
    : m_root(root)
    , m_ui(ui)
    , m_events(events)
{
}

PluginHandle::~PluginHandle()
{
    end();
    delete m_root;
}

QObject *PluginHandle::root() const
{
    return m_root;
}

QString PluginHandle::classId() const
{
    return m_ui->GetCLSID();
}

bool PluginHandle::start()
{
    return m_ui->Init();
}

void PluginHandle::showIn(QWidget *area)
{
    QRect rect = area->rect();
    if (!m_hasEnded)
        m_ui->ShowWindow(area, rect);
}

void PluginHandle::fitTo(const QRect &rect)
{
    QRect fitted = rect;
    if (!m_hasEnded)
        m_ui->FitSize(fitted);
}

void PluginHandle::hide()
{
    if (!m_hasEnded)
        m_ui->Hide();
}

void PluginHandle::changeLanguage(const QString &language)
{
    if (!m_hasEnded && m_ui->ChangeLang(language))
        m_events->Notify(textsChanged, 0, 0);
}

void PluginHandle::tellConnected()
{
    tellConnection(1);
}

void PluginHandle::tellDisconnected()
{
    tellConnection(0);
}

// The end of a connection is the one thing that makes a plug-in load its table.
void PluginHandle::reload()
{
    const bool wasConnected = m_isConnected;
    const refhost::TemporarySetting withoutSummary = suppressSummary();
    tellConnected();
    tellDisconnected();
    if (wasConnected)
        tellConnected();
}

void PluginHandle::tellConnection(unsigned int status)
{
    m_isConnected = status == 1;
    if (!m_hasEnded)
        m_events->Notify(connectionChanged, status, 0);
}

bool PluginHandle::showStatistics()
{
    QWidget *const window = historyWindow();
    return window && QMetaObject::invokeMethod(window, "OnAccumulateClicked");
}

void PluginHandle::end()
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    m_ui->OnDestroy();
}

} // namespace refdialer
