// SPDX-License-Identifier: MIT
#pragma once

#include "Audience.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace common
{

/// The future contents of a file, beside it until they are whole. A new file is
/// its audience's; one that was there keeps its permissions. All of it throws
/// std::system_error.
class ReplacementFile
{
public:
    /// For the file at `place`, which need not exist and is no link.
    explicit ReplacementFile(const std::filesystem::path &place,
                             Audience audience = Audience::Owner);
    /// Removes what has not been put in place.
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile &) = delete;
    ReplacementFile &operator=(const ReplacementFile &) = delete;

    void write(std::string_view bytes);
    /// Where the contents are until they are in place.
    const std::string &temporaryPath() const { return m_temporaryPath; }
    /// To be called when everything is written: what was there before is replaced
    /// at once, and what replaces it is on the disk.
    void putInPlace();
    /// The same for a place that has to be free.
    void putInFreePlace();

private:
    void setPermissions() const;

    const std::filesystem::path m_place;
    const Audience m_audience;
    std::string m_temporaryPath; ///< empty once it is in place
    int m_descriptor;
};

} // namespace common
