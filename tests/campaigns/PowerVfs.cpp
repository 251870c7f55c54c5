// SPDX-License-Identifier: MIT
#include "PowerVfs.h"

#include <filesystem>
#include <new>
#include <string>

namespace
{

/// SQLite makes room for it, and behind it for the usual layer's own file.
struct PowerFile {
    sqlite3_file base;
    PowerDisk *disk;
    std::string *path;
    bool isFolderToBeSynced; ///< with the file's next sync, as the usual layer does it

    sqlite3_file *usual() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

PowerFile &powerFile(sqlite3_file *file)
{
    return *reinterpret_cast<PowerFile *>(file);
}

sqlite3_file *usualFile(sqlite3_file *file)
{
    return powerFile(file).usual();
}

int closeFile(sqlite3_file *file)
{
    delete powerFile(file).path;
    return usualFile(file)->pMethods->xClose(usualFile(file));
}

int readFile(sqlite3_file *file, void *bytes, int size, sqlite3_int64 offset)
{
    if (powerFile(file).disk->isOff())
        return SQLITE_IOERR_READ;
    return usualFile(file)->pMethods->xRead(usualFile(file), bytes, size, offset);
}

int writeFile(sqlite3_file *file, const void *bytes, int size, sqlite3_int64 offset)
{
    PowerFile &self = powerFile(file);
    if (!self.disk->write(*self.path, bytes, size, offset))
        return SQLITE_IOERR_WRITE;
    return usualFile(file)->pMethods->xWrite(usualFile(file), bytes, size, offset);
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    PowerFile &self = powerFile(file);
    if (!self.disk->truncate(*self.path, size))
        return SQLITE_IOERR_TRUNCATE;
    return usualFile(file)->pMethods->xTruncate(usualFile(file), size);
}

/// Nothing need get to the disk below: its power stays on.
int syncFile(sqlite3_file *file, int /*flags*/)
{
    PowerFile &self = powerFile(file);
    if (!self.disk->sync(*self.path))
        return SQLITE_IOERR_FSYNC;
    if (self.isFolderToBeSynced && !self.disk->syncFolder())
        return SQLITE_IOERR_DIR_FSYNC;
    self.isFolderToBeSynced = false;
    return SQLITE_OK;
}

int fileSize(sqlite3_file *file, sqlite3_int64 *size)
{
    return usualFile(file)->pMethods->xFileSize(usualFile(file), size);
}

int lockFile(sqlite3_file *file, int lock)
{
    return usualFile(file)->pMethods->xLock(usualFile(file), lock);
}

int unlockFile(sqlite3_file *file, int lock)
{
    return usualFile(file)->pMethods->xUnlock(usualFile(file), lock);
}

int checkReservedLock(sqlite3_file *file, int *result)
{
    return usualFile(file)->pMethods->xCheckReservedLock(usualFile(file), result);
}

int controlFile(sqlite3_file *file, int operation, void *argument)
{
    return usualFile(file)->pMethods->xFileControl(usualFile(file), operation, argument);
}

int sectorSize(sqlite3_file *file)
{
    return usualFile(file)->pMethods->xSectorSize(usualFile(file));
}

int deviceCharacteristics(sqlite3_file *file)
{
    return usualFile(file)->pMethods->xDeviceCharacteristics(usualFile(file));
}

int mapShared(sqlite3_file *file, int page, int size, int extend, void volatile **memory)
{
    return usualFile(file)->pMethods->xShmMap(usualFile(file), page, size, extend, memory);
}

int lockShared(sqlite3_file *file, int offset, int count, int flags)
{
    return usualFile(file)->pMethods->xShmLock(usualFile(file), offset, count, flags);
}

void shareChanges(sqlite3_file *file)
{
    usualFile(file)->pMethods->xShmBarrier(usualFile(file));
}

int unmapShared(sqlite3_file *file, int isToBeDeleted)
{
    return usualFile(file)->pMethods->xShmUnmap(usualFile(file), isToBeDeleted);
}

// Version 2: files are not mapped into memory, where nobody would see them change.
constexpr sqlite3_io_methods methods = {
    2,
    closeFile,
    readFile,
    writeFile,
    truncateFile,
    syncFile,
    fileSize,
    lockFile,
    unlockFile,
    checkReservedLock,
    controlFile,
    sectorSize,
    deviceCharacteristics,
    mapShared,
    lockShared,
    shareChanges,
    unmapShared,
    nullptr,
    nullptr,
};

constexpr int logAndJournal = SQLITE_OPEN_MAIN_JOURNAL | SQLITE_OPEN_WAL;

PowerVfs &powerVfs(sqlite3_vfs *vfs)
{
    return *static_cast<PowerVfs *>(vfs->pAppData);
}

/// Tells the disk of a file that is opened; false if the power fails meanwhile.
bool registerFile(PowerDisk &disk, const std::string &path, int flags)
{
    const bool isThere = std::filesystem::exists(path);
    disk.open(path, isThere);
    return isThere || (flags & SQLITE_OPEN_CREATE) == 0 || disk.create(path);
}

int openFile(sqlite3_vfs *vfs, const char *name, sqlite3_file *file, int flags, int *flagsUsed)
{
    PowerVfs &self = powerVfs(vfs);
    file->pMethods = nullptr;
    // What has no name is of this program's run only.
    if (!name || (flags & (SQLITE_OPEN_MAIN_DB | logAndJournal)) == 0)
        return self.usual().xOpen(&self.usual(), name, file, flags, flagsUsed);
    if (self.disk().isOff() || !registerFile(self.disk(), name, flags))
        return SQLITE_CANTOPEN;
    PowerFile &opened = *new (file) PowerFile();
    const int code = self.usual().xOpen(&self.usual(), name, opened.usual(), flags, flagsUsed);
    if (code != SQLITE_OK)
        return code;
    opened.disk = &self.disk();
    opened.path = new std::string(name);
    opened.isFolderToBeSynced = (flags & SQLITE_OPEN_CREATE) != 0 && (flags & logAndJournal) != 0;
    opened.base.pMethods = &methods;
    return SQLITE_OK;
}

int deleteFile(sqlite3_vfs *vfs, const char *name, int isFolderSynced)
{
    PowerVfs &self = powerVfs(vfs);
    if (!std::filesystem::exists(name))
        return SQLITE_IOERR_DELETE_NOENT;
    if (!self.disk().remove(name))
        return SQLITE_IOERR_DELETE;
    const int code = self.usual().xDelete(&self.usual(), name, 0);
    if (code == SQLITE_OK && isFolderSynced != 0 && !self.disk().syncFolder())
        return SQLITE_IOERR_DIR_FSYNC;
    return code;
}

} // namespace

PowerVfs::PowerVfs(PowerDisk &disk)
    : m_disk(disk)
    , m_usual(sqlite3_vfs_find(nullptr))
    , m_vfs(*m_usual)
{
    m_vfs.zName = "power";
    m_vfs.pNext = nullptr;
    m_vfs.pAppData = this;
    m_vfs.szOsFile += static_cast<int>(sizeof(PowerFile));
    m_vfs.xOpen = openFile;
    m_vfs.xDelete = deleteFile;
    sqlite3_vfs_register(&m_vfs, 1);
}

PowerVfs::~PowerVfs()
{
    sqlite3_vfs_unregister(&m_vfs);
    sqlite3_vfs_register(m_usual, 1);
}
