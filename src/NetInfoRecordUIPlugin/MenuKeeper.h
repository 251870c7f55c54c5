// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class QMenu;
class QTableWidget;

/// Keeps a table's menus while a question is open, even if a host destroys the
/// table meanwhile: the question may have come out of a menu's own handling of a
/// click, which still needs the menu afterwards. Of questions within questions
/// the outermost one keeps them, having been there first.
class MenuKeeper
{
public:
    explicit MenuKeeper(const QTableWidget *table);
    ~MenuKeeper();
    Q_DISABLE_COPY(MenuKeeper)

private:
    void keepMenusOf(const QObject *table);

    QList<QMenu *> m_menus;
    QMetaObject::Connection m_connection;
};
