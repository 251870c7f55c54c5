// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionRecorder.h"

#include <QSignalSpy>
#include <QStringList>

/// "INTERFACE up UPLOADED down DOWNLOADED ENDING".
QString textOf(const refhost::Connection &connection);
/// The finished connections in the store at this path.
std::vector<refhost::Connection> connectionsIn(const QString &storePath);
QStringList recordsIn(const QString &storePath);
std::vector<refhost::OpenConnection> openRowsIn(const QString &storePath);
/// What a spy on disconnected() has seen.
QStringList recordsSeenBy(const QSignalSpy &disconnections);
