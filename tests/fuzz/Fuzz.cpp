// SPDX-License-Identifier: MIT
#include "Fuzz.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace fuzz
{

void require(bool isTrue, const char *what)
{
    if (isTrue)
        return;
    const char start[] = "Not so: ";
    const bool isWritten = write(STDERR_FILENO, start, sizeof start - 1) > 0 &&
                           write(STDERR_FILENO, what, std::strlen(what)) > 0 &&
                           write(STDERR_FILENO, "\n", 1) > 0;
    static_cast<void>(isWritten);
    std::abort();
}

void silenceLibraries()
{
    // Only the stream: the descriptor is where the sanitizers write.
    if (std::FILE *nowhere = std::fopen("/dev/null", "w"))
        stderr = nowhere;
}

} // namespace fuzz
