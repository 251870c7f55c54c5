// SPDX-License-Identifier: MIT
#include "PluginFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

namespace refdialer
{

QString pluginFile(const QString &folder, const QString &name)
{
    return QDir::cleanPath(
        QStringLiteral("%1/%2/lib%3.so").arg(QCoreApplication::applicationDirPath(), folder, name));
}

QJsonObject ownMetadata(const QPluginLoader &loader)
{
    return loader.metaData().value(QStringLiteral("MetaData")).toObject();
}

} // namespace refdialer
