// SPDX-License-Identifier: MIT
#include "UpkeepCommands.h"

#include "Complaint.h"
#include "Output.h"
#include "StoreResult.h"
#include "apps/common/FilePlace.h"
#include "apps/common/ReplacementFile.h"
#include "formats/JsonText.h"

#include <filesystem>
#include <system_error>

namespace connrecord
{

namespace
{

Failure noHistory(const std::string &path)
{
    return {ExitCode::Store,
            "There is no history \"" + path + "\". Name the right one with --store."};
}

history::Store existingHistory(const std::string &path)
{
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        throw noHistory(path);
    return valueOrFailure(history::Store::openForReading(path));
}

Failure cannotWrite(const std::string &path, const std::string &reason)
{
    return {ExitCode::Output, outputName(path) + " cannot be written: " + reason + "."};
}

void copy(const history::Store &store, const std::string &storePath, const std::string &path)
{
    const auto copied = store.copyTo(path);
    if (!copied && copied.error().kind == history::StoreError::Kind::WriteFailed)
        throw Failure(ExitCode::Output, copied.error().message);
    if (!valueOrFailure(copied))
        throw noHistory(storePath);
}

std::string countText(std::size_t count, const char *what)
{
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

std::string soundText(const std::string &path, const history::Examination &examination)
{
    return "The history \"" + path +
           "\" is sound: " + countText(examination.connections, "connection") + ", " +
           std::to_string(examination.openConnections) + " open.\n";
}

formats::Json toJson(const history::Examination &examination)
{
    return {{"sound", examination.problems.empty()},
            {"connections", examination.connections},
            {"open_connections", examination.openConnections},
            {"problems", examination.problems}};
}

} // namespace

void backUp(const CommonRequest &common, const std::string &copyPath)
{
    if (copyPath == standardOutputPath)
        throw Failure(ExitCode::Usage, "backup needs the name of a new file, not -.");
    checkIsNotOfHistory(copyPath, common.storePath);
    std::error_code none;
    if (std::filesystem::exists(std::filesystem::symlink_status(copyPath, none)))
        throw cannotWrite(copyPath, "it is there already, and a backup replaces nothing; give "
                                    "another name");
    const auto store = existingHistory(common.storePath);
    try {
        common::ReplacementFile file(common::placeOf(copyPath));
        copy(store, common.storePath, file.temporaryPath());
        file.putInFreePlace();
    } catch (const std::system_error &error) {
        throw cannotWrite(copyPath,
                          error.code().message() + "; check its name, the disk and the folder");
    }
}

void checkHistory(const CommonRequest &common)
{
    const auto store = existingHistory(common.storePath);
    const history::Examination examination = valueOrFailure(store.examine());
    if (common.json)
        Output().write(formats::jsonText(toJson(examination)));
    for (const std::string &problem : examination.problems)
        warn(problem);
    if (!examination.problems.empty())
        throw Failure(ExitCode::Store,
                      "The history \"" + common.storePath +
                          "\" is not sound. Put a backup in its place, or export what can "
                          "be read and import it into a new one.");
    if (!common.json)
        Output().write(QByteArray::fromStdString(soundText(common.storePath, examination)));
}

} // namespace connrecord
