// SPDX-License-Identifier: MIT
#include "ImportCommand.h"

#include "Complaint.h"
#include "Output.h"
#include "ProgressLine.h"
#include "StoreResult.h"
#include "formats/CsvFormat.h"
#include "formats/CsvReader.h"
#include "formats/InputFile.h"
#include "formats/JoinedLog.h"
#include "formats/JsonText.h"
#include "formats/LineReader.h"
#include "formats/LogCompletion.h"
#include "formats/PppdConnections.h"
#include "formats/Utf8Text.h"

#include <unistd.h>

#include <algorithm>

namespace connrecord
{

namespace
{

/// What is shorter than one step is done before anybody asks.
constexpr std::int64_t bytesPerStep = 4194304;
constexpr std::int64_t connectionsPerStep = 20000;

/// What a file holds.
struct Contents {
    std::vector<history::Connection> connections;
    std::vector<formats::ProfileSource> profileSources; ///< of each connection; of a log alone
    std::vector<formats::Unusable> unusable;
    std::vector<std::string> fileNames; ///< of logs, for messages
    std::string doubt; ///< a sentence about what a log leaves open; empty without any
};

void checkReadToTheEnd(const formats::LineReader &lines, formats::InputFile &file)
{
    if (lines.hasFailed())
        throw Failure(ExitCode::Input, file.name() + " cannot be read to its end: " +
                                           file.device().errorString().toStdString() +
                                           ". Nothing was imported.");
}

Contents readCsv(formats::InputFile &file, const formats::ReadProgress &progress)
{
    formats::LineReader lines(file.device(), formats::longestCsvLine + 1);
    try {
        Contents contents;
        contents.connections = formats::connectionsFromCsv(lines, progress);
        checkReadToTheEnd(lines, file);
        return contents;
    } catch (const formats::CsvError &error) {
        checkReadToTheEnd(lines, file);
        throw Failure(ExitCode::Input, file.name() + ", line " + std::to_string(error.line) +
                                           ", column " + formats::csvColumnName(error.column) +
                                           ": " + error.reason + ". Nothing was imported.");
    }
}

void checkIsOfPppd(const formats::JoinedLog &log, const std::string &name)
{
    const bool isOfPppd =
        std::any_of(log.events.begin(), log.events.end(), [](const formats::PppdEvent &event) {
            return formats::isOfConnection(event.message);
        });
    if (!isOfPppd)
        throw Failure(ExitCode::Input, name + " holds no line in which pppd tells of a connection; "
                                              "give a system log of a machine that dials with it.");
}

void checkYear(const formats::JoinedLog &log, std::optional<int> given, const std::string &name)
{
    if (!given || log.lastYear == 0)
        return;
    const std::string text = "For --year, " + std::to_string(*given);
    if (log.lastYear != *given)
        throw Failure(ExitCode::Refused, text + " is wrong: the last line of " + name + " shows " +
                                             std::to_string(log.lastYear) + ".");
    if (log.hasImpossibleDay)
        throw Failure(ExitCode::Refused, text + " cannot be: " + name +
                                             " has a 29 February in a year that has none then.");
}

/// The sentence about what the log does not tell; empty if it does.
std::string yearDoubt(const formats::JoinedLog &log, const std::string &name)
{
    if (!log.isYearGuess)
        return {};
    return name + " does not show its years; its last line was taken to be of " +
           std::to_string(log.lastYear) +
           ". If that is wrong, remove what was added and give the year with --year.";
}

/// Reads one file by `reader`, which is also given a function to tell its progress.
template <typename Reader>
auto readFile(const std::string &path, QIODevice *terminal, Reader reader)
{
    formats::InputFile file(path);
    ProgressLine line(terminal, "Reading " + file.name(), bytesPerStep, file.size());
    return reader(file, [&line](std::int64_t bytes) { line.update(bytes); });
}

formats::LogFile readLog(formats::InputFile &file, std::size_t largestSize,
                         const formats::ReadProgress &progress)
{
    formats::LineReader lines(file.device(), formats::longestLogLine);
    try {
        formats::LogFile log = {formats::readPppdLog(lines, progress, largestSize),
                                file.modifiedUtc()};
        checkReadToTheEnd(lines, file);
        return log;
    } catch (const formats::LogTooLarge &) {
        throw Failure(ExitCode::Input, file.name() + " is too much: together, more than " +
                                           std::to_string(formats::largestLogSize) +
                                           " messages of pppd and jumps of a clock cannot be "
                                           "read at once. Nothing was imported; import fewer or "
                                           "smaller files.");
    }
}

Contents readPppd(const ImportRequest &request, QIODevice *terminal)
{
    std::vector<formats::LogFile> files;
    std::vector<std::string> fileNames;
    std::string name = "The log of these files";
    std::size_t sizeLeft = formats::largestLogSize;
    for (const std::string &path : request.paths) {
        files.push_back(
            readFile(path, terminal, [&](formats::InputFile &file, const auto &progress) {
                name = request.paths.size() == 1 ? file.name() : name;
                return readLog(file, sizeLeft, progress);
            }));
        sizeLeft -= files.back().log.size();
        fileNames.push_back(formats::printable(path));
    }
    const formats::JoinedLog log = formats::joinLogs(std::move(files), request.year);
    checkIsOfPppd(log, name);
    checkYear(log, request.year, name);
    formats::PppdConnections connections(request.profile);
    connections.takeAll(log.events);
    return {connections.connections(), connections.profileSources(), connections.unusable(),
            fileNames, yearDoubt(log, name)};
}

Contents read(const ImportRequest &request, QIODevice *terminal)
{
    if (request.format == ImportRequest::Format::Pppd)
        return readPppd(request, terminal);
    if (request.paths.size() > 1)
        throw Failure(ExitCode::Usage, "With --format csv, import takes one FILE.");
    return readFile(request.paths.front(), terminal, readCsv);
}

history::Store::Merged addLogged(history::Store &store, const Contents &contents,
                                 const history::Store::Progress &progress)
{
    const auto complete = [&contents](history::Connection &stored, std::size_t index) {
        return formats::completeFromLog(stored, contents.connections[index],
                                        contents.profileSources[index]);
    };
    return valueOrFailure(store.merge(contents.connections, complete, progress));
}

history::Store::Merged store(const std::string &storePath, const Contents &contents,
                             ImportRequest::Format format, QIODevice *terminal)
{
    ProgressLine line(terminal, "Storing", connectionsPerStep,
                      static_cast<std::int64_t>(contents.connections.size()));
    const auto progress = [&line](std::size_t done) {
        line.update(static_cast<std::int64_t>(done));
    };
    auto store = valueOrFailure(history::Store::openOrCreate(storePath));
    if (format == ImportRequest::Format::Pppd)
        return addLogged(store, contents, progress);
    return {valueOrFailure(store.addMissing(contents.connections, progress)), 0};
}

std::string reportText(const Contents &contents, const history::Store::Merged &merged)
{
    const std::size_t read = contents.connections.size();
    std::string text = "Connections read: " + std::to_string(read) +
                       "\nAdded: " + std::to_string(merged.added) +
                       "\nAlready there: " + std::to_string(read - merged.added) + '\n';
    if (merged.completed > 0)
        text += "Of these, completed: " + std::to_string(merged.completed) + '\n';
    for (const formats::Unusable &unusable : contents.unusable)
        text += "Not used, " + unusable.reason + ": " + std::to_string(unusable.count) +
                "; first in line " + std::to_string(unusable.firstLine) +
                (contents.fileNames.size() > 1 ? " of " + contents.fileNames[unusable.firstFile]
                                               : std::string()) +
                ": " + formats::printable(unusable.firstText) + '\n';
    return text;
}

formats::Json reportJson(const Contents &contents, const history::Store::Merged &merged)
{
    const std::size_t read = contents.connections.size();
    formats::Json unusable = formats::Json::array();
    for (const formats::Unusable &entry : contents.unusable)
        unusable.push_back({{"reason", entry.reason},
                            {"count", entry.count},
                            {"first_file", contents.fileNames[entry.firstFile]},
                            {"first_line", entry.firstLine},
                            {"first_text", entry.firstText}});
    return {{"read", read},
            {"added", merged.added},
            {"already_there", read - merged.added},
            {"completed", merged.completed},
            {"unusable", unusable}};
}

} // namespace

void importConnections(const CommonRequest &common, const ImportRequest &request)
{
    if (!formats::isUtf8(request.profile))
        throw Failure(ExitCode::Refused, "For --profile, the text is not UTF-8.");
    QFile standardError;
    const bool isTerminal =
        ::isatty(STDERR_FILENO) != 0 &&
        standardError.open(STDERR_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered);
    QIODevice *const terminal = isTerminal ? &standardError : nullptr;
    const Contents contents = read(request, terminal);
    const history::Store::Merged merged =
        store(common.storePath, contents, request.format, terminal);
    if (!contents.doubt.empty())
        warn(contents.doubt);
    Output().write(common.json ? formats::jsonText(reportJson(contents, merged))
                               : QByteArray::fromStdString(reportText(contents, merged)));
}

} // namespace connrecord
