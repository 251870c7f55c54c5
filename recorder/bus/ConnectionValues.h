// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantMap>

namespace history
{
struct Connection;
}

namespace recorder
{

struct ConnectionState;

// Connections as the bus carries them, by the names that docs/dbus.md lists.

QVariantMap valuesOf(const ConnectionState &state);
QVariantMap valuesOf(const history::Connection &connection);

/// Of whom and of what the values tell, whatever has been moved since.
QVariantMap identityIn(const QVariantMap &values);

} // namespace recorder
