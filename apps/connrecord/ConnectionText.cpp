// SPDX-License-Identifier: MIT
#include "ConnectionText.h"

#include "TextTable.h"
#include "formats/Utf8Text.h"
#include "history/ConnectionFields.h"
#include "modem/DataPort.h"
#include "usage/CalendarTime.h"
#include "usage/SizeText.h"

#include <type_traits>

namespace connrecord
{

namespace
{

using history::connectionFields;
using history::forEachField;
using history::KindOf;
namespace kind = history::kind;
using Alignment = TextTable::Alignment;

constexpr int mostCharactersInCell = 60;

QString cellText(kind::Text /*kind*/, const std::string &name)
{
    return nameText(name);
}

QString cellText(kind::Sim /*kind*/, const std::string &number)
{
    return simText(number);
}

QString cellText(kind::Time /*kind*/, std::int64_t utc)
{
    return usage::localText(utc);
}

QString cellText(kind::Duration /*kind*/, std::int64_t seconds)
{
    return usage::durationText(seconds);
}

QString cellText(kind::Bytes /*kind*/, std::int64_t bytes)
{
    return usage::sizeText(bytes);
}

std::vector<TextTable::Column> columns()
{
    std::vector<TextTable::Column> columns = {{QStringLiteral("KEY"), Alignment::Right}};
    forEachField(connectionFields, [&](const auto &field) {
        if (!field.heading)
            return;
        constexpr bool isAmount = std::is_base_of_v<kind::Amount, KindOf<decltype(field)>>;
        columns.push_back(
            {QLatin1String(field.heading), isAmount ? Alignment::Right : Alignment::Left});
    });
    return columns;
}

std::vector<QString> cells(const history::Connection &connection)
{
    std::vector<QString> cells = {QString::number(connection.key)};
    forEachField(connectionFields, [&](const auto &field) {
        if (field.heading)
            cells.push_back(cellText(KindOf<decltype(field)>(), connection.*field.member));
    });
    return cells;
}

} // namespace

QString simText(const std::string &number)
{
    return modem::shownPartOfSim(nameText(number));
}

QString nameText(const std::string &name)
{
    return formats::printable(formats::fromUtf8(name), mostCharactersInCell);
}

QByteArray toTable(const std::vector<history::Connection> &connections)
{
    TextTable table(columns());
    for (const history::Connection &connection : connections)
        table.addRow(cells(connection));
    return table.text().toUtf8();
}

} // namespace connrecord
