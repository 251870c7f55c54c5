// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "ConnectionText.h"
#include "OptionValue.h"
#include "Output.h"
#include "StoreResult.h"
#include "apps/common/ExportedHours.h"
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

std::vector<history::Connection> storedConnections(const CommonRequest &common,
                                                   const SelectionRequest &selection)
{
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    return selectedFrom(store, selection);
}

/// Lines of a text would look like connections of their own.
void putOnOneLineEach(std::vector<history::Connection> &connections)
{
    for (history::Connection &connection : connections) {
        history::forEachField(history::connectionFields, [&](const auto &field) {
            auto &value = connection.*field.member;
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>)
                value = formats::printable(value, formats::unlimited);
        });
    }
}

} // namespace

void listConnections(const CommonRequest &common, const SelectionRequest &selection)
{
    showConnections(common, storedConnections(common, selection));
}

void showConnections(const CommonRequest &common,
                     const std::vector<history::Connection> &connections)
{
    Output().write(common.json ? formats::toJsonText(connections) : toTable(connections));
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
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    auto connections = selectedFrom(store, request.selection);
    if (request.format->carriesHours)
        common::addHours(valueOrFailure(store.hours()), connections);
    if (request.format->breaksLines && output.isTerminal())
        putOnOneLineEach(connections);
    output.write(request.format->text(connections, {}));
}

} // namespace connrecord
