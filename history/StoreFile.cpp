// SPDX-License-Identifier: MIT
#include "StoreFile.h"

#include "RawFile.h"
#include "SchemaUpgrade.h"
#include "StoreFailure.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <tuple>

namespace history
{

namespace
{

using Kind = StoreError::Kind;

/// The database header and the head of the first page behind it.
using FileHead = std::array<unsigned char, 108>;

constexpr std::size_t headerSize = 100;
constexpr std::string_view magic("SQLite format 3\0", 16);
constexpr std::size_t userVersionOffset = 60;
constexpr std::size_t applicationIdOffset = 68;
constexpr std::size_t pageTypeOffset = 100;
constexpr std::size_t cellCountOffset = 103;
constexpr unsigned char leafTablePage = 0x0d;

std::optional<struct statx> statusOf(const std::string &path)
{
    struct statx status = {};
    if (statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status) == 0)
        return status;
    if (errno == ENOENT)
        return std::nullopt;
    throw cannotOpen(path, errno);
}

std::int64_t nanoseconds(const struct statx_timestamp &time)
{
    return time.tv_sec * 1000000000 + time.tv_nsec;
}

/// The kinds of disk, as statfs(2) numbers them, that several machines share. A disk
/// in user space may be one of them, as with sshfs.
constexpr std::array<std::uint32_t, 13> networkDisks = {
    0x6969,     // nfs
    0x517b,     // smb
    0xff534d42, // cifs
    0xfe534d42, // smb2
    0x65735546, // fuse
    0x01021997, // 9p
    0x5346414f, // afs
    0x6b414653, // kafs
    0x73757245, // coda
    0x00c36400, // ceph
    0x0bd00bd0, // lustre
    0x01161970, // gfs2
    0x7461636f, // ocfs2
};

/// SQLite reserves a log's index on the disk by a byte in each of these.
constexpr int logIndexPage = 4096;

/// Through a descriptor that is only a path: it follows no link, and closing it leaves
/// this process's locks on the file alone.
void takeAccessOfOthers(const std::string &path)
{
    const int file = open(path.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0)
        return;
    struct stat status = {};
    constexpr mode_t others = S_IRWXG | S_IRWXO;
    if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid() &&
        (status.st_mode & others) != 0)
        chmod(("/proc/self/fd/" + std::to_string(file)).c_str(), status.st_mode & 07777U & ~others);
    close(file);
}

void createFolders(const std::filesystem::path &folder)
{
    std::error_code error;
    if (folder.empty() || std::filesystem::is_directory(folder, error))
        return;
    createFolders(folder.parent_path());
    // The umask can only take permissions away here, so there is no moment at
    // which others could enter; chmod then gives the owner what it took.
    if (mkdir(folder.c_str(), S_IRWXU) == 0 ? chmod(folder.c_str(), S_IRWXU) != 0 : errno != EEXIST)
        throw cannotOpen(folder.string(), errno);
}

/// The first bytes of the file, followed by zeros if it is shorter.
FileHead headOf(const std::string &path)
{
    FileHead bytes = {};
    RawFile(path).read(0, bytes.data(), bytes.size());
    return bytes;
}

std::int32_t bigEndian32(const FileHead &head, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8U | head[offset + i];
    return static_cast<std::int32_t>(value);
}

bool holdsNoTable(const FileHead &head)
{
    return head[pageTypeOffset] == leafTablePage && head[cellCountOffset] == 0 &&
           head[cellCountOffset + 1] == 0;
}

StoreFailure anotherFile(const std::string &path)
{
    return notAStore(path, translatable("history", "\"%1\" is not a connection history but some "
                                                   "other file; it was left as it is, move it "
                                                   "away or name another file."));
}

StoreFailure aFolder(const std::string &path)
{
    return notAStore(path, translatable("history", "\"%1\" is not a connection history but a "
                                                   "folder; it was left as it is, move it away or "
                                                   "name another file."));
}

StoreFailure aDevice(const std::string &path)
{
    return notAStore(path, translatable("history", "\"%1\" is not a connection history but a "
                                                   "device; it was left as it is, move it away or "
                                                   "name another file."));
}

StoreFailure emptyWithLog(const std::string &path)
{
    return {Kind::Damaged,
            Sentence{translatable("history", "The connection history \"%1\" is empty, but \"%2\" "
                                             "holds records of it; both were left as they are, "
                                             "put a copy in its place or move both away."),
                     {path, logOf(path)}}};
}

