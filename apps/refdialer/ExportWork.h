// SPDX-License-Identifier: MIT
#pragma once

#include "Transfer.h"

namespace common
{
class ReplacementFile;
}

namespace refdialer
{

/// The file that the user wants to export to.
struct ExportChoice {
    QString file;
    const formats::ExportFormat *format = &formats::exportFormats.front();
};

/// Writes all finished connections of the history at `storePath` to the file, whose earlier
/// contents stay whole until the new ones are.
class ExportWork
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::ExportWork)

public:
    ExportWork(std::string storePath, ExportChoice choice);

    TransferResult operator()(TransferProgress &progress) const;

private:
    /// What the format has to know of where the history comes from.
    formats::ExportOptions options() const;
    std::size_t write(const history::Store &store, TransferProgress &progress) const;
    std::size_t write(const history::Store &store, common::ReplacementFile &file,
                      TransferProgress &progress) const;

    std::string m_storePath;
    ExportChoice m_choice;
};

} // namespace refdialer
