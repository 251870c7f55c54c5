// SPDX-License-Identifier: MIT
#include "modem/OwnerChange.h"

#include "modem/BusConnection.h"
#include "modem/Names.h"

#include <QDBusMessage>

namespace modem
{

std::optional<OwnerChange> ownerChangeIn(const QDBusMessage &message)
{
    const bool isOfTheBus = message.service() == names::bus &&
                            message.member() == names::ownerChanged &&
                            message.signature() == QLatin1String("sss");
    if (!isOfTheBus)
        return std::nullopt;
    const QVariantList arguments = message.arguments();
    return OwnerChange{arguments.at(0).toString(), arguments.at(2).toString()};
}

QString ruleForOwnersOf(const QString &name)
{
    return QStringLiteral("type='signal',sender='%1',interface='%1',member='%2',arg0='%3'")
        .arg(names::bus, names::ownerChanged, name);
}

void askForOwner(BusConnection &bus, const QString &name,
                 const std::function<void(const QString &)> &handle)
{
    bus.ask(busCall("GetNameOwner", {name}), QStringLiteral("s"),
            [handle](const QVariantList &reply) {
                handle(reply.isEmpty() ? QString() : reply.first().toString());
            });
}

} // namespace modem
