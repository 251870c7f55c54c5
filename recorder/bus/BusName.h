// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace recorder
{

/// The path without symbolic links, as far as it is there.
QString realPath(const QString &file);

/// The name on a session bus of who serves the store at this path, by whichever of its
/// names: `name` itself for the store in the home folder, one below it for any other.
QString busNameFor(const QString &name, const QString &storeFile);

/// Where the interface of this name has its object: the rule of the bus's own services.
QString objectPathFor(const QString &name);

/// Where the environment says that the session bus is; empty without one.
QString sessionBusAddress();

} // namespace recorder
