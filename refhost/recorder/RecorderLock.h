// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <optional>

namespace refhost
{

/// Lets one recorder at a time have a store, within a process too. The lock is the
/// kernel's, on a file that only tells others whose it is: it ends with its process,
/// whatever is left in the file.
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

    enum class Outcome { Taken, HeldByAnother, Failed };
    /// Does not wait. Failed: errorString() says why.
    Outcome take();
    void free();

    struct Holder {
        QString program;
        qint64 process = 0;
    };
    /// Who holds it, after HeldByAnother; nothing if that one has not said so yet.
    std::optional<Holder> holder() const { return m_holder; }
    QString path() const { return m_path; }
    QString errorString() const { return m_error; }

private:
    Outcome takeFile();
    bool open();
    int openDescriptor() const;
    bool isInPlace() const;
    void introduceHolder();
    std::optional<Holder> readHolder();
    Outcome fail();

    const QString m_path;
    QFile m_file;
    std::optional<Holder> m_holder;
    QString m_error;
};

} // namespace refhost
