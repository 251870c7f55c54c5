// SPDX-License-Identifier: MIT
#include "TotalsText.h"

#include "ConnectionText.h"
#include "TextTable.h"
#include "formats/JsonText.h"
#include "usage/CalendarTime.h"
#include "usage/SizeText.h"

#include <array>
#include <string>
#include <utility>

namespace connrecord
{

namespace
{

using usage::Grouping;
using usage::Period;
using usage::Sum;

/// One thing that sums are told apart by, besides time.
struct Property {
    const char *name;
    const char *heading;
    bool Grouping::*isApart;
    std::string (*value)(const Sum &);
};

constexpr std::array<Property, 4> properties = {{
    {"profile", "PROFILE", &Grouping::byProfile, [](const Sum &sum) { return sum.profile; }},
    {"sim", "SIM", &Grouping::bySim, [](const Sum &sum) { return sum.sim; }},
    {"operator", "OPERATOR", &Grouping::byOperator,
     [](const Sum &sum) { return sum.operatorName; }},
    {"roaming", "ROAMING", &Grouping::byRoaming,
     [](const Sum &sum) { return std::string(sum.isRoaming ? history::abroad : history::atHome); }},
}};

struct PeriodName {
    const char *name;
    const char *heading;
    Period period;
};

constexpr std::array<PeriodName, 5> periods = {{
    {"hour", "HOUR", Period::Hour},
    {"day", "DAY", Period::Day},
    {"month", "MONTH", Period::Month},
    {"year", "YEAR", Period::Year},
    {"period", "PERIOD", Period::Billing},
}};

const PeriodName *nameOf(Period period)
{
    for (const PeriodName &each : periods) {
        if (each.period == period)
            return &each;
    }
    return nullptr;
}

/// Whether the name adds something to the grouping.
bool addTo(Grouping &grouping, std::string_view name)
{
    for (const Property &property : properties) {
        if (name == property.name)
            return !std::exchange(grouping.*property.isApart, true);
    }
    for (const PeriodName &each : periods) {
        if (name == each.name)
            return std::exchange(grouping.period, each.period) == Period::All;
    }
    return false;
}

/// An empty name is told from one that is not shown.
QString cellText(const Property &property, const Sum &sum)
{
    const std::string value = property.value(sum);
    if (value.empty())
        return QStringLiteral("\"\"");
    return property.isApart == &Grouping::bySim ? simText(value) : nameText(value);
}

TextTable tableFor(const TotalsForm &form)
{
    using Alignment = TextTable::Alignment;
    std::vector<TextTable::Column> columns;
    for (const Property &property : properties) {
        if (form.grouping.*property.isApart)
            columns.push_back({property.heading, Alignment::Left});
    }
    if (const PeriodName *const period = nameOf(form.grouping.period))
        columns.push_back({period->heading, Alignment::Left});
    columns.push_back({"CONNECTIONS", Alignment::Right});
    if (form.showsTimeConnected)
        columns.push_back({"CONNECTED", Alignment::Right});
    columns.push_back({"UPLOADED", Alignment::Right});
    columns.push_back({"DOWNLOADED", Alignment::Right});
    return TextTable(std::move(columns));
}

std::vector<QString> row(const Sum &sum, const TotalsForm &form)
{
    std::vector<QString> cells;
    for (const Property &property : properties) {
        if (form.grouping.*property.isApart)
            cells.push_back(cellText(property, sum));
    }
    if (form.grouping.period != Period::All)
        cells.push_back(usage::periodText(sum.period, form.grouping));
    cells.push_back(QString::number(sum.connections));
    if (form.showsTimeConnected)
        cells.push_back(usage::durationText(sum.connectedSeconds));
    cells.push_back(usage::sizeText(sum.uploadedBytes));
    cells.push_back(usage::sizeText(sum.downloadedBytes));
    return cells;
}

formats::Json toJson(const Sum &sum, const TotalsForm &form)
{
    formats::Json object = {{"connections", sum.connections},
                            {"uploaded_bytes", sum.uploadedBytes},
                            {"downloaded_bytes", sum.downloadedBytes}};
    if (form.showsTimeConnected)
        object["connected_seconds"] = sum.connectedSeconds;
    for (const Property &property : properties) {
        if (form.grouping.*property.isApart)
            object[property.name] = property.value(sum);
    }
    if (const PeriodName *const period = nameOf(form.grouping.period))
        object[period->name] = usage::periodText(sum.period, form.grouping).toStdString();
    return object;
}

} // namespace

std::optional<Grouping> groupingOf(std::string_view names)
{
    Grouping grouping;
    for (;;) {
        const std::size_t comma = names.find(',');
        if (!addTo(grouping, names.substr(0, comma)))
            return std::nullopt;
        if (comma == std::string_view::npos)
            return grouping;
        names.remove_prefix(comma + 1);
    }
}

QByteArray toTable(const std::vector<Sum> &sums, const TotalsForm &form)
{
    TextTable table = tableFor(form);
    for (const Sum &each : sums)
        table.addRow(row(each, form));
    return table.text();
}

formats::Json toJson(const std::vector<Sum> &sums, const TotalsForm &form)
{
    formats::Json array = formats::Json::array();
    for (const Sum &each : sums)
        array.push_back(toJson(each, form));
    return array;
}

} // namespace connrecord
