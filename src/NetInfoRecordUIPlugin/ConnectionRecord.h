// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// One connection, ready for display. The identifier stays the first member:
/// the record's address is also the address of its identifier.
struct ConnectionRecord {
    int m_nRecordId = -1; ///< position in the SDK's last list, -1 when unset
    QString m_strProfileName = QStringLiteral("");
    QString m_strStartTime = QStringLiteral(""); ///< local time, "yyyyMMddhhmmss"
    QString m_strEndTime = QStringLiteral("");   ///< local time, "yyyyMMddhhmmss"
    QString m_strReserved = QStringLiteral("");  ///< never filled; kept for its place
    QString m_strUploaded = QStringLiteral("");  ///< two decimals and a unit
    QString m_strDownloaded = QStringLiteral("");
    QString m_strExtraText1 = QStringLiteral(""); ///< the SDK's own, as it stands
    QString m_strExtraText2 = QStringLiteral("");
    QString m_strConnectedTime = QStringLiteral(""); ///< "HH:MM:SS", hours without limit
};
