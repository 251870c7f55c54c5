// SPDX-License-Identifier: MIT
#include "InputFile.h"

#include "CompressedInput.h"
#include "InputError.h"
#include "Utf8Text.h"

#include <QDateTime>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace formats
{

namespace
{

using history::Sentence;
using history::translatable;

InputError cannotRead(const Sentence &name, int errorNumber)
{
    return InputError({translatable("formats", "%1 cannot be read: %2. Check its name and its "
                                               "permissions."),
                       {name, std::generic_category().message(errorNumber)}});
}

} // namespace

InputFile::InputFile(const std::string &path)
{
    if (path == "-")
        openStandardInput();
    else
        open(path);
    m_decompressed = decompressed(m_file);
    if (m_decompressed)
        m_size = 0;
}

void InputFile::openStandardInput()
{
    m_name = translatable("formats", "standard input");
    m_modifiedUtc = QDateTime::currentSecsSinceEpoch();
    if (!m_file.open(STDIN_FILENO, QIODevice::ReadOnly))
        throw cannotRead(m_name, EBADF);
}

void InputFile::open(const std::string &path)
{
    m_name = {translatable("formats", "\"%1\""), {printable(path, unlimited)}};
    // By descriptor: the bytes of a name need not be text in any encoding.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        throw cannotRead(m_name, errno);
    m_file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        throw cannotRead(m_name, errno);
    if (S_ISDIR(status.st_mode))
        throw cannotRead(m_name, EISDIR);
    m_size = status.st_size;
    m_modifiedUtc = status.st_mtime;
}

} // namespace formats
