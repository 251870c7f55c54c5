// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace refdialer
{

/// What the program ends with; documented in its man page.
enum class ExitCode {
    Success = 0,
    PluginNotLoaded = 1,
    WrongUsage = 2,
    StoreNotUsable = 3,
    PictureNotWritten = 4,
};

/// Thrown when the program cannot go on before its window is shown: whole
/// sentences for the user that name what, where and what to do.
struct Failure {
    ExitCode code;
    QString message;
};

} // namespace refdialer
