// SPDX-License-Identifier: MIT
#pragma once

#include "Transfer.h"

#include <QStringList>

namespace refdialer
{

/// The files that the user wants to import, as one.
struct ImportChoice {
    QStringList files;
    const formats::ImportFormat *format = nullptr; ///< null: whatever they turn out to be
};

/// Adds what the files hold, and the history at `storePath` does not, to that history, all
/// or none.
class ImportWork
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::ImportWork)

public:
    ImportWork(std::string storePath, ImportChoice choice);

    TransferResult operator()(TransferProgress &progress) const;

private:
    common::ImportRequest request() const;
    const formats::ImportFormat &recognised(const std::vector<std::string> &paths) const;
    formats::Imported read(const common::ImportRequest &request, TransferProgress &progress) const;
    history::Store::Merged store(const formats::Imported &imported,
                                 TransferProgress &progress) const;
    static QString summary(const formats::Imported &imported, const history::Store::Merged &merged);
    QString details(const formats::Imported &imported) const;
    QString lineFor(const formats::Unusable &unusable) const;

    std::string m_storePath;
    ImportChoice m_choice;
};

} // namespace refdialer
