// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// How volumes are written.
namespace VolumeText
{

/// A number with two decimals, then its unit. The number is exactly
/// Qt's text for "%.2f", in a fraction of its time where the number is one
/// that a count of bytes leads to.
QString of(double number, const char *unit);

} // namespace VolumeText
