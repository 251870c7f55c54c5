// SPDX-License-Identifier: MIT
#pragma once

namespace connrecord
{

/// Does what the command line asks for and returns the program's exit code.
int runCommandLine(int argc, char **argv);

} // namespace connrecord
