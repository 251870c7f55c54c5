// SPDX-License-Identifier: MIT
#pragma once

#include "Campaign.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// A disk whose power can be cut. Of what was written, and of which files were made and
/// deleted, since the last sync, anything may then be there, or not, or half of it. Knows
/// the files by what their file layer tells of each change before it makes it.
class PowerDisk
{
public:
    explicit PowerDisk(std::uint64_t seed)
        : m_random(seed)
    {
    }

    /// The power fails in the midst of that change or sync from now on, counted from 1.
    void cutAt(int step) { m_stepsLeft = step; }
    bool isOff() const { return m_isOff; }
    /// The disk tells that it has synced, but has not.
    void ignoreSyncs() { m_ignoresSyncs = true; }

    /// A file is used from now on; `isThere` says whether it exists.
    void open(const std::string &path, bool isThere);
    // Each is false if the power is off before its end.
    bool create(const std::string &path);
    bool write(const std::string &path, const void *bytes, int size, std::int64_t offset);
    bool truncate(const std::string &path, std::int64_t size);
    bool sync(const std::string &path);
    bool remove(const std::string &path);
    bool syncFolder();

    /// Switches the power on, once all files are closed: they are what the cut has left.
    void restart();

private:
    struct Change {
        bool isTruncation;
        std::int64_t offset; ///< or the new size
        std::string bytes;
    };
    struct File {
        std::string synced;
        std::vector<Change> changes; ///< since
    };
    /// What a name has stood for since the folder was synced; null if for nothing.
    struct Name {
        std::vector<std::shared_ptr<File>> files;
        int lastChange = 0;
    };

    bool step();
    Name &changed(const std::string &path);
    std::string whatIsLeft(const File &file, int percentKept);
    void writePart(std::string &contents, const Change &change);

    campaign::Random m_random;
    std::map<std::string, Name> m_names;
    int m_changes = 0;
    int m_stepsLeft = 0; ///< 0 if no cut is to come
    bool m_isOff = false;
    bool m_ignoresSyncs = false;
};
