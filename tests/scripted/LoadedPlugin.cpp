// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"

#include "DialupContainer.h"
#include "ScriptedHost.h"

#include <QApplication>
#include <QFile>

#include <dlfcn.h>

LoadedPlugin::LoadedPlugin()
    : m_loader(fileName())
    , m_area(new QWidget)
{
    m_loader.setLoadHints({}); // Qt would not close the library
    if (!m_loader.load())
        qFatal("%s", qPrintable(m_loader.errorString()));
    m_loader.instance();
}

LoadedPlugin::~LoadedPlugin()
{
    end();
    delete m_area;
    m_loader.unload();
}

void LoadedPlugin::unload()
{
    if (!m_loader.unload())
        qFatal("%s", qPrintable(m_loader.errorString()));
}

QString LoadedPlugin::fileName()
{
    return QStringLiteral(PLUGIN_FILE);
}

/// Not by QLibrary, which counts itself as a user of the library or not, as Qt's version has it.
void *LoadedPlugin::symbol(const char *name)
{
    void *library = dlopen(QFile::encodeName(fileName()).constData(), RTLD_LAZY | RTLD_NOLOAD);
    if (!library)
        qFatal("%s", dlerror());
    void *found = dlsym(library, name);
    dlclose(library); // the loader keeps it open
    return found;
}

QObject *LoadedPlugin::root()
{
    return m_loader.instance();
}

IUIPlugin *LoadedPlugin::ui()
{
    return qobject_cast<IUIPlugin *>(root());
}

INotify *LoadedPlugin::notify()
{
    return qobject_cast<INotify *>(root());
}

void LoadedPlugin::show(const QSize &size)
{
    ui()->Init();
    m_area->resize(size);
    QRect rect(QPoint(0, 0), size);
    ui()->ShowWindow(m_area, rect);
    m_area->show();
}

void LoadedPlugin::reload()
{
    scripted::DialupContainer container;
    scripted::Host::instance().container = &container;
    const unsigned int connectionStatus = 1536;
    notify()->Notify(connectionStatus, 1, 0);
    notify()->Notify(connectionStatus, 0, 0);
    scripted::Host::instance().container = nullptr;
}

void LoadedPlugin::end()
{
    if (m_isEnded)
        return;
    m_isEnded = true;
    static_cast<IDestroyEvent *>(ui())->OnDestroy();
}

QWidget *LoadedPlugin::container() const
{
    return m_area ? m_area->findChild<QWidget *>(
                        QStringLiteral("NetInfoRecordUIPlugin_ConnectionHistoryWidget"))
                  : nullptr;
}

QTableWidget *LoadedPlugin::table() const
{
    return m_area ? m_area->findChild<QTableWidget *>() : nullptr;
}

QObject *LoadedPlugin::historyWindow() const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->inherits("ConnectionHistoryDlg"))
            return widget;
    }
    return nullptr;
}
