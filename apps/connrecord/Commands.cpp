// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "ConnectionText.h"
#include "OptionValue.h"
#include "Output.h"
#include "StoreResult.h"
#include "UnusedMemory.h"
#include "apps/common/Export.h"
#include "formats/Formats.h"
#include "formats/JsonText.h"
#include "usage/CalendarTime.h"

#include <cstdint>

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

std::unique_ptr<formats::ConnectionWriter> listWriter(const CommonRequest &common)
{
    return common.json ? formats::jsonWriter() : tableWriter();
}

void write(const std::string &storePath, const history::ConnectionSelection &selection,
           formats::ConnectionWriter &writer, Output &output)
{
    giveBackUnusedMemory(); // what only the start of the program has needed
    const auto store = valueOrFailure(history::Store::openForReading(storePath));
    valueOrFailure(
        common::writeConnections(store, selection, common::Running::LeftOut, writer,
                                 [&output](std::string_view piece) { output.add(piece); }));
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

} // namespace connrecord
