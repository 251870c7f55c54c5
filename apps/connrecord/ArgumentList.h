// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace connrecord
{

/// The arguments of the program as `parser` takes them, from the last one to the
/// first. An option and its value are two of them, also where the user has joined
/// them: the parser takes "--name=" with nothing behind it for an option whose
/// value follows.
std::vector<std::string> argumentsFor(const CLI::App &parser, int argc, char **argv);

} // namespace connrecord
