// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <unistd.h>

#include <array>

namespace
{

/// What the program opens itself never becomes one of the three standard streams: a
/// closed one is kept by something that can neither be read nor written as it is.
void holdClosedStreams()
{
    constexpr std::array<int, 3> wrongModes = {O_WRONLY, O_RDONLY, O_RDONLY};
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) == -1)
            ::open("/dev/null", wrongModes.at(static_cast<std::size_t>(stream)));
    }
}

} // namespace

int main(int argc, char **argv)
{
    holdClosedStreams();
    const QCoreApplication application(argc, argv);
    return connrecord::runCommandLine(argc, argv);
}
