// SPDX-License-Identifier: MIT
#pragma once

#include "TextScanner.h"

#include <string_view>

namespace usage
{

/// Whether a SIM has this number, or one that ends so, since that is all that tables show;
/// an empty one means no SIM.
inline bool isSimNumber(std::string_view sim, std::string_view number)
{
    return number.empty() ? sim.empty() : endsWith(sim, number);
}

} // namespace usage
