// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace modem
{

/// Where the environment, or else the rule of the bus, says that the system bus is.
QString systemBusAddress();
/// Whether it leads to sockets of this computer alone: reaching another one takes time.
bool isLocalBusAddress(const QString &address);
/// The file of the socket, if the address names one.
QString socketOfBusAddress(const QString &address);

} // namespace modem
