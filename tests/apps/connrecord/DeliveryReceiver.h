// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>

#include <map>
#include <set>

/// The key that a delivery tells to ask with next time.
qint64 lastKeyOf(const QByteArray &delivery);

/// Where the deliveries of one machine arrive, in any order and however often.
class DeliveryReceiver
{
public:
    void take(const QByteArray &delivery);
    /// The bytes sent of each connection, finished or not.
    std::multiset<int> sent() const;

private:
    void keepNewest(const QJsonObject &last);
    void keep(const QJsonObject &connection);
    bool isRemoved(int key) const;

    std::map<int, QJsonObject> m_finished;
    std::map<int, QJsonObject> m_running;
    QJsonObject m_newest; ///< what the newest delivery tells of itself
};
