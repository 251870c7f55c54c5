// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// Local times as texts "yyyyMMddhhmmss". Both ways give exactly what Qt gives for this
/// format (of() what it gives for the C locale), in a fraction of its time: the common
/// cases are done here, and Qt is asked about all others.
namespace TimeText
{

/// The time that a text names; invalid if it names none.
QDateTime parsed(const QString &text);

/// The text of a time in seconds since 1970-01-01 00:00 UTC. Its digits are
/// ASCII in every language.
QString of(quint32 secondsSinceEpoch);

} // namespace TimeText
