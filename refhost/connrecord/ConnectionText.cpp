// SPDX-License-Identifier: MIT
#include "ConnectionText.h"

#include "CalendarTime.h"
#include "TextTable.h"
#include "Utf8Text.h"

namespace refhost
{

namespace
{

constexpr int mostCharactersInCell = 60;

Json toJson(const Connection &connection)
{
    return {{"key", connection.key},
            {"profile", connection.profile},
            {"start", utcText(connection.startUtc).toStdString()},
            {"end", utcText(connection.endUtc).toStdString()},
            {"connected_seconds", connection.connectedSeconds},
            {"uploaded_bytes", connection.uploadedBytes},
            {"downloaded_bytes", connection.downloadedBytes},
            {"ending", connection.ending},
            {"interface", connection.interfaceName}};
}

} // namespace

QString nameText(const std::string &name)
{
    return printable(fromUtf8(name), mostCharactersInCell);
}

QString volumeText(std::int64_t bytes)
{
    constexpr double kilobyte = 1024;
    constexpr double megabyte = kilobyte * kilobyte;
    constexpr double gigabyte = megabyte * kilobyte;
    const auto size = static_cast<double>(bytes);
    if (size < megabyte)
        return QString::asprintf("%.2f KB", size / kilobyte);
    if (size < gigabyte)
        return QString::asprintf("%.2f MB", size / megabyte);
    return QString::asprintf("%.2f GB", size / gigabyte);
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

Json toJson(const std::vector<Connection> &connections)
{
    Json array = Json::array();
    for (const Connection &connection : connections)
        array.push_back(toJson(connection));
    return array;
}

} // namespace refhost
