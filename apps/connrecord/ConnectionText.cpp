// SPDX-License-Identifier: MIT
#include "ConnectionText.h"

#include "TextTable.h"
#include "formats/Utf8Text.h"
#include "history/ConnectionFields.h"
#include "modem/DataPort.h"
#include "usage/CalendarTime.h"
#include "usage/LocalClock.h"
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

/// Of the first rows at most, which the widths of the columns follow from: what nobody
/// waits for, and more than most people have.
constexpr std::size_t rowsTogether = 1000;

std::vector<TextTable::Column> columns()
{
    std::vector<TextTable::Column> columns = {{"KEY", Alignment::Right}};
    forEachField(connectionFields, [&](const auto &field) {
        if (!field.heading)
            return;
        constexpr bool isAmount = std::is_base_of_v<kind::Amount, KindOf<decltype(field)>>;
        columns.push_back({field.heading, isAmount ? Alignment::Right : Alignment::Left});
    });
    return columns;
}

class TableWriter : public formats::ConnectionWriter
{
public:
    void begin(std::string & /*text*/) override {}
    void add(const history::Connection &connection, std::string &text) override;
    void end(std::string &text) override { m_table.takeLines(text); }

private:
    void appendCell(kind::Text /*kind*/, const std::string &name)
    {
        m_cell += formats::printable(name, mostCharactersInCell);
    }
    void appendCell(kind::Sim /*kind*/, const std::string &number)
    {
        m_cell += simText(number).toStdString();
    }
    void appendCell(kind::Time /*kind*/, std::int64_t utc) { m_clock.append(m_cell, utc); }
    void appendCell(kind::Duration /*kind*/, std::int64_t seconds)
    {
        usage::appendDuration(m_cell, seconds);
    }
    void appendCell(kind::Bytes /*kind*/, std::int64_t bytes) { usage::appendSize(m_cell, bytes); }

    TextTable m_table{columns()};
    const usage::LocalClock m_clock;
    std::string m_cell;
    std::size_t m_rows = 0;
};

void TableWriter::add(const history::Connection &connection, std::string &text)
{
    m_table.addCell(std::to_string(connection.key));
    forEachField(connectionFields, [&](const auto &field) {
        if (!field.heading)
            return;
        m_cell.clear();
        appendCell(KindOf<decltype(field)>(), connection.*field.member);
        m_table.addCell(m_cell);
    });
    if (++m_rows % rowsTogether == 0)
        m_table.takeLines(text);
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

std::unique_ptr<formats::ConnectionWriter> tableWriter()
{
    return std::make_unique<TableWriter>();
}

QByteArray toTable(const std::vector<history::Connection> &connections)
{
    return QByteArray::fromStdString(formats::documentOf(*tableWriter(), connections));
}

} // namespace connrecord
