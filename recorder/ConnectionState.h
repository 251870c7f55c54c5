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
    QString operatorName; ///< empty if it is not known, as the SIM
    QString sim;          ///< its number, which belongs in no log
    bool isRoaming = false;
    QDateTime since; ///< in UTC
    qint64 uploadedBytes = 0;
    qint64 downloadedBytes = 0;
    qint64 uploadRate = 0; ///< bytes per second since the last report
    qint64 downloadRate = 0;
};

} // namespace recorder

Q_DECLARE_METATYPE(recorder::ConnectionState)
