// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace modem
{

/// A port of a modem, as the property Ports has it.
struct NamedPort {
    QString name;
    uint type = 0;
};

const QDBusArgument &operator>>(const QDBusArgument &argument, NamedPort &port);

// What came over the bus as what it should be. A value of another type, of an absurd
// size or with control characters counts as missing, which is what a default value means.

QString textOf(const QVariant &value);
uint numberOf(const QVariant &value);
bool flagOf(const QVariant &value);
/// Empty for "/", which stands for no object.
QString pathOf(const QVariant &value);
/// The first of them, without duplicates, if there are absurdly many.
QStringList pathsOf(const QVariant &value);
QList<NamedPort> portsOf(const QVariant &value);
QVariantMap mapOf(const QVariant &value);

/// The text if the kernel could have a network interface of that name, else nothing.
QString interfaceNameOf(const QVariant &value);
/// The text if it is five or six digits.
QString operatorCodeOf(const QVariant &value);
/// The text if it can be the number of a SIM, without the filling at its end.
QString simNumberOf(const QVariant &value);

} // namespace modem

Q_DECLARE_METATYPE(modem::NamedPort)
