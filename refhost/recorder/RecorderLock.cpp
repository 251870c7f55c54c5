// SPDX-License-Identifier: MIT
#include "RecorderLock.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <system_error>

namespace refhost
{

RecorderLock::RecorderLock(const QString &storePath)
    : m_path(storePath + QStringLiteral(".recorder"))
{
}

RecorderLock::~RecorderLock()
{
    free();
}

RecorderLock::Outcome RecorderLock::take()
{
    Outcome outcome = takeFile();
    // Its former holder has removed the file between opening and locking it.
    while (outcome == Outcome::Taken && !isInPlace())
        outcome = takeFile();
    if (outcome == Outcome::Taken)
        introduceHolder();
    return outcome;
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

RecorderLock::Outcome RecorderLock::takeFile()
{
    m_file.close();
    if (!open())
        return fail();
    if (flock(m_file.handle(), LOCK_EX | LOCK_NB) == 0)
        return Outcome::Taken;
    if (errno != EWOULDBLOCK)
        return fail();
    m_holder = readHolder();
    m_file.close();
    return Outcome::HeldByAnother;
}

bool RecorderLock::open()
{
    const int descriptor = openDescriptor();
    return descriptor >= 0 && m_file.open(descriptor, QIODevice::ReadWrite | QIODevice::Unbuffered,
                                          QFileDevice::AutoCloseHandle);
}

int RecorderLock::openDescriptor() const
{
    const QByteArray path = QFile::encodeName(m_path);
    // A link could lead the superuser to any file.
    const auto attempt = [&path] {
        return ::open(path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC,
                      S_IRUSR | S_IWUSR);
    };
    int descriptor = attempt();
    const int reason = errno;
    // A umask can keep even the owner out of what a killed recorder left.
    if (descriptor < 0 && reason == EACCES && chmod(path.constData(), S_IRUSR | S_IWUSR) == 0)
        descriptor = attempt();
    else
        errno = reason;
    return descriptor;
}

bool RecorderLock::isInPlace() const
{
    struct stat locked = {};
    struct stat inPlace = {};
    return fstat(m_file.handle(), &locked) == 0 &&
           lstat(QFile::encodeName(m_path).constData(), &inPlace) == 0 &&
           locked.st_dev == inPlace.st_dev && locked.st_ino == inPlace.st_ino;
}

/// For the others' messages only: a full disk does not keep anybody from recording.
void RecorderLock::introduceHolder()
{
    m_file.resize(0);
    m_file.write(QByteArray::number(QCoreApplication::applicationPid()) + '\n' +
                 QCoreApplication::applicationName().toUtf8() + '\n');
}

std::optional<RecorderLock::Holder> RecorderLock::readHolder()
{
    const qint64 process = m_file.readLine(32).trimmed().toLongLong();
    const QString program = QString::fromUtf8(m_file.readLine(256).trimmed());
    if (process <= 0 || program.isEmpty())
        return std::nullopt;
    return Holder{program, process};
}

RecorderLock::Outcome RecorderLock::fail()
{
    m_error = QString::fromStdString(std::generic_category().message(errno));
    m_file.close();
    return Outcome::Failed;
}

} // namespace refhost
