// SPDX-License-Identifier: MIT
#include "modem/DBusValue.h"

#include <QDBusObjectPath>
#include <QRegularExpression>

#include <algorithm>

namespace modem
{

namespace
{

/// An APN has at most 100 characters, and the others are shorter.
constexpr int longestText = 100;
/// What the kernel allows for an interface, without its terminator.
constexpr int longestInterfaceName = 15;
/// Far more ports or bearers than a modem has.
constexpr int mostElements = 64;

/// The value, which the bus brings as a QDBusArgument unless it is of a simple type.
template <typename T>
T valueOf(const QVariant &value, const char *signature)
{
    if (value.userType() == qMetaTypeId<T>())
        return value.value<T>();
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    return argument.currentSignature() == QLatin1String(signature) ? qdbus_cast<T>(argument) : T();
}

bool isPrintable(QChar character)
{
    return character.isPrint() || character.isSurrogate();
}

QString textIfMatching(const QVariant &value, const char *pattern)
{
    const QString text = textOf(value);
    const QRegularExpression expected(QRegularExpression::anchoredPattern(QLatin1String(pattern)));
    return expected.match(text).hasMatch() ? text : QString();
}

} // namespace

const QDBusArgument &operator>>(const QDBusArgument &argument, NamedPort &port)
{
    argument.beginStructure();
    argument >> port.name >> port.type;
    argument.endStructure();
    return argument;
}

QString textOf(const QVariant &value)
{
    const QString text = valueOf<QString>(value, "s");
    const bool isSane =
        text.size() <= longestText && std::all_of(text.begin(), text.end(), isPrintable);
    return isSane ? text.trimmed() : QString();
}

uint numberOf(const QVariant &value)
{
    return valueOf<uint>(value, "u");
}

bool flagOf(const QVariant &value)
{
    return valueOf<bool>(value, "b");
}

QString pathOf(const QVariant &value)
{
    const QString path = valueOf<QDBusObjectPath>(value, "o").path();
    return path == QLatin1String("/") ? QString() : path;
}

QStringList pathsOf(const QVariant &value)
{
    QStringList paths;
    for (const QDBusObjectPath &path :
         valueOf<QList<QDBusObjectPath>>(value, "ao").mid(0, mostElements))
        paths.append(path.path());
    paths.removeDuplicates();
    return paths;
}

QList<NamedPort> portsOf(const QVariant &value)
{
    return valueOf<QList<NamedPort>>(value, "a(su)").mid(0, mostElements);
}

QVariantMap mapOf(const QVariant &value)
{
    return valueOf<QVariantMap>(value, "a{sv}");
}

QString interfaceNameOf(const QVariant &value)
{
    const QString name = textIfMatching(value, "(?!\\.{1,2}$)[^/\\s]+");
    return name.toUtf8().size() <= longestInterfaceName ? name : QString();
}

QString operatorCodeOf(const QVariant &value)
{
    return textIfMatching(value, "[0-9]{5,6}");
}

QString simNumberOf(const QVariant &value)
{
    // Twenty places, some with letters where others have digits, filled up with F.
    static const QRegularExpression filling(QStringLiteral("[Ff]+$"));
    return textIfMatching(value, "[0-9A-Za-z]{1,24}").remove(filling);
}

} // namespace modem
