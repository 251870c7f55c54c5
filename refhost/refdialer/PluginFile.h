// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace refhost
{

/// The path of a plug-in that came with this program, by its library's name.
QString pluginFile(const QString &name);

} // namespace refhost
