// SPDX-License-Identifier: MIT
#include "modem/BusAddress.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace modem
{

QString systemBusAddress()
{
    const QString address = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS");
    return address.isEmpty() ? QStringLiteral("unix:path=/var/run/dbus/system_bus_socket")
                             : address;
}

bool isLocalBusAddress(const QString &address)
{
    const QStringList entries = address.split(QLatin1Char(';'));
    return std::all_of(entries.begin(), entries.end(), [](const QString &entry) {
        return entry.startsWith(QLatin1String("unix:"));
    });
}

QString socketOfBusAddress(const QString &address)
{
    static const QRegularExpression path(QStringLiteral("[:,]path=([^,;]+)"));
    return QUrl::fromPercentEncoding(path.match(address).captured(1).toUtf8());
}

} // namespace modem
