// SPDX-License-Identifier: MIT
#include "PluginFile.h"

#include <QCoreApplication>
#include <QDir>

namespace refhost
{

QString pluginFile(const QString &name)
{
    return QDir::cleanPath(
        QCoreApplication::applicationDirPath() +
        QStringLiteral("/" NETINFORECORD_LIBDIR_FROM_BINDIR "/lib%1.so").arg(name));
}

} // namespace refhost
