// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace recorder
{
struct Problem;
}

namespace common
{

/// The problem as whole sentences for the user (what, where, what to do), in the
/// language of the program.
QString problemText(const recorder::Problem &problem);
/// Why connections of an interface of this name cannot be asked for.
QString impossibleInterfaceText(const QString &name);

} // namespace common
