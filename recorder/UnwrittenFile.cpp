// SPDX-License-Identifier: MIT
#include "UnwrittenFile.h"

#include "LockFile.h"
#include "history/FilesBesideStore.h"

#include <QFile>
#include <QSaveFile>
#include <QUuid>

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <utility>

namespace recorder
{

namespace
{

/// Longer than any that a recorder writes.
constexpr qint64 maximumSize = qint64{64} * 1024 * 1024;

std::string newIdentifier()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
}

/// Links are not followed.
std::optional<struct stat> statusOfPath(const QString &path)
{
    return statusAt(QFile::encodeName(path).toStdString());
}

bool standsAt(const QString &path)
{
    return statusOfPath(path).has_value();
}

Problem unreadable(const QString &path, Problem::Obstacle obstacle, const QString &reason = {})
{
    Problem problem;
    problem.kind = Problem::Kind::UnwrittenUnreadable;
    problem.path = path;
    problem.obstacle = obstacle;
    problem.reason = reason;
    return problem;
}

/// A file of one's own, without waiting for the other end of a pipe; what keeps from
/// reading it if it is none.
std::optional<Problem> openToRead(const QString &path, QFile &file)
{
    const auto status = statusOfPath(path);
    if (!status || !S_ISREG(status->st_mode))
        return unreadable(path, Problem::Obstacle::NotAFile);
    const int descriptor = open(QFile::encodeName(path).constData(),
                                O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return unreadable(path, Problem::Obstacle::None,
                          QString::fromLocal8Bit(std::strerror(errno)));
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return unreadable(path, Problem::Obstacle::None, file.errorString());
    return std::nullopt;
}

} // namespace

UnwrittenFile::UnwrittenFile(const QString &storePath)
    : m_places{{{storePath + QLatin1String(history::unwrittenSuffix)},
                {storePath + QLatin1String(history::secondUnwrittenSuffix)}}}
{
}

UnwrittenFile::Contents UnwrittenFile::read()
{
    Contents contents;
    for (Place &place : m_places) {
        if (!standsAt(place.path))
            continue;
        const Reading reading = readFrom(place.path);
        const auto *const connections = std::get_if<std::vector<Unwritten>>(&reading);
        place.isOurs = connections != nullptr;
        if (connections)
            std::copy(connections->begin(), connections->end(),
                      std::back_inserter(contents.connections));
        else
            contents.refusals.push_back(std::get<Problem>(reading));
    }
    return contents;
}

UnwrittenFile::Reading UnwrittenFile::readFrom(const QString &path)
{
    QFile file;
    if (const auto obstacle = openToRead(path, file))
        return *obstacle;
    auto connections = unwrittenIn(file.read(maximumSize));
    if (!connections)
        return unreadable(path, Problem::Obstacle::Damaged);
    return std::move(*connections);
}

std::optional<Problem> UnwrittenFile::write(std::vector<Unwritten> connections)
{
    const auto place = std::find_if(m_places.begin(), m_places.end(), isFree);
    if (place == m_places.end())
        return noPlace();
    if (auto error = writeTo(place->path, std::move(connections)))
        return error;
    place->isOurs = true;
    for (auto other = std::next(place); other != m_places.end(); ++other)
        removeFrom(*other);
    return std::nullopt;
}

std::optional<Problem> UnwrittenFile::writeTo(const QString &path,
                                              std::vector<Unwritten> connections)
{
    const std::string run = newIdentifier();
    for (Unwritten &each : connections) {
        if (each.origin.empty()) {
            each.run = run;
            each.origin = newIdentifier();
        }
    }
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                           file.write(textOf(connections)) >= 0 && file.commit();
    if (isWritten)
        return std::nullopt;
    Problem problem;
    problem.kind = Problem::Kind::UnwrittenUnwritable;
    problem.path = path;
    problem.reason = file.errorString();
    return problem;
}

bool UnwrittenFile::remove()
{
    bool areGone = true;
    for (Place &place : m_places)
        areGone &= removeFrom(place);
    return areGone;
}

bool UnwrittenFile::isFree(const Place &place)
{
    return place.isOurs || !standsAt(place.path);
}

bool UnwrittenFile::removeFrom(Place &place)
{
    if (place.isOurs)
        place.isOurs = !QFile::remove(place.path) && standsAt(place.path);
    return !place.isOurs;
}

Problem UnwrittenFile::noPlace() const
{
    Problem problem;
    problem.kind = Problem::Kind::UnwrittenObstructed;
    problem.path = m_places.front().path;
    problem.otherPath = m_places.back().path;
    return problem;
}

} // namespace recorder
