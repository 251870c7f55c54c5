// SPDX-License-Identifier: MIT
#include "JsonText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVariant>

#include <nlohmann/json.hpp>

namespace refhost
{

namespace
{

using Json = nlohmann::json;

Json toJson(const QJsonValue &value);

Json toJson(const QJsonArray &array)
{
    Json json = Json::array();
    for (const QJsonValue &value : array)
        json.push_back(toJson(value));
    return json;
}

Json toJson(const QJsonObject &object)
{
    Json json = Json::object();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        json[entry.key().toStdString()] = toJson(entry.value());
    return json;
}

Json toJson(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Array:
        return toJson(value.toArray());
    case QJsonValue::Object:
        return toJson(value.toObject());
    case QJsonValue::Double:
        return value.toVariant().toLongLong();
    default:
        return value.toString().toStdString();
    }
}

} // namespace

QByteArray jsonText(const QJsonValue &value)
{
    constexpr int indent = 4;
    return QByteArray::fromStdString(toJson(value).dump(indent)) + '\n';
}

} // namespace refhost
