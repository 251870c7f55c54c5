// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace usage
{

/// A number of bytes as the history shows it: "0.10 KB", "1.50 MB", up to GB, of 1024
/// each and in every language with a full stop.
QString sizeText(std::int64_t bytes);

/// "249 B/s"; from 1024 bytes on in the units above: "1.50 KB/s".
QString rateText(std::int64_t bytesPerSecond);

} // namespace usage
