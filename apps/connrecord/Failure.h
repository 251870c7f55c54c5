// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace connrecord
{

/// What the program ends with; scripts rely on the numbers. The last two are no failures.
enum class ExitCode {
    Success = 0,
    Refused = 1, ///< the request cannot be met: unknown key, refused value
    Usage = 2,   ///< the command line is wrong
    Store = 3,   ///< the store cannot be used
    Input = 4,   ///< the input file is wrong or cannot be read
    Output = 5,  ///< the output cannot be written
    Warned = 10, ///< a percentage to warn at of a plan is reached
    Spent = 11,  ///< nothing is left of a plan
};

/// Why a command stops: one sentence for people, one code for programs.
class Failure : public std::runtime_error
{
public:
    Failure(ExitCode exitCode, const std::string &sentence)
        : std::runtime_error(sentence)
        , m_exitCode(exitCode)
    {
    }

    ExitCode exitCode() const { return m_exitCode; }

private:
    ExitCode m_exitCode;
};

} // namespace connrecord
