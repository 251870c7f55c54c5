// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return refhost::runCommandLine(argc, argv);
}
