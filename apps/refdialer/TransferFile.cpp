// SPDX-License-Identifier: MIT
#include "TransferFile.h"

#include "TransferProgress.h"
#include "apps/common/HistoryFiles.h"
#include "formats/Utf8Text.h"

#include <QFile>

#include <filesystem>
#include <system_error>

namespace refdialer
{

namespace
{

class FileProblem
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::FileProblem)

public:
    static QString noFile() { return tr("\"%1\" is a folder, a pipe or a device. Choose a file."); }
    static QString ofHistory()
    {
        return tr("\"%1\" belongs to the history that this window shows. Choose another file.");
    }
};

} // namespace

std::string pathOf(const QString &file)
{
    return QFile::encodeName(file).toStdString();
}

QString shownName(const QString &file)
{
    return formats::printable(file, formats::unlimited);
}

void checkIsOrdinary(const QString &file, const std::string &storePath)
{
    std::error_code hidden; // opening it tells why
    const auto status = std::filesystem::status(pathOf(file), hidden);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw TransferFailure{FileProblem::noFile().arg(shownName(file))};
    if (common::belongsToHistory(pathOf(file), storePath))
        throw TransferFailure{FileProblem::ofHistory().arg(shownName(file))};
}

} // namespace refdialer
