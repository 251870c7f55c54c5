// SPDX-License-Identifier: MIT
#pragma once

#include "LocalZone.h"
#include "NamedStore.h"

#include <QStringList>

#include <string>

/// Three years of connections in a store that the program and the statistics
/// SDK use, in a zone of local time that both have. They begin at random times and
/// around the turns of the months, some last for days; profiles differ in case
/// alone, are empty or have the name of an identifier; some have moved 2^53
/// bytes. One connection has begun and not been finished.
class YearsOfHistory
{
public:
    YearsOfHistory(const char *zone, int firstYear);

    /// What "connrecord totals --json" with these options tells, one line for each sum: the
    /// values of these keys, joined with |.
    static QStringList totalsTold(const QStringList &options, const QStringList &keys);
    /// The rows that a query on the store gives, their values joined in that way.
    QStringList rowsOf(const std::string &query) const;

private:
    LocalZone m_zone;
    NamedStore m_store;
};
