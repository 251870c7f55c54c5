// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class QDBusMessage;

namespace recorder
{

/// A name on the bus has another owner.
struct OwnerChange {
    QString name;
    QString owner; ///< from now on; empty if there is none
};

/// What the bus itself says there, if it is that.
std::optional<OwnerChange> ownerChangeIn(const QDBusMessage &message);

/// The rule that lets the bus tell of it.
QString ruleForOwnersOf(const QString &name);

} // namespace recorder
