// SPDX-License-Identifier: MIT
#include "ImportReader.h"
#include "InputError.h"
#include "JoinedLog.h"
#include "LineReader.h"
#include "PppdConnections.h"

#include <algorithm>

namespace formats
{

namespace
{

using history::Sentence;
using history::translatable;

class PppdImport : public ImportReader
{
public:
    explicit PppdImport(const ImportOptions &options)
        : m_options(options)
    {
    }

    void read(const ImportSource &source, const ReadProgress &progress) override;
    Imported imported() override;

private:
    Sentence name() const;
    void checkIsOfPppd(const JoinedLog &log) const;
    void checkYear(const JoinedLog &log) const;

    ImportOptions m_options;
    std::vector<LogFile> m_files;
    std::vector<Sentence> m_names;
    std::size_t m_sizeLeft = largestLogSize;
};

void PppdImport::read(const ImportSource &source, const ReadProgress &progress)
{
    m_names.push_back(source.name);
    LineReader lines(source.device, longestLogLine, progress);
    try {
        m_files.push_back({readPppdLog(lines, m_sizeLeft), source.changedUtc});
        m_sizeLeft -= m_files.back().log.size();
    } catch (const LogTooLarge &) {
        throw InputError(
            {translatable("formats", "%1 is too much: together, more than %2 messages of pppd "
                                     "and jumps of a clock cannot be read at once. Nothing was "
                                     "imported; import fewer or smaller files."),
             {source.name, std::to_string(largestLogSize)}});
    }
    lines.checkReadToTheEnd(source.name);
}

Imported PppdImport::imported()
{
    const JoinedLog log = joinLogs(std::move(m_files), m_options.year);
    checkIsOfPppd(log);
    checkYear(log);
    PppdConnections connections(m_options.profile);
    connections.takeAll(log.events);
    Imported imported;
    imported.connections = connections.connections();
    imported.profileSources = connections.profileSources();
    imported.unusable = connections.unusable();
    if (log.isYearGuess)
        imported.guessedYear = GuessedYear{name(), log.lastYear};
    return imported;
}

Sentence PppdImport::name() const
{
    return m_names.size() == 1 ? m_names.front()
                               : translatable("formats", "The log of these files");
}

void PppdImport::checkIsOfPppd(const JoinedLog &log) const
{
    const bool isOfPppd =
        std::any_of(log.events.begin(), log.events.end(),
                    [](const PppdEvent &event) { return isOfConnection(event.message); });
    if (!isOfPppd)
        throw InputError(
            {translatable("formats", "%1 holds no line in which pppd tells of a connection; "
                                     "give a system log of a machine that dials with it."),
             {name()}});
}

void PppdImport::checkYear(const JoinedLog &log) const
{
    const std::optional<int> given = m_options.year;
    if (!given || log.lastYear == 0)
        return;
    const std::string text = std::to_string(*given);
    if (log.lastYear != *given)
        throw YearError(text + " is wrong: the last line of " + inEnglish(name()) + " shows " +
                        std::to_string(log.lastYear) + ".");
    if (log.hasImpossibleDay)
        throw YearError(text + " cannot be: " + inEnglish(name()) +
                        " has a 29 February in a year that has none then.");
}

} // namespace

std::unique_ptr<ImportReader> pppdImport(const ImportOptions &options)
{
    return std::make_unique<PppdImport>(options);
}

} // namespace formats
