// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// One row of statistics: the totals of a profile in three months. The amounts
/// are display texts in one unit, the times whole seconds. The downloaded group
/// deliberately stands before the uploaded one, unlike on screen.
struct AccumulateDialogRecord {
    QString profileName = QLatin1String("");
    QString downloadedThisMonth = QLatin1String("0");
    QString downloadedLastMonth = QLatin1String("0");
    QString downloadedMonthBeforeLast = QLatin1String("0");
    QString uploadedThisMonth = QLatin1String("0");
    QString uploadedLastMonth = QLatin1String("0");
    QString uploadedMonthBeforeLast = QLatin1String("0");
    QString secondsThisMonth = QLatin1String("0");
    QString secondsLastMonth = QLatin1String("0");
    QString secondsMonthBeforeLast = QLatin1String("0");
    /// Ties the row to a month: characters 0 to 3 the year, 4 and 5 the month,
    /// as in "yyyyMMddhhmmss".
    QString periodStamp = QLatin1String("");
};
