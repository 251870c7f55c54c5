// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace recorder
{

/// Whether the kernel could have a network interface of this name, be it its own or
/// an alternative one.
bool canNameAnInterface(const QString &name);

} // namespace recorder
