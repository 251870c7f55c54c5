// SPDX-License-Identifier: MIT
#include "ImportCommand.h"

#include "Complaint.h"
#include "OptionValue.h"
#include "Output.h"
#include "ProgressLine.h"
#include "StoreResult.h"
#include "formats/JsonText.h"
#include "formats/Utf8Text.h"

#include <QFile>

#include <unistd.h>

#include <optional>

namespace connrecord
{

namespace
{

using common::ImportRequest;

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

/// A line on the terminal for each file, and for the store.
class TerminalProgress : public common::ImportProgress
{
public:
    void beginReading(const std::string & /*path*/, const formats::InputFile &file) override
    {
        m_line.emplace(m_terminal.device(), "Reading " + inEnglish(file.name()), bytesPerStep,
                       file.size());
    }
    void beginStoring(std::int64_t connections) override
    {
        m_line.emplace(m_terminal.device(), "Storing", connectionsPerStep, connections);
    }
    void update(std::int64_t done) override { m_line->update(done); }

private:
    Terminal m_terminal;
    std::optional<ProgressLine> m_line;
};

formats::Imported read(const ImportRequest &request, TerminalProgress &progress)
try {
    return common::readFiles(request, progress);
} catch (const formats::YearError &error) {
    throw Failure(ExitCode::Refused, std::string("For --year, ") + error.what());
}

struct Import {
    formats::Imported imported;
    history::Store::Merged merged;
};

Import importFiles(const std::string &storePath, const ImportRequest &request)
{
    TerminalProgress progress;
    Import done{read(request, progress), {}};
    done.merged = valueOrFailure(common::storeImported(storePath, done.imported, progress));
    return done;
}

void warnOfGuess(const formats::GuessedYear &guess)
{
    warn(inEnglish(guess.log) + " does not show its years; its last line was taken to be of " +
         std::to_string(guess.lastYear) +
         ". If that is wrong, remove what was added and give the year with --year.");
}

std::string reportText(const formats::Imported &imported, const history::Store::Merged &merged,
                       const std::vector<std::string> &paths)
{
    const std::size_t read = imported.size();
    std::string text = "Connections read: " + std::to_string(read) +
                       "\nAdded: " + std::to_string(merged.added) +
                       "\nAlready there: " + std::to_string(read - merged.added) + '\n';
    if (merged.completed > 0)
        text += "Of these, completed: " + std::to_string(merged.completed) + '\n';
    for (const formats::Unusable &unusable : imported.unusable)
        text += "Not used, " + inEnglish(unusable.reason) + ": " + std::to_string(unusable.count) +
                "; first in line " + std::to_string(unusable.firstLine) +
                (paths.size() > 1 ? " of " + formats::printable(paths[unusable.firstFile])
                                  : std::string()) +
                ": " + formats::printable(unusable.firstText) + '\n';
    return text;
}

formats::Json reportJson(const formats::Imported &imported, const history::Store::Merged &merged,
                         const std::vector<std::string> &paths)
{
    const std::size_t read = imported.size();
    formats::Json unusable = formats::Json::array();
    for (const formats::Unusable &entry : imported.unusable)
        unusable.push_back({{"reason", inEnglish(entry.reason)},
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

void importConnections(const CommonRequest &common, const common::ImportRequest &request)
{
    checkRequest(request);
    const auto [imported, merged] = importFiles(common.storePath, request);
    if (imported.guessedYear)
        warnOfGuess(*imported.guessedYear);
    Output().write(common.json
                       ? formats::jsonText(reportJson(imported, merged, request.paths))
                       : QByteArray::fromStdString(reportText(imported, merged, request.paths)));
}

} // namespace connrecord
