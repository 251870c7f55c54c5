// SPDX-License-Identifier: MIT
#include "ImportCommand.h"

#include "Complaint.h"
#include "OptionValue.h"
#include "Output.h"
#include "ProgressLine.h"
#include "StoreResult.h"
#include "formats/InputFile.h"
#include "formats/JsonText.h"
#include "formats/Utf8Text.h"

#include <QFile>

#include <unistd.h>

namespace connrecord
{

namespace
{

/// What is shorter than one step is done before anybody asks.
constexpr std::int64_t bytesPerStep = 4194304;
constexpr std::int64_t connectionsPerStep = 20000;

/// Standard error, if somebody watches it there.
class Terminal
{
public:
    Terminal()
    {
        if (::isatty(STDERR_FILENO) != 0)
            m_file.open(STDERR_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    QIODevice *device() { return m_file.isOpen() ? &m_file : nullptr; }

private:
    QFile m_file;
};

formats::Imported read(const ImportRequest &request, QIODevice *terminal)
try {
    const auto reader = request.format->reader(request.options);
    for (const std::string &path : request.paths) {
        formats::InputFile file(path);
        ProgressLine line(terminal, "Reading " + file.name(), bytesPerStep, file.size());
        reader->read({file.device(), file.name(), file.modifiedUtc()},
                     [&line](std::int64_t bytes) { line.update(bytes); });
    }
    return reader->imported();
} catch (const formats::YearError &error) {
    throw Failure(ExitCode::Refused, std::string("For --year, ") + error.what());
}

history::Store::Merged store(const std::string &storePath, const formats::Imported &imported,
                             QIODevice *terminal)
{
    ProgressLine line(terminal, "Storing", connectionsPerStep,
                      static_cast<std::int64_t>(imported.connections.size()));
    const auto progress = [&line](std::size_t done) {
        line.update(static_cast<std::int64_t>(done));
    };
    auto store = valueOrFailure(history::Store::openOrCreate(storePath));
    return valueOrFailure(formats::addImported(store, imported, progress));
}

void warnOfGuess(const formats::GuessedYear &guess)
{
    warn(guess.log + " does not show its years; its last line was taken to be of " +
         std::to_string(guess.lastYear) +
         ". If that is wrong, remove what was added and give the year with --year.");
}

std::string reportText(const formats::Imported &imported, const history::Store::Merged &merged,
                       const std::vector<std::string> &paths)
{
    const std::size_t read = imported.connections.size();
    std::string text = "Connections read: " + std::to_string(read) +
                       "\nAdded: " + std::to_string(merged.added) +
                       "\nAlready there: " + std::to_string(read - merged.added) + '\n';
    if (merged.completed > 0)
        text += "Of these, completed: " + std::to_string(merged.completed) + '\n';
    for (const formats::Unusable &unusable : imported.unusable)
        text += "Not used, " + unusable.reason + ": " + std::to_string(unusable.count) +
                "; first in line " + std::to_string(unusable.firstLine) +
                (paths.size() > 1 ? " of " + formats::printable(paths[unusable.firstFile])
                                  : std::string()) +
                ": " + formats::printable(unusable.firstText) + '\n';
    return text;
}

formats::Json reportJson(const formats::Imported &imported, const history::Store::Merged &merged,
                         const std::vector<std::string> &paths)
{
    const std::size_t read = imported.connections.size();
    formats::Json unusable = formats::Json::array();
    for (const formats::Unusable &entry : imported.unusable)
        unusable.push_back({{"reason", entry.reason},
                            {"count", entry.count},
                            {"first_file", formats::printable(paths[entry.firstFile])},
                            {"first_line", entry.firstLine},
                            {"first_text", entry.firstText}});
    return {{"read", read},
            {"added", merged.added},
            {"already_there", read - merged.added},
            {"completed", merged.completed},
            {"unusable", unusable}};
}

void checkRequest(const ImportRequest &request)
{
    optionText("--profile", request.options.profile);
    if (request.paths.size() > 1 && !request.format->takesSeveralFiles)
        throw Failure(ExitCode::Usage, std::string("With --format ") + request.format->name +
                                           ", import takes one FILE.");
}

} // namespace

void importConnections(const CommonRequest &common, const ImportRequest &request)
{
    checkRequest(request);
    Terminal terminal;
    const formats::Imported imported = read(request, terminal.device());
    const history::Store::Merged merged = store(common.storePath, imported, terminal.device());
    if (imported.guessedYear)
        warnOfGuess(*imported.guessedYear);
    Output().write(common.json
                       ? formats::jsonText(reportJson(imported, merged, request.paths))
                       : QByteArray::fromStdString(reportText(imported, merged, request.paths)));
}

} // namespace connrecord
