// SPDX-License-Identifier: MIT
#include "StoreDatabase.h"

#include "StoreSchema.h"

#include <sqlite3.h>

#include <cerrno>
#include <filesystem>

namespace refhost
{

namespace
{

/// Absolute, so that a later change of the working directory changes nothing and
/// SQLite takes no file name for one of its special ones.
std::string absolutePath(const std::string &path)
{
    return std::filesystem::absolute(path).lexically_normal().string();
}

} // namespace

StoreDatabase::StoreDatabase(const std::string &path, IfMissing ifMissing, Durability durability)
    : m_path(absolutePath(path))
    , m_ifMissing(ifMissing)
    , m_durability(durability)
{
}

StoreDatabase::~StoreDatabase() = default;

bool StoreDatabase::open()
{
    const auto file = fileAt(m_path);
    if (m_database && file == m_file)
        return true;
    if (m_database && file)
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
        throw StoreFailure(StoreError::Kind::CannotOpen,
                           historyAt(m_path) + " was replaced while it was in use, and \"" +
                               logOf(path) +
                               "\" still holds records of the former file; close all programs "
                               "that use it and put the former file back, or move the log away.");
}

/// The changes in it would undo those of the file, or damage it.
void StoreDatabase::checkLogBase()
{
    if (!m_logBase->isOfThisFile())
        throw StoreFailure(StoreError::Kind::CannotOpen,
                           historyAt(m_path) + " was put in the place of another one, and \"" +
                               logOf(resolvedPath(m_path)) +
                               "\" holds changes of the former file; both were left as they are, "
                               "move the log away to use the history as it is, or put the former "
                               "file back.");
}

void StoreDatabase::connect()
{
    try {
        // A store stays on one thread, so SQLite need not lock around every value.
        m_database = std::make_unique<SQLite::Database>(
            resolvedPath(m_path), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX,
            m_durability == Durability::Disk ? recorderLockTimeoutMilliseconds
                                             : lockTimeoutSeconds * 1000);
        // Nothing is written for a file that turns out to be no store of ours.
        setCheckpointOnClose(false);
        m_logBase = std::make_unique<LogBase>(*m_database, resolvedPath(m_path));
        checkLogBase();
        upgradeSchema(m_path, *m_database, storeSchema());
        setCheckpointOnClose(true);
        // Refused while another process is just making the same store; until the
        // next program opens it, the store then works without a log.
        m_database->tryExec("PRAGMA journal_mode = WAL");
        m_database->exec(m_durability == Durability::Disk ? "PRAGMA synchronous = FULL"
                                                          : "PRAGMA synchronous = NORMAL");
        m_table = std::make_unique<ConnectionTable>(*m_database);
        m_openConnections = std::make_unique<OpenConnectionTable>(*m_database);
        m_seenLinks = std::make_unique<SeenLinkTable>(*m_database);
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

void StoreDatabase::close()
{
    m_table.reset();
    m_openConnections.reset();
    m_seenLinks.reset();
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
    if (m_database && reason.error().kind == StoreError::Kind::Damaged)
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

} // namespace refhost
