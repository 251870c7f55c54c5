// SPDX-License-Identifier: MIT
#pragma once

#include "StatisticsStore.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>

#include <vector>

namespace refhost
{

/// The connections as a table for people, times in local time.
QByteArray toTable(const std::vector<Connection> &connections);

/// The connections for programs: exact integers, times as ISO 8601 in UTC.
QJsonArray toJson(const std::vector<Connection> &connections);

/// The document's text, indented, ended by a line feed.
QByteArray jsonText(const QJsonArray &array);
QByteArray jsonText(const QJsonObject &object);

} // namespace refhost
