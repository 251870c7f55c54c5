// SPDX-License-Identifier: MIT
#include "Output.h"

#include "apps/common/FilePlace.h"
#include "apps/common/HistoryFiles.h"
#include "apps/common/ReplacementFile.h"
#include "formats/Utf8Text.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace connrecord
{

namespace
{

constexpr auto dontClose = QFileDevice::DontCloseHandle;

/// What is at the path, links followed; 0 for nothing.
mode_t modeAt(const std::string &path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0)
        return status.st_mode;
    if (errno != ENOENT)
        throw std::system_error(errno, std::generic_category());
    return 0;
}

} // namespace

std::string outputName(const std::string &path)
{
    if (path == standardOutputPath)
        return "standard output";
    return '"' + formats::printable(path, formats::unlimited) + '"';
}

void checkIsNotOfHistory(const std::string &outputPath, const std::string &storePath)
{
    if (common::belongsToHistory(outputPath == standardOutputPath ? "/dev/stdout" : outputPath,
                                 storePath))
        throw Failure(ExitCode::Output, outputName(outputPath) +
                                            " cannot be written: it belongs to the history \"" +
                                            storePath + "\". Give another file.");
}

template <typename Step>
void Output::orFailure(Step step) const
{
    try {
        step();
    } catch (const std::system_error &error) {
        throw cannotWrite(error.code().message());
    }
}

Output::Output(const std::string &path, common::Audience audience)
    : m_name(outputName(path))
    , m_audience(audience)
{
    orFailure([&] { open(path); });
}

Output::~Output() = default;

bool Output::isTerminal() const
{
    return !m_replacedFile && ::isatty(m_file.handle()) != 0;
}

void Output::add(std::string_view piece)
{
    if (m_replacedFile)
        return orFailure([&] { replacement().write(piece); });
    if (!isTerminal())
        return writeInPlace(piece.data(), static_cast<qint64>(piece.size()));
    const QByteArray printable = formats::printableLines(piece);
    writeInPlace(printable.constData(), printable.size());
}

void Output::complete()
{
    if (m_replacedFile)
        orFailure([this] { replacement().putInPlace(); });
}

void Output::write(const QByteArray &result)
{
    add({result.constData(), static_cast<std::size_t>(result.size())});
    complete();
}

void Output::open(const std::string &path)
{
    if (path == standardOutputPath)
        return use(STDOUT_FILENO, dontClose);
    if (const auto descriptor = common::descriptorAt(path))
        return use(*descriptor, dontClose);
    const mode_t present = modeAt(path);
    // A disk is hardly what somebody means.
    if (S_ISBLK(present))
        throw cannotWrite("it is a block device");
    if (present != 0 && !S_ISREG(present))
        return openInPlace(path);
    m_replacedFile = common::placeOf(path);
}

void Output::openInPlace(const std::string &path)
{
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        throw std::system_error(errno, std::generic_category());
    use(descriptor, QFileDevice::AutoCloseHandle);
}

void Output::use(int descriptor, QFileDevice::FileHandleFlags closing)
{
    if (!m_file.open(descriptor, QIODevice::WriteOnly, closing))
        throw cannotWrite(m_file.errorString().toStdString());
}

void Output::writeInPlace(const char *bytes, qint64 count)
{
    if (m_file.write(bytes, count) != count || !m_file.flush())
        throw cannotWrite(m_file.errorString().toStdString());
}

common::ReplacementFile &Output::replacement()
{
    if (!m_replacement)
        m_replacement = std::make_unique<common::ReplacementFile>(*m_replacedFile, m_audience);
    return *m_replacement;
}

Failure Output::cannotWrite(const std::string &reason) const
{
    return {ExitCode::Output, m_name + " cannot be written: " + reason +
                                  ". Check the disk, the folder and its permissions."};
}

} // namespace connrecord
