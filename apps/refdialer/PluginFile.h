// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

class QPluginLoader;

namespace refdialer
{

/// The path of a plug-in that came with this program, given its folder as seen from
/// the program's and its library's name.
QString pluginFile(const QString &folder, const QString &name);

/// What a plug-in says of itself in its metadata.
QJsonObject ownMetadata(const QPluginLoader &loader);

} // namespace refdialer
