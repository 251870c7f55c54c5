// SPDX-License-Identifier: MIT
#include "recorder/bus/BusName.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <filesystem>

namespace recorder
{

namespace
{

QByteArray realBytes(const QString &file)
{
    const std::filesystem::path path(QFile::encodeName(file).toStdString());
    std::error_code error;
    const auto real = std::filesystem::weakly_canonical(path, error);
    return QByteArray::fromStdString((error ? path : real).string());
}

} // namespace

QString realPath(const QString &file)
{
    return QFile::decodeName(realBytes(file));
}

QString busNameFor(const QString &name, const QString &storeFile)
{
    const QByteArray path = realBytes(storeFile);
    // Wherever XDG_DATA_HOME points to in one of the programs: all that share a bus have to
    // mean the same history by the same name.
    if (path ==
        realBytes(QDir::homePath() + QLatin1String("/.local/share/refdialer/connections.db")))
        return name;
    const QByteArray digest = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex();
    // A part of a name must not begin with a digit.
    return name + QLatin1String(".store") + QString::fromLatin1(digest.left(32));
}

QString objectPathFor(const QString &name)
{
    return QLatin1Char('/') + QString(name).replace(QLatin1Char('.'), QLatin1Char('/'));
}

QString sessionBusAddress()
{
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!address.isEmpty() || folder.isEmpty())
        return address;
    return QStringLiteral("unix:path=%1/bus").arg(folder);
}

} // namespace recorder
