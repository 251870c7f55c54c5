// SPDX-License-Identifier: MIT
#include "ConnectionText.h"

#include "TextTable.h"
#include "formats/Utf8Text.h"
#include "usage/CalendarTime.h"
#include "usage/SizeText.h"

namespace connrecord
{

namespace
{

constexpr int mostCharactersInCell = 60;

formats::Json toJson(const history::Connection &connection)
{
    return {{"key", connection.key},
            {"profile", connection.profile},
            {"start", usage::utcText(connection.startUtc).toStdString()},
            {"end", usage::utcText(connection.endUtc).toStdString()},
            {"connected_seconds", connection.connectedSeconds},
            {"uploaded_bytes", connection.uploadedBytes},
            {"downloaded_bytes", connection.downloadedBytes},
            {"ending", connection.ending},
            {"interface", connection.interfaceName}};
}

} // namespace

QString nameText(const std::string &name)
{
    return formats::printable(formats::fromUtf8(name), mostCharactersInCell);
}

QByteArray toTable(const std::vector<history::Connection> &connections)
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
    for (const history::Connection &connection : connections)
        table.addRow({QString::number(connection.key), nameText(connection.profile),
                      usage::localText(connection.startUtc), usage::localText(connection.endUtc),
                      usage::durationText(connection.connectedSeconds),
                      usage::sizeText(connection.uploadedBytes),
                      usage::sizeText(connection.downloadedBytes), nameText(connection.ending),
                      nameText(connection.interfaceName)});
    return table.text().toUtf8();
}

formats::Json toJson(const std::vector<history::Connection> &connections)
{
    formats::Json array = formats::Json::array();
    for (const history::Connection &connection : connections)
        array.push_back(toJson(connection));
    return array;
}

} // namespace connrecord
