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

} // namespace common
