// SPDX-License-Identifier: MIT
#include "ExportWork.h"

#include "TransferFile.h"
#include "apps/common/ExportedHours.h"
#include "apps/common/FilePlace.h"
#include "apps/common/ReplacementFile.h"

#include <system_error>
#include <utility>

namespace refdialer
{

namespace
{

/// What the store gives, or its error as a TransferFailure.
template <typename T>
T valueOrFailure(history::Result<T> result)
{
    if (!result)
        throw TransferFailure{QString::fromStdString(result.error().message)};
    return std::move(result.value());
}

} // namespace

ExportWork::ExportWork(std::string storePath, ExportChoice choice)
    : m_storePath(std::move(storePath))
    , m_choice(std::move(choice))
{
}

TransferResult ExportWork::operator()(TransferProgress &progress) const
{
    checkIsOrdinary(m_choice.file, m_storePath);
    progress.beginListing();
    const std::vector<history::Connection> exported = connections();
    progress.beginWriting(static_cast<std::int64_t>(exported.size()));
    const QByteArray contents = m_choice.format->text(exported, [&progress](std::size_t done) {
        progress.update(static_cast<std::int64_t>(done));
    });
    write(contents, progress);
    return {TransferResult::Kind::Done, tr("Connections exported: %1").arg(exported.size()),
            tr("They are in \"%1\".").arg(m_choice.file)};
}

std::vector<history::Connection> ExportWork::connections() const
{
    const auto store = valueOrFailure(history::Store::openForReading(m_storePath));
    auto connections = valueOrFailure(store.list());
    if (m_choice.format->carriesHours)
        common::addHours(valueOrFailure(store.hours()), connections);
    return connections;
}

void ExportWork::write(const QByteArray &contents, const TransferProgress &progress) const
{
    try {
        common::ReplacementFile file(common::placeOf(pathOf(m_choice.file)));
        file.write(contents);
        progress.check();
        file.putInPlace();
    } catch (const std::system_error &error) {
        throw TransferFailure{
            tr("\"%1\" cannot be written: %2. Check the disk, the folder and its "
               "permissions.")
                .arg(m_choice.file, QString::fromStdString(error.code().message()))};
    }
}

} // namespace refdialer
