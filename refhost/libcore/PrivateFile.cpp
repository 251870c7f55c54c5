// SPDX-License-Identifier: MIT
#include "PrivateFile.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace refhost
{

namespace
{

/// Also gives the owner what a umask has taken. A folder of somebody else's stays as it is.
void keepToOwner(const QString &path)
{
    [[maybe_unused]] const int result =
        fchmodat(AT_FDCWD, QFile::encodeName(path).constData(), S_IRWXU, AT_SYMLINK_NOFOLLOW);
}

void createFolders(const QString &path)
{
    if (QFileInfo::exists(path))
        return;
    createFolders(QFileInfo(path).absolutePath());
    if (mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0)
        keepToOwner(path);
}

} // namespace

void preparePrivateFile(const QString &path)
{
    const QString parent = QFileInfo(path).absolutePath();
    createFolders(parent);
    keepToOwner(parent);
    const int file = open(QFile::encodeName(path).constData(),
                          O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    fchmod(file, S_IRUSR | S_IWUSR);
    close(file);
}

} // namespace refhost
