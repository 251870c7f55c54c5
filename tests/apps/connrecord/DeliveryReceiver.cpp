// SPDX-License-Identifier: MIT
#include "DeliveryReceiver.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QList>

#include <utility>

namespace
{

/// One of each line.
QList<QJsonObject> objectsIn(const QByteArray &lines)
{
    QList<QJsonObject> objects;
    for (const QByteArray &line : lines.split('\n')) {
        if (!line.isEmpty())
            objects << QJsonDocument::fromJson(line).object();
    }
    return objects;
}

std::pair<int, QString> ageOf(const QJsonObject &last)
{
    return {last.value("last_key").toInt(), last.value("delivered").toString()};
}

} // namespace

qint64 lastKeyOf(const QByteArray &delivery)
{
    return objectsIn(delivery).last().value("last_key").toInt();
}

void DeliveryReceiver::take(const QByteArray &delivery)
{
    QList<QJsonObject> objects = objectsIn(delivery);
    const QJsonObject last = objects.takeLast();
    if (last.value("connections").toInt(-1) != objects.size())
        qFatal("a delivery does not say how long it is: %s", delivery.constData());
    keepNewest(last);
    for (const QJsonObject &object : std::as_const(objects))
        keep(object);
}

std::multiset<int> DeliveryReceiver::sent() const
{
    std::multiset<int> bytes;
    for (const auto &[key, object] : m_finished) {
        if (!isRemoved(key))
            bytes.insert(object.value("uploaded_bytes").toInt());
    }
    for (const auto &[key, object] : m_running) {
        if (m_newest.value("running").toArray().contains(key))
            bytes.insert(object.value("uploaded_bytes").toInt());
    }
    return bytes;
}

void DeliveryReceiver::keepNewest(const QJsonObject &last)
{
    if (m_newest.isEmpty() || ageOf(m_newest) < ageOf(last))
        m_newest = last;
}

/// A finished connection never changes, one that lasts is what was told of it last.
void DeliveryReceiver::keep(const QJsonObject &connection)
{
    const int key = connection.value("key").toInt();
    if (!connection.value("running").toBool()) {
        m_finished.insert({key, connection});
        return;
    }
    const auto updated = [](const QJsonObject &each) { return each.value("updated").toString(); };
    QJsonObject &known = m_running[key];
    if (updated(known) <= updated(connection))
        known = connection;
}

bool DeliveryReceiver::isRemoved(int key) const
{
    for (const QJsonValue &range : m_newest.value("removed").toArray()) {
        if (key >= range.toArray().at(0).toInt() && key <= range.toArray().at(1).toInt())
            return true;
    }
    return false;
}
