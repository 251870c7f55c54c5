// SPDX-License-Identifier: MIT
#pragma once

#include "Problem.h"

#include <QFile>
#include <QString>

#include <optional>
#include <string>

struct stat;

namespace recorder
{

/// The path by which all recorders know the store in `path`.
QString knownPath(const QString &path);

/// Whether any process records into the store in `path`; nothing is taken to find out.
bool isRecordedInto(const QString &path);

/// Lets one recorder at a time have a store, within a process too. The lock is the
/// kernel's, on a file that only tells others whose it is: it ends with its process,
/// whatever is left in the file. Only a regular file of one's own is written to; where
/// another user's stands in a folder of one's own and nobody holds it, it is replaced.
class RecorderLock
{
public:
    /// Of this store, whose path has to be the one that all recorders know it by;
    /// nothing is taken yet.
    explicit RecorderLock(const QString &storePath);
    /// Frees the lock.
    ~RecorderLock();
    RecorderLock(const RecorderLock &) = delete;
    RecorderLock &operator=(const RecorderLock &) = delete;

    /// Failed: the file cannot be made or opened. Refused: what stands there is no
    /// lock file of one's own, and was left as it is.
    enum class Outcome { Taken, HeldByAnother, Failed, Refused };
    /// Does not wait.
    Outcome take();
    void free();

    /// Why it was not taken. Who holds it is not known if that one has not said so yet,
    /// or may not be asked.
    Problem problem() const { return m_problem; }

private:
    /// One attempt; nothing if another one is due, for the file has changed.
    std::optional<Outcome> tryFile();
    bool open();
    std::optional<Outcome> lock();
    std::optional<Outcome> replace(const struct stat &status);
    bool isInPlace() const;
    std::string fileName() const;
    void introduceHolder();
    void readHolder();
    Outcome leaveToHolder();
    Outcome fail(int systemError);
    Outcome refuse(Problem::Obstacle obstacle);
    void setProblem(Problem::Kind kind);

    const QString m_path;
    QFile m_file;
    Problem m_problem;
};

} // namespace recorder
