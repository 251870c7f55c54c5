// SPDX-License-Identifier: MIT
#include "PowerDisk.h"

#include <sys/stat.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

constexpr std::int64_t sectorSize = 512;

std::string contentsOf(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::int64_t coarseTime()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return now.tv_sec * 1000000000 + now.tv_nsec;
}

/// Until files get another time than those that were written last, as on a disk that
/// takes longer than memory.
void awaitAnotherTime()
{
    const std::int64_t before = coarseTime();
    while (coarseTime() == before) {
    }
}

/// In its place, so that it stays the same file if it is there.
void setContents(const std::string &path, const std::string &contents)
{
    if (std::filesystem::exists(path) && contentsOf(path) == contents)
        return;
    awaitAnotherTime();
    std::ofstream(path, std::ios::binary) << contents;
}

/// The bytes from `offset`, with zeros up to there if there is less.
void put(std::string &contents, std::int64_t offset, const char *bytes, std::int64_t size)
{
    contents.resize(std::max<std::size_t>(contents.size(), offset + size));
    std::copy(bytes, bytes + size, contents.begin() + offset);
}

} // namespace

void PowerDisk::open(const std::string &path, bool isThere)
{
    const auto [name, isNew] = m_names.try_emplace(path);
    if (!isNew)
        return;
    auto file = isThere ? std::make_shared<File>() : nullptr;
    if (file)
        file->synced = contentsOf(path);
    name->second.files.push_back(std::move(file));
}

bool PowerDisk::create(const std::string &path)
{
    if (m_isOff)
        return false;
    changed(path).files.push_back(std::make_shared<File>());
    return step();
}

bool PowerDisk::write(const std::string &path, const void *bytes, int size, std::int64_t offset)
{
    if (m_isOff)
        return false;
    const auto *const begin = static_cast<const char *>(bytes);
    changed(path).files.back()->changes.push_back(
        {false, offset, std::string(begin, begin + size)});
    return step();
}

bool PowerDisk::truncate(const std::string &path, std::int64_t size)
{
    if (m_isOff)
        return false;
    changed(path).files.back()->changes.push_back({true, size, {}});
    return step();
}

bool PowerDisk::sync(const std::string &path)
{
    if (m_isOff || !step())
        return false;
    if (m_ignoresSyncs)
        return true;
    File &file = *m_names.at(path).files.back();
    for (const Change &change : file.changes) {
        if (change.isTruncation)
            file.synced.resize(change.offset);
        else
            put(file.synced, change.offset, change.bytes.data(),
                static_cast<std::int64_t>(change.bytes.size()));
    }
    file.changes.clear();
    return true;
}

bool PowerDisk::remove(const std::string &path)
{
    if (m_isOff)
        return false;
    if (m_names.count(path) != 0)
        changed(path).files.push_back(nullptr);
    return step();
}

bool PowerDisk::syncFolder()
{
    if (m_isOff || !step())
        return false;
    for (auto &[path, name] : m_names) {
        if (!m_ignoresSyncs)
            name.files.erase(name.files.begin(), std::prev(name.files.end()));
    }
    return true;
}

void PowerDisk::restart()
{
    std::vector<std::pair<std::string, Name>> names(m_names.begin(), m_names.end());
    std::sort(names.begin(), names.end(), [](const auto &left, const auto &right) {
        return left.second.lastChange < right.second.lastChange;
    });
    // A cut at once, one after a while, and all between them.
    const int percentKept = 25 * m_random.below(5);
    for (const auto &[path, name] : names) {
        const auto file = m_random.oneOf(name.files);
        if (file)
            setContents(path, whatIsLeft(*file, percentKept));
        else
            std::filesystem::remove(path);
        // Shared memory is no file of a disk: anything may be in it, or nothing.
        if (m_random.once(2) && std::filesystem::exists(path + "-shm"))
            std::ofstream(path + "-shm", std::ios::binary) << std::string(32768, '\x2a');
        else
            std::filesystem::remove(path + "-shm");
    }
    m_names.clear();
    m_stepsLeft = 0;
    m_isOff = false;
}

bool PowerDisk::step()
{
    m_isOff = m_stepsLeft > 0 && --m_stepsLeft == 0;
    return !m_isOff;
}

PowerDisk::Name &PowerDisk::changed(const std::string &path)
{
    Name &name = m_names.at(path);
    name.lastChange = ++m_changes;
    return name;
}

std::string PowerDisk::whatIsLeft(const File &file, int percentKept)
{
    std::string contents = file.synced;
    for (const Change &change : file.changes) {
        const bool isKept = m_random.below(100) < percentKept;
        if (isKept && change.isTruncation)
            contents.resize(change.offset);
        else if (isKept)
            put(contents, change.offset, change.bytes.data(),
                static_cast<std::int64_t>(change.bytes.size()));
        else if (!change.isTruncation && m_random.once(3))
            writePart(contents, change);
    }
    return contents;
}

/// A disk writes whole sectors, in any order.
void PowerDisk::writePart(std::string &contents, const Change &change)
{
    const std::int64_t end = change.offset + static_cast<std::int64_t>(change.bytes.size());
    for (std::int64_t at = change.offset; at < end;) {
        const std::int64_t next = std::min(end, (at / sectorSize + 1) * sectorSize);
        if (m_random.once(2))
            put(contents, at, change.bytes.data() + (at - change.offset), next - at);
        at = next;
    }
}
