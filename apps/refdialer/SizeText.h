// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace refdialer
{

/// A number of bytes as the history shows it: "0.10 KB", "1.50 MB", of 1024 each and
/// in every language with a full stop.
QString sizeText(qint64 bytes);

/// "249 B/s"; from 1024 bytes on in the units above: "1.50 KB/s".
QString rateText(qint64 bytesPerSecond);

} // namespace refdialer
