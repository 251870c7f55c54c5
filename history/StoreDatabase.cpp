// SPDX-License-Identifier: MIT
#include "StoreDatabase.h"

#include "SchemaUpgrade.h"

#include <SQLiteCpp/Backup.h>

#include <sqlite3.h>
#include <utf8.h>

#include <cerrno>
#include <filesystem>
#include <iterator>

namespace history
{

namespace
{

using Kind = StoreError::Kind;

/// Absolute, so that a later change of the working directory changes nothing and
/// SQLite takes no file name for one of its special ones.
std::string absolutePath(const std::string &path)
{
    return std::filesystem::absolute(path).lexically_normal().string();
}

/// Programs that take paths as text would name another file in its place and make a
/// second history there.
void checkPath(const std::string &path)
{
    if (utf8::is_valid(path.begin(), path.end()))
        return;
    std::string shown;
    utf8::replace_invalid(path.begin(), path.end(), std::back_inserter(shown));
    throw StoreFailure(
        Kind::CannotOpen,
        Sentence{translatable("history", "The connection history \"%1\" cannot be opened because "
                                         "its path is not UTF-8; rename the file or folder whose "
                                         "name is not, or name another file."),
                 {shown}});
}

StoreFailure replacedInUse(const std::string &path, const std::string &log)
{
    return {Kind::CannotOpen,
            Sentence{translatable("history", "The connection history \"%1\" was replaced while it "
                                             "was in use, and \"%2\" still holds records of the "
                                             "former file; close all programs that use it and put "
                                             "the former file back, or move the log away."),
                     {path, log}}};
}

StoreFailure changedOutsideLog(const std::string &path, const std::string &log)
{
    return {Kind::CannotOpen,
            Sentence{translatable("history", "The connection history \"%1\" was changed from "
                                             "outside or replaced, so the changes in its log "
                                             "\"%2\" may be those of a former file; both were left "
                                             "as they are, move the log away to use the history "
                                             "as it is, or, if the file was never replaced, touch "
                                             "the log to keep its changes."),
                     {path, log}}};
}

/// The file's name as SQLite takes it together with parameters.
std::string uriOf(const std::string &path)
{
    constexpr const char *digits = "0123456789ABCDEF";
    std::string uri = "file:";
    for (const char each : path) {
        if (each == '%' || each == '?' || each == '#')
            uri += {'%', digits[each >> 4], digits[each & 15]};
        else
            uri += each;
    }
    return uri;
}

/// Lets nothing that a file says about itself run here, now or when it is planted
/// later.
void distrustSchema(sqlite3 *database)
{
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    for (const int option : {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER,
                             SQLITE_DBCONFIG_ENABLE_VIEW})
        sqlite3_db_config(database, option, 0, nullptr);
}

} // namespace

StoreDatabase::StoreDatabase(const std::string &path, IfMissing ifMissing, Durability durability,
                             LockWait lockWait)
    : m_path(absolutePath(path))
    , m_ifMissing(ifMissing)
    , m_durability(durability)
    , m_lockWait(lockWait)
{
}

StoreDatabase::~StoreDatabase() = default;

bool StoreDatabase::open()
{
    checkPath(m_path);
    const auto file = fileAt(m_path);
    // What can only be read may have been changed by somebody who may write.
    const bool isSameFile = file == m_file;
    if (m_database && isSameFile && !m_isReadOnly)
        return true;
    if (m_database && file && !isSameFile)
        checkLogAfterReplacement();
    close();
    if (!file && m_ifMissing == IfMissing::ReadAsEmpty)
        return false;
    if (!file)
        createPrivateFile(m_path);
    const bool isNew = inspectFile(resolvedPath(m_path)) == FileContent::Nothing;
    if (isNew && m_ifMissing == IfMissing::ReadAsEmpty)
        return false;
    connect();
    return true;
}

/// SQLite would take the former file's log for the new one's and mix the two.
void StoreDatabase::checkLogAfterReplacement() const
{
    const std::string path = resolvedPath(m_path);
    if (hasLog(path))
        throw replacedInUse(m_path, logOf(path));
}

/// The changes in it would undo those of the file, or damage it.
void StoreDatabase::checkLogBase()
{
    if (!m_logBase->isOfThisFile())
        throw changedOutsideLog(m_path, logOf(resolvedPath(m_path)));
}

void StoreDatabase::connect()
{
    try {
        openFile();
        // Nothing is written for a file that turns out to be no store of ours.
        setCheckpointOnClose(false);
        m_logBase = std::make_unique<LogBase>(*m_database, resolvedPath(m_path));
        checkLogBase();
        if (m_isReadOnly)
            prepareForReading();
        else
            prepareForWriting();
        m_tables = std::make_unique<StoreTables>(*m_database, m_path);
        m_file = fileAt(m_path);
    } catch (const SQLite::Exception &exception) {
        const StoreFailure reason = failure(Access::Opening, exception);
        close();
        throw reason;
    } catch (const StoreFailure &) {
        close();
        throw;
    }
}

void StoreDatabase::openFile()
{
    const std::string path = resolvedPath(m_path);
    m_isReadOnly = m_ifMissing == IfMissing::ReadAsEmpty && writeObstacle(path) != 0;
    // Where no file can be made beside the store, SQLite reads it only if it is told
    // that nobody changes it; which is true for as long as it has no log, or one whose
    // writer was killed and whose index is not there.
    const bool isAtRest = m_isReadOnly && !hasLog(path);
    const bool isLeftAlone = m_isReadOnly && !isAtRest && !fileAt(path + "-shm");
    const int access = m_isReadOnly ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE;
    // A store stays on one thread, so SQLite need not lock around every value.
    m_database = std::make_unique<SQLite::Database>(
        uriOf(path) + (isAtRest      ? "?immutable=1"
                       : isLeftAlone ? "?vfs=unix-none"
                                     : ""),
        access | SQLite::OPEN_URI | SQLite::OPEN_NOMUTEX,
        m_lockWait == LockWait::Short ? shortLockTimeoutMilliseconds : lockTimeoutSeconds * 1000);
    if (isLeftAlone)
        m_database->exec("PRAGMA locking_mode = EXCLUSIVE"); // the index in memory of its own
    distrustSchema(m_database->getHandle());
}

/// An earlier version's file that cannot be upgraded in its place is read from a copy in
/// memory that is.
void StoreDatabase::prepareForReading()
{
    checkSchema(m_path, *m_database, storeSchema());
    if (!isOutdated(*m_database, storeSchema()))
        return;
    auto copy = std::make_unique<SQLite::Database>(":memory:",
                                                   SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
    SQLite::Backup(*copy, *m_database).executeStep();
    distrustSchema(copy->getHandle());
    upgradeSchema(m_path, *copy, storeSchema());
    m_logBase.reset();
    m_database = std::move(copy);
}

void StoreDatabase::prepareForWriting()
{
    upgradeSchema(m_path, *m_database, storeSchema());
    const std::string path = resolvedPath(m_path);
    makePrivate(path);
    setCheckpointOnClose(true);
    // Refused while another process is just making the same store; until the
    // next program opens it, the store then works without a log.
    m_database->tryExec(canHaveLog(path) ? "PRAGMA journal_mode = WAL"
                                         : "PRAGMA journal_mode = DELETE");
    m_database->exec(m_durability == Durability::Disk ? "PRAGMA synchronous = FULL"
                                                      : "PRAGMA synchronous = NORMAL");
}

void StoreDatabase::close()
{
    m_tables.reset();
    m_logBase.reset();
    m_database.reset();
    m_file.reset();
    m_isChecked = false;
}

/// A damaged store must not be written to, and damage far from the records in
/// use shows only when it is looked for: once, before the first change.
void StoreDatabase::openForWriting()
{
    if (!open())
        throw cannotOpen(m_path, ENOENT);
    if (m_isReadOnly)
        throw sqliteFailure(m_path, Access::Writing, SQLITE_READONLY, writeObstacle(m_path), "");
    if (m_isChecked)
        return;
    const std::string verdict = translated(Access::Reading, [&] {
        return m_database->execAndGet("PRAGMA quick_check(1)").getString();
    });
    if (verdict != "ok") {
        setCheckpointOnClose(false);
        throw damaged(m_path, verdict);
    }
    m_isChecked = true;
}

/// A newer program may have upgraded the store since it was opened here.
void StoreDatabase::checkVersion()
{
    checkSchemaVersion(m_path, m_database->execAndGet("PRAGMA user_version").getInt());
}

StoreFailure StoreDatabase::failure(Access access, const SQLite::Exception &exception)
{
    const int code = exception.getErrorCode();
    StoreFailure reason =
        sqliteFailure(m_path, access, code, systemErrorBehind(code), exception.what());
    if (m_database && reason.error().kind == Kind::Damaged)
        setCheckpointOnClose(false);
    return reason;
}

int StoreDatabase::systemErrorBehind(int code) const
{
    // SQLite's own report on a disk that cannot be written is that a file beside
    // the store, which it failed to make, is missing.
    const bool isObstacle = code == SQLITE_CANTOPEN || code == SQLITE_READONLY;
    const int obstacle = isObstacle ? writeObstacle(m_path) : 0;
    if (obstacle != 0)
        return obstacle;
    const bool isSystemError = code == SQLITE_CANTOPEN || code == SQLITE_IOERR;
    return m_database && isSystemError ? sqlite3_system_errno(m_database->getHandle()) : 0;
}

void StoreDatabase::setCheckpointOnClose(bool enabled)
{
    sqlite3_db_config(m_database->getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, enabled ? 0 : 1,
                      nullptr);
}

} // namespace history
