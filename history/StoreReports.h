// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <cstdint>
#include <string>
#include <vector>

/// What is asked of a history once, for programs that watch or collect many of them. The
/// file is opened as by Store::openForReading(); without one, the answer is that of an empty
/// history. No operation throws.
namespace history
{

/// What the connections of one profile and SIM add up to, at home or roaming.
struct ConnectionSum {
    std::string profile;
    std::string sim;
    bool isRoaming = false;
    std::int64_t connections = 0;      ///< that began so
    std::int64_t connectedSeconds = 0; ///< theirs
    // Where they were moved; of a connection without hours, at home.
    std::int64_t uploadedBytes = 0;
    std::int64_t downloadedBytes = 0;
};

/// What all connections add up to, the ones that last included, by profile, SIM and
/// roaming. A sum that 64 bits do not hold is a BadRecord.
Result<std::vector<ConnectionSum>> connectionSums(const std::string &storePath);

/// From the first key up to the last one, which is of them.
struct KeyRange {
    std::int64_t first = 0;
    std::int64_t last = 0;
};

/// The keys that a history has given to finished connections: 1 up to the last one. A key
/// is given once, later ones are higher, and what a connection says never changes under its
/// key: so what has come since another look is what has a higher key than the last one
/// then, and what has gone is among the removed ones.
struct GivenKeys {
    std::int64_t last = 0;
    std::vector<KeyRange> removed; ///< of no connection any more; rising, with gaps between
};

Result<GivenKeys> givenKeys(const std::string &storePath);

} // namespace history
