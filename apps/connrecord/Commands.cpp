// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "ConnectionText.h"
#include "OptionValue.h"
#include "Output.h"
#include "StoreResult.h"
#include "UnusedMemory.h"
#include "apps/common/Export.h"
#include "formats/Formats.h"
#include "formats/Utf8Text.h"
#include "history/ConnectionFields.h"
#include "usage/CalendarTime.h"

#include <cstdint>
#include <type_traits>

namespace connrecord
{

namespace
{

history::Connection connectionFrom(const AddRequest &request)
{
    history::Connection connection;
    connection.profile = optionText("--profile", request.profile);
    connection.interfaceName = optionText("--interface", request.interfaceName);
    connection.startUtc = optionValue("--start", request.start, formats::fieldTime);
    connection.endUtc =
        optionValue("--end", request.end, [start = connection.startUtc](const std::string &text) {
            return formats::fieldEnd(text, start);
        });
    connection.connectedSeconds =
        request.connectedSeconds
            ? optionNumber("--connected", *request.connectedSeconds, history::largestDuration)
            : connection.endUtc - connection.startUtc;
    connection.uploadedBytes =
        optionNumber("--up", request.uploadedBytes, history::largestByteCount);
    connection.downloadedBytes =
        optionNumber("--down", request.downloadedBytes, history::largestByteCount);
    return connection;
}

/// Lines of a text would look like connections of their own: puts each on one.
class OneLineWriter : public formats::ConnectionWriter
{
public:
    explicit OneLineWriter(std::unique_ptr<ConnectionWriter> writer)
        : m_writer(std::move(writer))
    {
    }

    void begin(std::string &text) override { m_writer->begin(text); }
    void add(const history::Connection &connection, std::string &text) override
    {
        m_printable = connection;
        history::forEachField(history::connectionFields, [this](const auto &field) {
            auto &value = m_printable.*field.member;
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>)
                value = formats::printable(value, formats::unlimited);
        });
        m_writer->add(m_printable, text);
    }
    void end(std::string &text) override { m_writer->end(text); }

private:
    const std::unique_ptr<ConnectionWriter> m_writer;
    history::Connection m_printable;
};

std::unique_ptr<formats::ConnectionWriter> writerFor(const formats::ExportFormat &format,
                                                     const Output &output)
{
    if (format.breaksLines && output.isTerminal())
        return std::make_unique<OneLineWriter>(format.writer());
    return format.writer();
}

std::unique_ptr<formats::ConnectionWriter> listWriter(const CommonRequest &common)
{
    return common.json ? formats::jsonWriter() : tableWriter();
}

void write(const std::string &storePath, const history::ConnectionSelection &selection,
           formats::ConnectionWriter &writer, Output &output)
{
    giveBackUnusedMemory(); // what only the start of the program has needed
    const auto store = valueOrFailure(history::Store::openForReading(storePath));
    valueOrFailure(common::writeConnections(
        store, selection, writer, [&output](std::string_view piece) { output.add(piece); }));
    output.complete();
}

} // namespace

void listConnections(const CommonRequest &common, const SelectionRequest &selection)
{
    Output output;
    write(common.storePath, selectionOf(selection), *listWriter(common), output);
}

void showConnections(const CommonRequest &common,
                     const std::vector<history::Connection> &connections)
{
    Output().write(
        QByteArray::fromStdString(formats::documentOf(*listWriter(common), connections)));
}

void addConnection(const CommonRequest &common, const AddRequest &request)
{
    const history::Connection connection = connectionFrom(request);
    auto store = valueOrFailure(history::Store::openOrCreate(common.storePath));
    const qint64 key = valueOrFailure(store.add(connection));
    Output().write(common.json ? formats::jsonText({{"key", key}})
                               : QByteArray::number(key) + '\n');
}

void exportConnections(const CommonRequest &common, const ExportRequest &request)
{
    checkIsNotOfHistory(request.outputPath, common.storePath);
    Output output(request.outputPath);
    auto selection = selectionOf(request.selection);
    selection.withHours = request.format->carriesHours;
    write(common.storePath, selection, *writerFor(*request.format, output), output);
}

} // namespace connrecord
