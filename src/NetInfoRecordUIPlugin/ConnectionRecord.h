// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// One connection, ready for display. The identifier stays the first member:
/// the record's address is also the address of its identifier.
struct ConnectionRecord {
    int m_nRecordId = -1; ///< position in the SDK's last list, -1 when unset
    QString m_strProfileName = QLatin1String("");
    QString m_strStartTime = QLatin1String(""); ///< local time, "yyyyMMddhhmmss"
    QString m_strEndTime = QLatin1String("");   ///< local time, "yyyyMMddhhmmss"
    QString m_strReserved = QLatin1String("");  ///< never filled; kept for its place
    QString m_strUploaded = QLatin1String("");  ///< two decimals and a unit
    QString m_strDownloaded = QLatin1String("");
    QString m_strExtraText1 = QLatin1String(""); ///< the SDK's own, as it stands
    QString m_strExtraText2 = QLatin1String("");
    QString m_strConnectedTime = QLatin1String(""); ///< "HH:MM:SS", hours without limit
};
