// SPDX-License-Identifier: MIT
#include "ExportWork.h"

#include "TransferFile.h"
#include "apps/common/Export.h"
#include "apps/common/FilePlace.h"
#include "apps/common/MachineId.h"
#include "apps/common/ReplacementFile.h"
#include "apps/common/StoreErrorText.h"

#include <optional>
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
        throw TransferFailure{common::storeErrorText(result.error())};
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
    const auto store = valueOrFailure(history::Store::openForReading(m_storePath));
    progress.beginWriting(valueOrFailure(store.count()));
    const std::size_t count = write(store, progress);
    return {TransferResult::Kind::Done, tr("Connections exported: %1").arg(count),
            tr("They are in \"%1\".").arg(shownName(m_choice.file))};
}

formats::ExportOptions ExportWork::options() const
{
    if (!m_choice.format->namesMachine)
        return {};
    try {
        return {common::machineId(), std::nullopt};
    } catch (const std::system_error &error) {
        throw TransferFailure{tr("This system has no number of its own in /etc/machine-id: %1.")
                                  .arg(QString::fromStdString(error.code().message()))};
    }
}

std::size_t ExportWork::write(const history::Store &store, TransferProgress &progress) const
{
    try {
        common::ReplacementFile file(common::placeOf(pathOf(m_choice.file)));
        const std::size_t count = write(store, file, progress);
        progress.check();
        file.putInPlace();
        return count;
    } catch (const std::system_error &error) {
        throw TransferFailure{
            tr("\"%1\" cannot be written: %2. Check the disk, the folder and its "
               "permissions.")
                .arg(shownName(m_choice.file), QString::fromStdString(error.code().message()))};
    }
}

std::size_t ExportWork::write(const history::Store &store, common::ReplacementFile &file,
                              TransferProgress &progress) const
{
    history::ConnectionSelection all;
    all.withHours = m_choice.format->carriesHours;
    const auto running =
        m_choice.format->namesMachine ? common::Running::Written : common::Running::LeftOut;
    const auto writer = m_choice.format->writer(options());
    return valueOrFailure(common::writeConnections(
        store, all, running, *writer, [&file](std::string_view piece) { file.write(piece); },
        [&progress](std::size_t done) { progress.update(static_cast<std::int64_t>(done)); }));
}

} // namespace refdialer
