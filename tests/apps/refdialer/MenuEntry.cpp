// SPDX-License-Identifier: MIT
#include "MenuEntry.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace
{

QAction *actionNamed(const QList<QAction *> &actions, const QString &text)
{
    for (QAction *const action : actions) {
        if (action->text().remove(QLatin1Char('&')) == text)
            return action;
    }
    return nullptr;
}

} // namespace

QAction *menuEntry(const QMainWindow &window, const QStringList &path)
{
    QAction *entry = nullptr;
    QList<QAction *> actions = window.findChild<QMenuBar *>()->actions();
    for (const QString &text : path) {
        entry = actionNamed(actions, text);
        if (!entry)
            return nullptr;
        actions = entry->menu() ? entry->menu()->actions() : QList<QAction *>();
    }
    return entry;
}
