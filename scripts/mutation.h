// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

/// What sources changed by mutate.py ask: which of their changes is the one to take.
namespace mutation
{

constexpr int mostChanges = 20000;

/// The number of the change, from the environment; 0 for none.
inline int chosen()
{
    static const int number = [] {
        const char *const text = std::getenv("MUTATION");
        return text ? std::atoi(text) : 0;
    }();
    return number;
}

/// Writes once in each process that this place was reached, if the environment names a file.
/// At once, since a test may kill the process.
inline void note(int number)
{
    static const char *const file = std::getenv("MUTATION_TRACE");
    static bool isNoted[mostChanges] = {};
    if (!file || isNoted[number])
        return;
    isNoted[number] = true;
    const int descriptor = ::open(file, O_WRONLY | O_APPEND | O_CLOEXEC);
    if (descriptor < 0)
        return;
    char line[16];
    const int length = std::snprintf(line, sizeof line, "%d\n", number);
    if (::write(descriptor, line, static_cast<std::size_t>(length)) != length)
        std::abort();
    ::close(descriptor);
}

inline bool on(int number)
{
    note(number);
    return number == chosen();
}

} // namespace mutation
