// SPDX-License-Identifier: MIT
#include "TransferProgress.h"

#include "formats/Utf8Text.h"
#include "usage/SizeText.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace refdialer
{

namespace
{

/// Seldom enough to read it, and to cost nothing.
constexpr qint64 millisecondsBetween = 100;

/// In characters; the figures are behind it.
constexpr int longestName = 40;

} // namespace

TransferProgress::TransferProgress(const std::atomic<bool> &isCancelled, Listener listener)
    : m_isCancelled(isCancelled)
    , m_listener(std::move(listener))
{
}

void TransferProgress::beginReading(const std::string &path, const formats::InputFile &file)
{
    const QString name = QFileInfo(QFile::decodeName(path.c_str())).fileName();
    m_file = formats::printable(name, longestName);
    begin(Stage::Reading, file.size());
}

void TransferProgress::beginStoring(std::int64_t connections)
{
    begin(Stage::Storing, connections);
}

void TransferProgress::beginListing()
{
    begin(Stage::Listing, 0);
}

void TransferProgress::beginWriting(std::int64_t connections)
{
    begin(Stage::Writing, connections);
}

void TransferProgress::update(std::int64_t done)
{
    check();
    if (m_sinceTold.hasExpired(millisecondsBetween))
        tell(done);
}

void TransferProgress::check() const
{
    if (m_isCancelled)
        throw TransferCancelled();
}

void TransferProgress::begin(Stage stage, std::int64_t total)
{
    check();
    m_stage = stage;
    m_total = total;
    tell(0);
}

void TransferProgress::tell(std::int64_t done)
{
    m_sinceTold.start();
    m_listener({textFor(done), done, m_total});
}

QString TransferProgress::textFor(std::int64_t done) const
{
    switch (m_stage) {
    case Stage::Reading:
        return m_total > 0 ? tr("Reading \"%1\": %2 of %3")
                                 .arg(m_file, usage::sizeText(done), usage::sizeText(m_total))
                           : tr("Reading \"%1\": %2").arg(m_file, usage::sizeText(done));
    case Stage::Storing:
        return tr("Adding connections to the history: %1 of %2").arg(done).arg(m_total);
    case Stage::Listing:
        return tr("Reading the history");
    case Stage::Writing:
        return tr("Writing connections: %1 of %2").arg(done).arg(m_total);
    }
    return {};
}

} // namespace refdialer
