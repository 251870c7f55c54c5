// SPDX-License-Identifier: MIT
#pragma once

#include "INotify.h"
#include "IUIPlugin.h"

#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QTableWidget>
#include <QWidget>

/// The built plug-in, loaded and driven as a host does it. Ends the plug-in and
/// unloads the library with itself, so that each test starts anew.
class LoadedPlugin
{
public:
    /// The toolkit keeps the library in memory after its end unless it is told
    /// otherwise; without a hint it really goes.
    explicit LoadedPlugin(QLibrary::LoadHints hints = QLibrary::PreventUnloadHint);
    ~LoadedPlugin();

    static QString fileName();

    QObject *root();
    IUIPlugin *ui();
    INotify *notify();

    /// Init, then ShowWindow into an area of this size.
    void show(const QSize &size = QSize(760, 400));
    /// OnDestroy, once however often it is asked for.
    void end();

    QWidget *area() { return m_area; }
    /// Deletes the area, as a host that tears down its window first.
    void destroyArea() { delete m_area; }
    QWidget *container() const;
    QTableWidget *table() const;
    /// The history window object itself, which is never shown.
    QObject *historyWindow() const;

private:
    QPluginLoader m_loader;
    QPointer<QWidget> m_area;
    bool m_isEnded = false;
};
