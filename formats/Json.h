// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json_fwd.hpp>

namespace formats
{

/// A document for programs. Qt's own one would not do: Qt 5 has it
/// turn large integers into doubles. Who looks into one includes JsonText.h.
using Json = nlohmann::json;

} // namespace formats
