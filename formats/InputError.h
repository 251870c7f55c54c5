// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace formats
{

/// Why an input file cannot be used: one sentence for people.
class InputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace formats
