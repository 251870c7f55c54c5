// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/ConnectionRecorder.h"

#include <QSignalSpy>
#include <QStringList>

/// "INTERFACE up UPLOADED down DOWNLOADED ENDING".
QString textOf(const history::Connection &connection);
/// Whose it is: what is known of that, joined with blanks.
QString ownerOf(const history::Connection &connection);
/// The finished connections in the store at this path.
std::vector<history::Connection> connectionsIn(const QString &storePath);
QStringList recordsIn(const QString &storePath);
std::vector<history::OpenConnection> openRowsIn(const QString &storePath);
/// What a spy on disconnected() has seen.
QStringList recordsSeenBy(const QSignalSpy &disconnections);
/// What a spy on failed() has seen last.
recorder::Problem lastProblemSeenBy(const QSignalSpy &failures);
