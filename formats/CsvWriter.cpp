// SPDX-License-Identifier: MIT
#include "ConnectionWriter.h"
#include "CsvFormat.h"
#include "history/ConnectionFields.h"
#include "usage/CalendarTime.h"

#include <type_traits>

namespace formats
{

namespace
{

using history::KindOf;
namespace kind = history::kind;

void appendCell(kind::Text /*kind*/, const std::string &value, std::string &text)
{
    if (value.find_first_of(",\"\r\n") == std::string::npos) {
        text += value;
        return;
    }
    text += '"';
    for (const char character : value)
        text.append(character == '"' ? 2 : 1, character);
    text += '"';
}

void appendCell(kind::Time /*kind*/, std::int64_t utc, std::string &text)
{
    usage::appendUtc(text, utc);
}

void appendCell(kind::Amount /*kind*/, std::int64_t amount, std::string &text)
{
    text += std::to_string(amount);
}

class CsvWriter : public ConnectionWriter
{
public:
    void begin(std::string &text) override { text += csvHeader() + '\n'; }
    void add(const history::Connection &connection, std::string &text) override
    {
        addLine(connection, text);
    }
    void addRunning(const history::OpenConnection &connection, std::string &text) override
    {
        addLine(connection, text);
    }
    void end(std::string & /*text*/) override {}

private:
    /// What only finished connections have, is empty.
    template <typename AnyConnection>
    static void addLine(const AnyConnection &connection, std::string &text)
    {
        history::forEachField(history::connectionFields, [&](const auto &field) {
            using Owner = typename std::decay_t<decltype(field)>::Owner;
            if constexpr (std::is_base_of_v<Owner, AnyConnection>)
                appendCell(KindOf<decltype(field)>(), connection.*field.member, text);
            text += ',';
        });
        text.back() = '\n';
    }
};

} // namespace

std::unique_ptr<ConnectionWriter> csvWriter(const ExportOptions & /*options*/)
{
    return std::make_unique<CsvWriter>();
}

} // namespace formats
