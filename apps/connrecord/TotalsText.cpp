// SPDX-License-Identifier: MIT
#include "TotalsText.h"

#include "ConnectionText.h"
#include "TextTable.h"
#include "formats/Utf8Text.h"
#include "usage/CalendarTime.h"
#include "usage/SizeText.h"

namespace connrecord
{

namespace
{

QString monthText(int period)
{
    return QStringLiteral("%1-%2")
        .arg(period / 100, 4, 10, QLatin1Char('0'))
        .arg(period % 100, 2, 10, QLatin1Char('0'));
}

/// An empty name is told from one that is not shown.
QString profileText(const std::string &profile)
{
    return profile.empty() ? QStringLiteral("\"\"") : nameText(profile);
}

TextTable tableFor(const TotalsGroups &groups)
{
    using Alignment = TextTable::Alignment;
    std::vector<TextTable::Column> columns;
    if (groups.byProfile)
        columns.push_back({QStringLiteral("PROFILE"), Alignment::Left});
    if (groups.byMonth)
        columns.push_back({QStringLiteral("MONTH"), Alignment::Left});
    for (const char *const header : {"CONNECTIONS", "CONNECTED", "UPLOADED", "DOWNLOADED"})
        columns.push_back({QString::fromLatin1(header), Alignment::Right});
    return TextTable(std::move(columns));
}

std::vector<QString> row(const history::Totals &totals, const TotalsGroups &groups)
{
    std::vector<QString> cells;
    if (groups.byProfile)
        cells.push_back(profileText(totals.profile));
    if (groups.byMonth)
        cells.push_back(monthText(totals.period));
    cells.push_back(QString::number(totals.connections));
    cells.push_back(usage::durationText(totals.connectedSeconds));
    cells.push_back(usage::sizeText(totals.uploadedBytes));
    cells.push_back(usage::sizeText(totals.downloadedBytes));
    return cells;
}

formats::Json toJson(const history::Totals &totals, const TotalsGroups &groups)
{
    formats::Json object = {{"connections", totals.connections},
                            {"connected_seconds", totals.connectedSeconds},
                            {"uploaded_bytes", totals.uploadedBytes},
                            {"downloaded_bytes", totals.downloadedBytes}};
    if (groups.byProfile)
        object["profile"] = totals.profile;
    if (groups.byMonth)
        object["month"] = monthText(totals.period).toStdString();
    return object;
}

} // namespace

int periodOfMonth(const QDate &day)
{
    return day.year() * 100 + day.month();
}

QByteArray toTable(const std::vector<history::Totals> &totals, const TotalsGroups &groups)
{
    TextTable table = tableFor(groups);
    for (const history::Totals &each : totals)
        table.addRow(row(each, groups));
    return table.text().toUtf8();
}

formats::Json toJson(const std::vector<history::Totals> &totals, const TotalsGroups &groups)
{
    formats::Json array = formats::Json::array();
    for (const history::Totals &each : totals)
        array.push_back(toJson(each, groups));
    return array;
}

} // namespace connrecord
