// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionTable.h"
#include "Store.h"

#include <cstdint>

namespace history
{

/// A number for the values of one connection, its key included: two that differ
/// in any of them have, but for a chance of 1 in 2^64, different numbers. The same
/// for a row and what it becomes, in one process only.
std::uint64_t fingerprintOf(const ConnectionRow &row);
std::uint64_t fingerprintOf(const Connection &connection);
/// Of what identifies it to an import alone.
std::uint64_t identityFingerprintOf(const Connection &connection);

} // namespace history
