// SPDX-License-Identifier: MIT
#pragma once

#include "Failure.h"
#include "apps/common/Audience.h"

#include <QByteArray>
#include <QFile>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace common
{
class ReplacementFile;
}

namespace connrecord
{

/// Stands for standard output where the name of a file is asked for.
inline constexpr const char *standardOutputPath = "-";

/// The way a sentence names it.
std::string outputName(const std::string &path);

/// Throws Failure if the history at `storePath`, or one of the files that are kept
/// beside it, is where a result is about to go: the file that this path leads to
/// by whatever names, or standard output if it is "-". Files of the history that
/// do not exist at the moment count too.
void checkIsNotOfHistory(const std::string &outputPath, const std::string &storePath);

/// Where the result of a command goes. An ordinary file gets its place, and its
/// earlier contents stay whole, until the new ones are; a new file is its
/// audience's. Everything else, such as a pipe, a terminal or what this process has
/// open already (/dev/stdout), is written to where it is.
class Output
{
public:
    /// Opens what is not to be replaced. Throws Failure.
    explicit Output(const std::string &path = standardOutputPath,
                    common::Audience audience = common::Audience::Owner);
    /// An ordinary file stays as it was unless the result is complete.
    ~Output();
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    bool isTerminal() const;
    /// Writes the next piece of the result, lines of UTF-8 of which it may be a part, or
    /// throws Failure. A terminal gets it printable, everything else as it is.
    void add(std::string_view piece);
    /// To be called when all of the result is written. Throws Failure.
    void complete();
    /// Writes all of the result, which is complete with it, or throws Failure.
    void write(const QByteArray &result);

private:
    void open(const std::string &path);
    void openInPlace(const std::string &path);
    void use(int descriptor, QFileDevice::FileHandleFlags closing);
    common::ReplacementFile &replacement();
    void writeInPlace(const char *bytes, qint64 count);
    template <typename Step>
    void orFailure(Step step) const;
    Failure cannotWrite(const std::string &reason) const;

    const std::string m_name;
    const common::Audience m_audience;
    QFile m_file;
    std::optional<std::filesystem::path> m_replacedFile;
    std::unique_ptr<common::ReplacementFile> m_replacement; ///< once something is written
};

} // namespace connrecord
