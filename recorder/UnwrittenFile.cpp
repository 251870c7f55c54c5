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

using history::StoreError;

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

/// A file of one's own, without waiting for the other end of a pipe; the reason if it is
/// none.
std::optional<QString> openToRead(const QString &path, QFile &file)
{
    const auto status = statusOfPath(path);
    if (!status || !S_ISREG(status->st_mode))
        return UnwrittenFile::tr("it is not a file");
    const int descriptor = open(QFile::encodeName(path).constData(),
                                O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return QString::fromLocal8Bit(std::strerror(errno));
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return file.errorString();
    return std::nullopt;
}

StoreError damaged(const QString &path, const QString &reason)
{
    return {StoreError::Kind::Damaged,
            UnwrittenFile::tr("\"%1\" may keep connections that are not in the history, but cannot "
                              "be read (%2); it was left as it is, move it away.")
                .arg(path, reason)
                .toStdString()};
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
        const auto connections = readFrom(place.path);
        place.isOurs = bool(connections);
        if (!connections)
            contents.refusals.push_back(connections.error());
        else
            std::copy(connections.value().begin(), connections.value().end(),
                      std::back_inserter(contents.connections));
    }
    return contents;
}

history::Result<std::vector<Unwritten>> UnwrittenFile::readFrom(const QString &path)
{
    QFile file;
    if (const auto obstacle = openToRead(path, file))
        return damaged(path, *obstacle);
    const auto connections = unwrittenIn(file.read(maximumSize));
    if (!connections)
        return damaged(path, tr("it is damaged or of another program"));
    return *connections;
}

std::optional<history::StoreError> UnwrittenFile::write(std::vector<Unwritten> connections)
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

std::optional<history::StoreError> UnwrittenFile::writeTo(const QString &path,
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
    return history::StoreError{
        history::StoreError::Kind::WriteFailed,
        tr("\"%1\" cannot be written (%2), so connections that the history could "
           "not take are lost; allow yourself to write there.")
            .arg(path, file.errorString())
            .toStdString()};
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

history::StoreError UnwrittenFile::noPlace() const
{
    return {history::StoreError::Kind::WriteFailed,
            tr("\"%1\" and \"%2\" are in the way, so connections that the history could not take "
               "are lost; move them away.")
                .arg(m_places.front().path, m_places.back().path)
                .toStdString()};
}

} // namespace recorder
