// SPDX-License-Identifier: MIT
#include "ExportCommand.h"

#include "OptionValue.h"
#include "Output.h"
#include "StoreResult.h"
#include "UnusedMemory.h"
#include "apps/common/Export.h"
#include "apps/common/MachineId.h"
#include "formats/Utf8Text.h"
#include "history/ConnectionFields.h"
#include "history/StoreReports.h"

#include <QDateTime>

#include <limits>
#include <system_error>
#include <type_traits>
#include <utility>

namespace connrecord
{

namespace
{

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
        m_writer->add(printable(connection), text);
    }
    void addRunning(const history::OpenConnection &connection, std::string &text) override
    {
        m_writer->addRunning(printable(connection), text);
    }
    void end(std::string &text) override { m_writer->end(text); }

private:
    template <typename AnyConnection>
    static AnyConnection printable(AnyConnection connection)
    {
        history::forEachField(history::connectionFields, [&connection](const auto &field) {
            using Field = std::decay_t<decltype(field)>;
            if constexpr (std::is_same_v<typename Field::Value, std::string>) {
                auto &value = connection.*field.member;
                value = formats::printable(value, formats::unlimited);
            }
        });
        return connection;
    }

    const std::unique_ptr<ConnectionWriter> m_writer;
};

void checkRequest(const ExportRequest &request)
{
    if (request.after && request.selection.limit)
        throw Failure(ExitCode::Usage, "--limit would leave out some of what has come since the "
                                       "key of --after; give one of them.");
    if (request.machine && !request.format->namesMachine)
        throw Failure(ExitCode::Usage, std::string("--format ") + request.format->name +
                                           " names no machine; --machine is for jsonl.");
}

std::string machineFor(const ExportRequest &request)
{
    if (request.machine)
        return optionText("--machine", *request.machine);
    try {
        return common::machineId();
    } catch (const std::system_error &error) {
        throw Failure(ExitCode::Refused, "This system has no number of its own in "
                                         "/etc/machine-id (" +
                                             error.code().message() +
                                             "). Make one with systemd-machine-id-setup, or name "
                                             "the machine with --machine.");
    }
}

/// Of what has come since the key that the user names.
formats::Delivery deliveryFor(const std::string &storePath, const std::string &after)
{
    formats::Delivery delivery;
    delivery.afterKey = optionNumber("--after", after, std::numeric_limits<std::int64_t>::max());
    delivery.time = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
    // Taken before the connections: what comes or goes meanwhile is told the next time too.
    delivery.keys = valueOrFailure(history::givenKeys(storePath));
    if (delivery.afterKey > delivery.keys.last)
        throw Failure(ExitCode::Refused,
                      "For --after, the history \"" + storePath + "\" has not given the key " +
                          after + " yet, the last one is " + std::to_string(delivery.keys.last) +
                          "; an older copy may have been put in its place. Export all of it with "
                          "--after 0.");
    return delivery;
}

std::unique_ptr<formats::ConnectionWriter> writerFor(const formats::ExportFormat &format,
                                                     const formats::ExportOptions &options,
                                                     const Output &output)
{
    if (format.breaksLines && output.isTerminal())
        return std::make_unique<OneLineWriter>(format.writer(options));
    return format.writer(options);
}

} // namespace

void exportConnections(const CommonRequest &common, const ExportRequest &request)
{
    checkRequest(request);
    checkIsNotOfHistory(request.outputPath, common.storePath);
    Output output(request.outputPath);
    auto selection = selectionOf(request.selection);
    selection.withHours = request.format->carriesHours;
    formats::ExportOptions options;
    if (request.format->namesMachine)
        options.machine = machineFor(request);
    const auto running = request.after || request.format->namesMachine ? common::Running::Written
                                                                       : common::Running::LeftOut;
    if (request.after) {
        options.delivery = deliveryFor(common.storePath, *request.after);
        selection.afterKey = options.delivery->afterKey;
    }
    giveBackUnusedMemory(); // what only the start of the program has needed
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    valueOrFailure(common::writeConnections(
        store, selection, running, *writerFor(*request.format, options, output),
        [&output](std::string_view piece) { output.add(piece); }));
    output.complete();
}

} // namespace connrecord
