// SPDX-License-Identifier: MIT
#pragma once

namespace common
{

/// Who may read a new file: the user alone, or everybody on the machine.
enum class Audience { Owner, Everybody };

} // namespace common