FileContent inspectUnmarked(const std::string &path, const FileHead &head)
{
    const bool isUntouched = bigEndian32(head, applicationIdOffset) == 0 &&
                             bigEndian32(head, userVersionOffset) == 0 && holdsNoTable(head) &&
                             !hasLog(path);
    if (!isUntouched)
        throw anotherDatabase(path);
    return FileContent::Nothing;
}

/// A power cut while a store is made may leave its later sectors alone, and the journal by
/// which SQLite then takes them back.
bool isCutWhileMade(const std::string &path, const FileHead &head)
{
    const bool isEmpty =
        std::all_of(head.begin(), head.end(), [](unsigned char each) { return each == 0; });
    const auto journal = statusOf(path + "-journal");
    return isEmpty && journal && journal->stx_size > 0;
}

FileContent inspectHead(const std::string &path, const FileHead &head)
{
    if (isCutWhileMade(path, head))
        return FileContent::Nothing;
    if (std::memcmp(head.data(), magic.data(), magic.size()) != 0)
        throw anotherFile(path);
    if (bigEndian32(head, applicationIdOffset) != storeApplicationId)
        return inspectUnmarked(path, head);
    checkSchemaVersion(path, bigEndian32(head, userVersionOffset));
    return FileContent::Store;
}

} // namespace

bool FileIdentity::operator==(const FileIdentity &other) const
{
    return std::tie(device, inode, bornSeconds, bornNanoseconds) ==
           std::tie(other.device, other.inode, other.bornSeconds, other.bornNanoseconds);
}

std::optional<FileIdentity> fileAt(const std::string &path)
{
    const auto status = statusOf(path);
    if (!status)
        return std::nullopt;
    const std::uint64_t device =
        std::uint64_t{status->stx_dev_major} << 32U | status->stx_dev_minor;
    return FileIdentity{device, status->stx_ino, status->stx_btime.tv_sec,
                        status->stx_btime.tv_nsec};
}

std::string resolvedPath(const std::string &path)
{
    std::error_code error;
    const auto resolved = std::filesystem::canonical(path, error);
    if (error)
        throw cannotOpen(path, error.value());
    return resolved.string();
}

void createPrivateFile(const std::string &path)
{
    createFolders(std::filesystem::path(path).parent_path());
    const int file = open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0 && errno == EEXIST)
        return;
    const bool isMade = file >= 0 && fchmod(file, S_IRUSR | S_IWUSR) == 0;
    const int reason = errno;
    if (file >= 0)
        close(file);
    if (!isMade)
        throw cannotOpen(path, reason);
}

std::optional<FileChange> changeOf(const std::string &path)
{
    const auto status = statusOf(path);
    if (!status)
        return std::nullopt;
    return FileChange{static_cast<std::int64_t>(status->stx_ino), nanoseconds(status->stx_mtime),
                      nanoseconds(status->stx_ctime), nanoseconds(status->stx_btime)};
}

std::string logOf(const std::string &path)
{
    return path + "-wal";
}

void makePrivate(const std::string &path)
{
    for (const char *const suffix : {"", "-wal", "-shm"})
        takeAccessOfOthers(path + suffix);
}

bool canHaveLog(const std::string &path)
{
    struct statfs disk = {};
    if (statfs(path.c_str(), &disk) != 0)
        return true;
    const auto type = static_cast<std::uint32_t>(disk.f_type);
    const bool isOnNetwork =
        std::find(networkDisks.begin(), networkDisks.end(), type) != networkDisks.end();
    return !isOnNetwork && disk.f_bsize >= logIndexPage;
}

bool hasLog(const std::string &path)
{
    const auto status = statusOf(logOf(path));
    return status && status->stx_size > 0;
}

int writeObstacle(const std::string &path)
{
    for (const auto &each :
         {std::filesystem::path(path), std::filesystem::path(path).parent_path()}) {
        if (faccessat(AT_FDCWD, each.c_str(), W_OK, AT_EACCESS) != 0)
            return errno;
    }
    return 0;
}

FileContent inspectFile(const std::string &path)
{
    // The log is looked at first: another process that is just making the store
    // writes the file before its log.
    const bool isLogged = hasLog(path);
    const auto status = statusOf(path);
    if (!status)
        throw cannotOpen(path, ENOENT);
    if (S_ISDIR(status->stx_mode))
        throw aFolder(path);
    if (!S_ISREG(status->stx_mode))
        throw aDevice(path);
    if (status->stx_size == 0 && isLogged)
        throw emptyWithLog(path);
    if (status->stx_size == 0)
        return FileContent::Nothing;
    if (static_cast<std::size_t>(status->stx_size) < headerSize)
        throw anotherFile(path);
    return inspectHead(path, headOf(path));
}

} // namespace history
