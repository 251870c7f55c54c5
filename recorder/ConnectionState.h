// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QString>

namespace recorder
{

/// A connection that lasts, as it is at the moment.
struct ConnectionState {
    qint64 id = 0; ///< of this connection alone
    QString profile;
    QString interfaceName;
    // Whose it is, as far as known; what is unknown is empty.
    QString operatorName;
    QString operatorCode; ///< MCC and MNC
    QString sim;          ///< its number, which belongs in no log
    bool isRoaming = false;
    QString technology; ///< of access: "lte" ...
    QDateTime since;    ///< in UTC
    qint64 uploadedBytes = 0;
    qint64 downloadedBytes = 0;
    qint64 uploadRate = 0; ///< bytes per second since the last report
    qint64 downloadRate = 0;
};

} // namespace recorder

Q_DECLARE_METATYPE(recorder::ConnectionState)
