// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <QCoreApplication>

#include <cstdlib>

namespace
{

/// Without this variable, the C library looks at the system's zone file anew for
/// each time that it converts, which makes up most of a long import.
void nameTheSystemZone()
{
    const bool replacesOthers = false;
    setenv("TZ", ":/etc/localtime", replacesOthers);
}

} // namespace

int main(int argc, char **argv)
{
    nameTheSystemZone();
    const QCoreApplication application(argc, argv);
    return refhost::runCommandLine(argc, argv);
}
