// SPDX-License-Identifier: MIT
#include "RecorderLock.h"

#include "LockFile.h"
#include "history/FilesBesideStore.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <system_error>

namespace recorder
{

namespace
{

QString lockFileOf(const QString &knownPath)
{
    return knownPath + QLatin1String(history::recorderLockSuffix);
}

} // namespace

QString knownPath(const QString &path)
{
    const QFileInfo store(path);
    return store.exists() ? store.canonicalFilePath() : store.absoluteFilePath();
}

bool isRecordedInto(const QString &path)
{
    const auto lock = statusAt(QFile::encodeName(lockFileOf(knownPath(path))).toStdString());
    return lock && isLockedBySomebody(*lock);
}

RecorderLock::RecorderLock(const QString &storePath)
    : m_path(lockFileOf(storePath))
{
}

RecorderLock::~RecorderLock()
{
    free();
}

RecorderLock::Outcome RecorderLock::take()
{
    std::optional<Outcome> outcome;
    while (!outcome)
        outcome = tryFile();
    if (outcome == Outcome::Taken)
        introduceHolder();
    return *outcome;
}

void RecorderLock::free()
{
    if (!m_file.isOpen())
        return;
    // While the lock still holds, so that nobody else has it meanwhile.
    if (isInPlace())
        QFile::remove(m_path);
    m_file.close();
}

std::optional<RecorderLock::Outcome> RecorderLock::tryFile()
{
    m_file.close();
    const bool isOpen = open();
    const int reason = errno;
    const auto status = isOpen ? statusOf(m_file.handle()) : statusAt(fileName());
    if (!status)
        return fail(reason);
    if (!S_ISREG(status->st_mode))
        return refuse(Problem::Obstacle::NotAFile);
    if (status->st_nlink > 1)
        return refuse(Problem::Obstacle::HardLink);
    if (isOpen && isOwn(*status))
        return lock();
    return isOpen || reason == EACCES ? replace(*status) : fail(reason);
}

bool RecorderLock::open()
{
    const int descriptor = openLockFile(fileName());
    return descriptor >= 0 && m_file.open(descriptor, QIODevice::ReadWrite | QIODevice::Unbuffered,
                                          QFileDevice::AutoCloseHandle);
}

/// Nothing if its former holder has removed the file between opening and locking it.
std::optional<RecorderLock::Outcome> RecorderLock::lock()
{
    // A umask can keep even the owner out of a new file.
    if (fchmod(m_file.handle(), S_IRUSR | S_IWUSR) != 0)
        return fail(errno);
    if (flock(m_file.handle(), LOCK_EX | LOCK_NB) == 0)
        return isInPlace() ? std::make_optional(Outcome::Taken) : std::nullopt;
    if (errno != EWOULDBLOCK)
        return fail(errno);
    return leaveToHolder();
}

/// What cannot be locked safely, another user's file or one that its owner may not
/// open, would keep everybody from recording for ever. Nothing if it is gone.
std::optional<RecorderLock::Outcome> RecorderLock::replace(const struct stat &status)
{
    switch (removeUnlocked(fileName(), status)) {
    case Removal::Done:
        return std::nullopt;
    case Removal::Busy:
        return leaveToHolder();
    case Removal::NotOwnFolder:
        break;
    }
    return isOwn(status) ? fail(EACCES) : refuse(Problem::Obstacle::OfAnotherUser);
}

RecorderLock::Outcome RecorderLock::leaveToHolder()
{
    setProblem(Problem::Kind::RecordedByAnother);
    if (m_file.isOpen())
        readHolder();
    m_file.close();
    return Outcome::HeldByAnother;
}

bool RecorderLock::isInPlace() const
{
    const auto locked = statusOf(m_file.handle());
    const auto inPlace = statusAt(fileName());
    return locked && inPlace && isSameFile(*locked, *inPlace);
}

std::string RecorderLock::fileName() const
{
    return QFile::encodeName(m_path).toStdString();
}

/// For the others' messages only: a full disk does not keep anybody from recording.
void RecorderLock::introduceHolder()
{
    m_file.resize(0);
    m_file.write(QByteArray::number(QCoreApplication::applicationPid()) + '\n' +
                 QCoreApplication::applicationName().toUtf8() + '\n');
}

void RecorderLock::readHolder()
{
    const qint64 process = m_file.readLine(32).trimmed().toLongLong();
    const QString program = QString::fromUtf8(m_file.readLine(256).trimmed());
    if (process <= 0 || program.isEmpty())
        return;
    m_problem.process = process;
    m_problem.program = program;
}

RecorderLock::Outcome RecorderLock::fail(int systemError)
{
    setProblem(Problem::Kind::LockUnwritable);
    m_problem.reason = QString::fromStdString(std::generic_category().message(systemError));
    m_file.close();
    return Outcome::Failed;
}

RecorderLock::Outcome RecorderLock::refuse(Problem::Obstacle obstacle)
{
    setProblem(Problem::Kind::LockObstructed);
    m_problem.obstacle = obstacle;
    m_file.close();
    return Outcome::Refused;
}

void RecorderLock::setProblem(Problem::Kind kind)
{
    m_problem = Problem();
    m_problem.kind = kind;
    m_problem.path = m_path;
}

} // namespace recorder
