// SPDX-License-Identifier: MIT
#pragma once

#include "history/Sentence.h"

#include <QIODevice>

#include <memory>

namespace formats
{

/// What an open device holds that is compressed with gzip, xz, zstd or bzip2, to be
/// read piece by piece: however much that becomes, no more than a piece of it is in
/// memory. Null if the device does not begin as one of these. The device outlives the
/// result.
std::unique_ptr<QIODevice> decompressed(QIODevice &device);

/// Why reading a device, such a one or any other, has failed.
history::Part readError(const QIODevice &device);

} // namespace formats
