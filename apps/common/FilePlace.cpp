// SPDX-License-Identifier: MIT
#include "FilePlace.h"

#include "usage/TextScanner.h"

#include <limits>
#include <system_error>

namespace common
{

namespace
{

namespace fs = std::filesystem;

/// As many as the kernel follows.
constexpr int mostLinks = 40;

fs::path ownDescriptors()
{
    std::error_code none;
    return fs::canonical("/proc/self/fd", none);
}

/// The folder of the path without links, as far as it exists.
fs::path inResolvedFolder(const fs::path &path)
{
    std::error_code error;
    const fs::path folder = fs::weakly_canonical(path.parent_path(), error);
    return error ? path : folder / path.filename();
}

} // namespace

std::filesystem::path placeOf(const std::filesystem::path &path)
{
    std::error_code error;
    fs::path place = fs::absolute(path, error);
    for (int links = 0; links < mostLinks; ++links) {
        place = inResolvedFolder(place);
        if (place.parent_path() == ownDescriptors())
            return place;
        const fs::path target = fs::read_symlink(place, error);
        if (error)
            return place;
        place = place.parent_path() / target;
    }
    return place;
}

bool leadToSameFile(const std::filesystem::path &path, const std::filesystem::path &other)
{
    std::error_code error;
    return fs::equivalent(path, other, error) || placeOf(path) == placeOf(other);
}

std::optional<int> descriptorAt(const std::filesystem::path &path)
{
    const fs::path place = placeOf(path);
    if (place.parent_path() != ownDescriptors())
        return std::nullopt;
    const auto number = usage::wholeNumber(place.filename().string());
    if (!number || number->value > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(number->value);
}

} // namespace common
