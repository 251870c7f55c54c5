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

/// Also gives the owner what a umask has taken.
void keepToOwner(const QString &folder)
{
    fchmodat(AT_FDCWD, QFile::encodeName(folder).constData(), S_IRWXU, AT_SYMLINK_NOFOLLOW);
}

void createFolders(const QString &folder)
{
    if (QFileInfo::exists(folder))
        return;
    createFolders(QFileInfo(folder).absolutePath());
    if (mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0)
        keepToOwner(folder);
}

} // namespace

void preparePrivateFile(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    createFolders(folder);
    keepToOwner(folder);
    const int file = open(QFile::encodeName(path).constData(),
                          O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    fchmod(file, S_IRUSR | S_IWUSR);
    close(file);
}

} // namespace refhost
