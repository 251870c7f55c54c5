// SPDX-License-Identifier: MIT
#pragma once

#include "LiveConnection.h"

#include <QByteArray>

#include <optional>
#include <string>
#include <vector>

namespace recorder
{

/// A connection of which the store lacks something.
struct Unwritten {
    LiveConnection connection; ///< if it has not ended, it lasts
    bool hasFinalCounters = false;
    std::string run = {};    ///< of the recorder that left it, once it is in a file
    std::string origin = {}; ///< what tells it from all others, then
};

/// As a file keeps them, with a check sum.
QByteArray textOf(const std::vector<Unwritten> &connections);
/// What such a text keeps; nothing if it is something else, damaged or of a newer version.
std::optional<std::vector<Unwritten>> unwrittenIn(const QByteArray &text);

} // namespace recorder
