// SPDX-License-Identifier: MIT
#pragma once

#include "INotify.h"
#include "IUIPlugin.h"

#include <QPluginLoader>
#include <QPointer>
#include <QTableWidget>
#include <QWidget>

/// The built plug-in, loaded and driven as a host does it. Ends the plug-in with
/// itself, so that each test starts anew; only what the library itself keeps stays.
class LoadedPlugin
{
public:
    LoadedPlugin();
    ~LoadedPlugin();

    static QString fileName();

    /// What the loaded library exports by this name; nothing if it does not.
    template <typename Pointer>
    static Pointer exported(const char *name)
    {
        return reinterpret_cast<Pointer>(symbol(name));
    }

    QObject *root();
    IUIPlugin *ui();
    INotify *notify();

    /// Init, then ShowWindow into an area of this size.
    void show(const QSize &size = QSize(760, 400));
    /// A connection ends, upon which the plug-in fetches and fills everything.
    void reload();
    /// OnDestroy, once however often it is asked for.
    void end();
    /// Deletes the root object and closes the library, whatever else is there.
    /// root() opens it again.
    void unload();

    QWidget *area() { return m_area; }
    /// Deletes the area, as a host that tears down its window first.
    void destroyArea() { delete m_area; }
    QWidget *container() const;
    QTableWidget *table() const;
    /// The history window object itself, which is never shown.
    QObject *historyWindow() const;

private:
    static void *symbol(const char *name);

    QPluginLoader m_loader;
    QPointer<QWidget> m_area;
    bool m_isEnded = false;
};
