// SPDX-License-Identifier: MIT
#include "PluginFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

namespace refhost
{

QString pluginFile(const QString &name)
{
    return QDir::cleanPath(
        QCoreApplication::applicationDirPath() +
        QStringLiteral("/" NETINFORECORD_LIBDIR_FROM_BINDIR "/lib%1.so").arg(name));
}

QJsonObject ownMetadata(const QPluginLoader &loader)
{
    return loader.metaData().value(QStringLiteral("MetaData")).toObject();
}

} // namespace refhost
