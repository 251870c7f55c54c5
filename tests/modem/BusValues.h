// SPDX-License-Identifier: MIT
#pragma once

#include "modem/DBusValue.h"

#include <QDBusObjectPath>

// Values of properties, as the bus would bring them.

inline QVariant pathValue(const QString &path)
{
    return QVariant::fromValue(QDBusObjectPath(path));
}

inline QVariant pathValues(const QStringList &paths)
{
    QList<QDBusObjectPath> list;
    for (const QString &path : paths)
        list.append(QDBusObjectPath(path));
    return QVariant::fromValue(list);
}

inline QVariant portValues(const QList<modem::NamedPort> &ports)
{
    return QVariant::fromValue(ports);
}
