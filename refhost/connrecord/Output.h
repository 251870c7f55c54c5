// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <string>

namespace refhost
{

/// Both throw Failure if not everything could be written.

void writeStandardOutput(const QByteArray &bytes);

/// Puts the bytes into a file, whose earlier contents stay whole until the new
/// ones are.
void saveFile(const std::string &path, const QByteArray &bytes);

} // namespace refhost
