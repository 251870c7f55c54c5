// SPDX-License-Identifier: MIT
#include "ImportWork.h"

#include "TransferFile.h"
#include "apps/common/SentenceText.h"
#include "apps/common/StoreErrorText.h"
#include "formats/InputError.h"
#include "formats/Utf8Text.h"

#include <utility>

namespace refdialer
{

ImportWork::ImportWork(std::string storePath, ImportChoice choice)
    : m_storePath(std::move(storePath))
    , m_choice(std::move(choice))
{
}

TransferResult ImportWork::operator()(TransferProgress &progress) const
{
    const formats::Imported imported = read(request(), progress);
    const history::Store::Merged merged = store(imported, progress);
    return {TransferResult::Kind::Done, summary(imported, merged), details(imported)};
}

common::ImportRequest ImportWork::request() const
{
    common::ImportRequest request{m_choice.format, {}, {}};
    for (const QString &file : m_choice.files) {
        checkIsOrdinary(file, m_storePath);
        request.paths.push_back(pathOf(file));
    }
    if (!request.format)
        request.format = &recognised(request.paths);
    if (request.paths.size() > 1 && !request.format->takesSeveralFiles)
        throw TransferFailure{tr("Of several files at once, only logs can be imported. Choose one "
                                 "file at a time.")};
    return request;
}

/// What the first one is that is no log: then there are too many of them, or they are mixed.
const formats::ImportFormat &ImportWork::recognised(const std::vector<std::string> &paths) const
{
    for (const std::string &path : paths) {
        const formats::ImportFormat &format = formats::recognisedFormat(path);
        if (!format.takesSeveralFiles)
            return format;
    }
    return formats::importFormats.back();
}

formats::Imported ImportWork::read(const common::ImportRequest &request,
                                   TransferProgress &progress) const
{
    try {
        return common::readFiles(request, progress);
    } catch (const formats::InputError &error) {
        if (m_choice.format)
            throw;
        const QString title = QCoreApplication::translate("formats", request.format->title);
        throw TransferFailure{
            tr("%1\n\nIt was taken to be: %2. If it is something else, choose its "
               "kind together with the file.")
                .arg(common::sentenceText(error.sentence()), title)};
    }
}

history::Store::Merged ImportWork::store(const formats::Imported &imported,
                                         TransferProgress &progress) const
{
    const auto merged = common::storeImported(m_storePath, imported, progress);
    if (merged)
        return merged.value();
    // The store tells of an end by the progress as of any other error.
    progress.check();
    throw TransferFailure{common::storeErrorText(merged.error())};
}

QString ImportWork::summary(const formats::Imported &imported, const history::Store::Merged &merged)
{
    QStringList lines{tr("Connections added: %1").arg(merged.added),
                      tr("In the history already: %1").arg(imported.size() - merged.added)};
    if (merged.completed > 0)
        lines.append(tr("Completed by what the log knows: %1").arg(merged.completed));
    return lines.join(QLatin1Char('\n'));
}

QString ImportWork::details(const formats::Imported &imported) const
{
    QStringList lines;
    if (imported.guessedYear)
        lines.append(tr("%1 does not show its years; its last line was taken to be of %2. If that "
                        "is wrong, delete what was added and import with \"connrecord import "
                        "--year\".")
                         .arg(common::sentenceText(imported.guessedYear->log),
                              QString::number(imported.guessedYear->lastYear)));
    for (const formats::Unusable &unusable : imported.unusable)
        lines.append(lineFor(unusable));
    return lines.join(QLatin1Char('\n'));
}

QString ImportWork::lineFor(const formats::Unusable &unusable) const
{
    return tr("Not used, %1: %2; first in line %3 of \"%4\": %5")
        .arg(common::sentenceText(unusable.reason), QString::number(unusable.count),
             QString::number(unusable.firstLine),
             shownName(m_choice.files.at(static_cast<int>(unusable.firstFile))),
             QString::fromStdString(formats::printable(unusable.firstText)));
}

} // namespace refdialer
