// SPDX-License-Identifier: MIT
#pragma once

#include "Unwritten.h"
#include "history/Result.h"

#include <QCoreApplication>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace recorder
{

/// The file beside a store, "-unwritten" after its name, that keeps at the end of a
/// recorder what the store could not take; where something else stands in its place, that
/// is left alone and another file ("-unwritten-2") is used. Whoever holds the recorder's
/// lock may use them.
class UnwrittenFile
{
    Q_DECLARE_TR_FUNCTIONS(recorder::UnwrittenFile)

public:
    /// Of this store, whose path has to be the one that all recorders know it by.
    explicit UnwrittenFile(const QString &storePath);

    struct Contents {
        std::vector<Unwritten> connections; ///< in the order in which they were written
        /// Of what stands there and is something else, damaged or of a newer version.
        std::vector<history::StoreError> refusals;
    };
    /// What is kept; nothing if there is no file.
    Contents read();
    /// Puts these into the file, mode 0600, in the place of what was read; those without
    /// an origin get one, and this recorder's run. The reason if that is not possible:
    /// then what was kept still is.
    std::optional<history::StoreError> write(std::vector<Unwritten> connections);
    /// Removes what was read and written; whether none of it is there any more.
    bool remove();

private:
    struct Place {
        QString path;
        bool isOurs = false; ///< what is there was read or written by this process
    };

    static history::Result<std::vector<Unwritten>> readFrom(const QString &path);
    static std::optional<history::StoreError> writeTo(const QString &path,
                                                      std::vector<Unwritten> connections);
    static bool isFree(const Place &place);
    static bool removeFrom(Place &place);
    history::StoreError noPlace() const;

    std::array<Place, 2> m_places;
};

} // namespace recorder
