// SPDX-License-Identifier: MIT
#pragma once

#include "LiveConnection.h"
#include "Result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace refhost
{

/// A connection of which the store lacks something.
struct Unwritten {
    LiveConnection connection; ///< if it has not ended, it lasts
    bool hasFinalCounters = false;
    std::string run = {};    ///< of the recorder that left it, once it is in a file
    std::string origin = {}; ///< what tells it from all others, then
};

/// The file beside a store, "-unwritten" after its name, that keeps at the end of a
/// recorder what the store could not take. Whoever holds the recorder's lock may use it.
class UnwrittenFile
{
    Q_DECLARE_TR_FUNCTIONS(refhost::UnwrittenFile)

public:
    /// Of this store, whose path has to be the one that all recorders know it by.
    explicit UnwrittenFile(const QString &storePath);

    /// What it keeps, in the order in which it was written; nothing if there is no file.
    /// A file that is something else, damaged or of a newer version is an error.
    Result<std::vector<Unwritten>> read() const;
    /// Puts these into the file, mode 0600, in the place of what it kept; those without
    /// an origin get one, and this recorder's run. The reason if that is not possible: then the
    /// file is as it was.
    std::optional<StoreError> write(std::vector<Unwritten> connections) const;
    /// Whether there is no file any more.
    bool remove() const;

private:
    StoreError damaged(const QString &reason) const;
    static std::optional<std::vector<Unwritten>> parse(const QByteArray &text);

    QString m_path;
};

} // namespace refhost
