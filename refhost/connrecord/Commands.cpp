// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "CalendarTime.h"
#include "ConnectionText.h"
#include "CsvFormat.h"
#include "HistoryFiles.h"
#include "OptionValue.h"
#include "Output.h"
#include "Store.h"
#include "Utf8Text.h"

#include <cstdint>
#include <limits>

namespace refhost
{

namespace
{

constexpr std::int64_t largestCount = std::numeric_limits<std::int64_t>::max();

std::int64_t optionNumber(const std::string &option, const std::string &text, std::int64_t largest)
{
    return optionValue(option, text,
                       [largest](const std::string &value) { return fieldNumber(value, largest); });
}

const std::string &optionText(const std::string &option, const std::string &text)
{
    if (!isUtf8(text))
        throw Failure(ExitCode::Refused, "For " + option + ", the text is not UTF-8.");
    return text;
}

Connection connectionFrom(const AddRequest &request)
{
    Connection connection;
    connection.profile = optionText("--profile", request.profile);
    connection.interfaceName = optionText("--interface", request.interfaceName);
    connection.startUtc = optionValue("--start", request.start, fieldTime);
    connection.endUtc =
        optionValue("--end", request.end, [start = connection.startUtc](const std::string &text) {
            return fieldEnd(text, start);
        });
    connection.connectedSeconds =
        request.connectedSeconds
            ? optionNumber("--connected", *request.connectedSeconds, largestDuration)
            : connection.endUtc - connection.startUtc;
    connection.uploadedBytes = optionNumber("--up", request.uploadedBytes, largestCount);
    connection.downloadedBytes = optionNumber("--down", request.downloadedBytes, largestCount);
    return connection;
}

std::vector<Connection> storedConnections(const CommonRequest &common)
{
    const auto store = valueOrFailure(StatisticsStore::openForReading(common.storePath));
    return valueOrFailure(store.list());
}

/// Lines of a text would look like connections of their own.
std::vector<Connection> onOneLineEach(std::vector<Connection> connections)
{
    for (Connection &connection : connections) {
        for (std::string *const text :
             {&connection.profile, &connection.ending, &connection.interfaceName})
            *text = printable(*text, unlimited);
    }
    return connections;
}

} // namespace

void listConnections(const CommonRequest &common)
{
    const std::vector<Connection> connections = storedConnections(common);
    Output().write(common.json ? jsonText(toJson(connections)) : toTable(connections));
}

void addConnection(const CommonRequest &common, const AddRequest &request)
{
    const Connection connection = connectionFrom(request);
    auto store = valueOrFailure(StatisticsStore::openOrCreate(common.storePath));
    const qint64 key = valueOrFailure(store.add(connection));
    Output().write(common.json ? jsonText({{"key", key}}) : QByteArray::number(key) + '\n');
}

void removeConnections(const CommonRequest &common, const std::vector<std::string> &keys)
{
    std::vector<std::int64_t> numbers;
    numbers.reserve(keys.size());
    for (const std::string &key : keys)
        numbers.push_back(optionNumber("KEY", key, largestCount));
    auto store = valueOrFailure(StatisticsStore::openForReading(common.storePath));
    valueOrFailure(store.remove(numbers));
    if (common.json)
        Output().write(jsonText({{"removed", numbers}}));
}

void exportConnections(const CommonRequest &common, const std::string &outputPath)
{
    checkIsNotOfHistory(outputPath, common.storePath);
    Output output(outputPath);
    const std::vector<Connection> connections = storedConnections(common);
    if (common.json)
        output.write(jsonText(toJson(connections)));
    else
        output.write(toCsv(output.isTerminal() ? onOneLineEach(connections) : connections));
}

} // namespace refhost
