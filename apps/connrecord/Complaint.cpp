// SPDX-License-Identifier: MIT
#include "Complaint.h"

#include "formats/Utf8Text.h"

#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

namespace connrecord
{

void warn(const std::string &sentence)
{
    std::cerr << "connrecord: " << formats::printable(sentence, formats::unlimited) << '\n';
}

int complain(ExitCode code, const std::string &sentence)
{
    warn(sentence);
    return static_cast<int>(code);
}

int complainOfMemory()
{
    std::cerr << "connrecord: There is not enough memory for this; the history is as it was. "
                 "Close other programs, or ask for less at once.\n";
    return static_cast<int>(ExitCode::Store);
}

void endWithSentence()
{
    try {
        if (const std::exception_ptr exception = std::current_exception())
            std::rethrow_exception(exception);
    } catch (const std::bad_alloc &) {
        _exit(complainOfMemory());
    } catch (...) {
        // A bug, which is to be seen as such.
    }
    std::abort();
}

} // namespace connrecord
