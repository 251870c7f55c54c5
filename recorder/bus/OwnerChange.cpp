// SPDX-License-Identifier: MIT
#include "recorder/bus/OwnerChange.h"

#include "modem/BusConnection.h"
#include "modem/Names.h"

#include <QDBusMessage>

namespace recorder
{

namespace names = modem::names;

std::optional<OwnerChange> ownerChangeIn(const QDBusMessage &message)
{
    const bool isOfTheBus = modem::isFrom(message, names::bus) &&
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

} // namespace recorder
