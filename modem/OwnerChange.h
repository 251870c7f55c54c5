// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

class QDBusMessage;

namespace modem
{

class BusConnection;

/// A name on the bus has another owner.
struct OwnerChange {
    QString name;
    QString owner; ///< from now on; empty if there is none
};

/// What the bus itself says there, if it is that.
std::optional<OwnerChange> ownerChangeIn(const QDBusMessage &message);

/// The rule that lets the bus tell of it.
QString ruleForOwnersOf(const QString &name);

/// Asks the bus who has the name now; the handler gets an empty text if nobody has.
void askForOwner(BusConnection &bus, const QString &name,
                 const std::function<void(const QString &)> &handle);

} // namespace modem
