// SPDX-License-Identifier: MIT
#pragma once

#include "Problem.h"
#include "Unwritten.h"

#include <QString>

#include <array>
#include <optional>
#include <variant>
#include <vector>

namespace recorder
{

/// The file beside a store, "-unwritten" after its name, that keeps at the end of a
/// recorder what the store could not take; where something else stands in its place, that
/// is left alone and another file ("-unwritten-2") is used. Whoever holds the recorder's
/// lock may use them.
class UnwrittenFile
{
public:
    /// Of this store, whose path has to be the one that all recorders know it by.
    explicit UnwrittenFile(const QString &storePath);

    struct Contents {
        std::vector<Unwritten> connections; ///< in the order in which they were written
        /// Of what stands there and is something else, damaged or of a newer version.
        std::vector<Problem> refusals;
    };
    /// What is kept; nothing if there is no file.
    Contents read();
    /// Puts these into the file, mode 0600, in the place of what was read; those without
    /// an origin get one, and this recorder's run. The reason if that is not possible:
    /// then what was kept still is.
    std::optional<Problem> write(std::vector<Unwritten> connections);
    /// Removes what was read and written; whether none of it is there any more.
    bool remove();

private:
    struct Place {
        QString path;
        bool isOurs = false; ///< what is there was read or written by this process
    };

    using Reading = std::variant<std::vector<Unwritten>, Problem>;

    static Reading readFrom(const QString &path);
    static std::optional<Problem> writeTo(const QString &path, std::vector<Unwritten> connections);
    static bool isFree(const Place &place);
    static bool removeFrom(Place &place);
    Problem noPlace() const;

    std::array<Place, 2> m_places;
};

} // namespace recorder
