// SPDX-License-Identifier: MIT
#include "ConnectionText.h"

#include "CalendarTime.h"
#include "TextTable.h"
#include "Utf8Text.h"

#include <QJsonObject>
#include <QLocale>

namespace refhost
{

namespace
{

constexpr int mostCharactersInCell = 60;

QJsonObject toJson(const Connection &connection)
{
    return {{QStringLiteral("key"), static_cast<qint64>(connection.key)},
            {QStringLiteral("profile"), fromUtf8(connection.profile)},
            {QStringLiteral("start"), utcText(connection.startUtc)},
            {QStringLiteral("end"), utcText(connection.endUtc)},
            {QStringLiteral("connected_seconds"), static_cast<qint64>(connection.connectedSeconds)},
            {QStringLiteral("uploaded_bytes"), static_cast<qint64>(connection.uploadedBytes)},
            {QStringLiteral("downloaded_bytes"), static_cast<qint64>(connection.downloadedBytes)},
            {QStringLiteral("ending"), fromUtf8(connection.ending)},
            {QStringLiteral("interface"), fromUtf8(connection.interfaceName)}};
}

} // namespace

QString nameText(const std::string &name)
{
    return printable(fromUtf8(name), mostCharactersInCell);
}

QString volumeText(std::int64_t bytes)
{
    return QLocale::c().formattedDataSize(bytes);
}

QByteArray toTable(const std::vector<Connection> &connections)
{
    using Alignment = TextTable::Alignment;
    TextTable table({{QStringLiteral("KEY"), Alignment::Right},
                     {QStringLiteral("PROFILE"), Alignment::Left},
                     {QStringLiteral("START"), Alignment::Left},
                     {QStringLiteral("END"), Alignment::Left},
                     {QStringLiteral("CONNECTED"), Alignment::Right},
                     {QStringLiteral("UPLOADED"), Alignment::Right},
                     {QStringLiteral("DOWNLOADED"), Alignment::Right},
                     {QStringLiteral("ENDING"), Alignment::Left},
                     {QStringLiteral("INTERFACE"), Alignment::Left}});
    for (const Connection &connection : connections)
        table.addRow({QString::number(connection.key), nameText(connection.profile),
                      localText(connection.startUtc), localText(connection.endUtc),
                      durationText(connection.connectedSeconds),
                      volumeText(connection.uploadedBytes), volumeText(connection.downloadedBytes),
                      nameText(connection.ending), nameText(connection.interfaceName)});
    return table.text().toUtf8();
}

QJsonArray toJson(const std::vector<Connection> &connections)
{
    QJsonArray array;
    for (const Connection &connection : connections)
        array.append(toJson(connection));
    return array;
}

} // namespace refhost
