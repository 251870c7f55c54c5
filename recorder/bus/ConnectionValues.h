// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

#include <optional>

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

// What is missing, or is not what it should be, counts as empty.

/// Nothing without an id or a beginning.
std::optional<ConnectionState> stateIn(const QVariantMap &values);
/// At most as many as anybody can have.
QList<QVariantMap> connectionsIn(const QVariant &value);
QString textIn(const QVariant &value);

/// Of whom and of what the values tell, whatever has been moved since.
QVariantMap identityIn(const QVariantMap &values);

} // namespace recorder
