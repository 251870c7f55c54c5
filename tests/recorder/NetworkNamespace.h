// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Moves this process, which must have one thread only, into a network without
/// any interface but its own loopback, and without IPv6, whose greetings nobody
/// asked for. Returns why that is not possible, or nothing.
QString enterNetworkNamespace();

/// Runs ip with these arguments, separated by blanks; false, with its complaint
/// in the log, if it fails.
bool ip(const QString &arguments);
/// The same with many lines at once.
bool ipBatch(const QString &lines);

/// Whether the interface carries traffic both ways.
bool isRunning(const char *interfaceName);

/// Sends `count` UDP datagrams of `size` bytes from the interface to the address.
bool sendDatagrams(const char *interfaceName, const char *address, int count, int size);
