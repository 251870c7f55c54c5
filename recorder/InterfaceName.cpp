// SPDX-License-Identifier: MIT
#include "InterfaceName.h"

#include <algorithm>

namespace recorder
{

namespace
{

/// Of an alternative name, without its terminator; an interface's own name has at
/// most 15.
constexpr int maximumBytes = 127;

bool isAllowed(QChar character)
{
    return character != QLatin1Char('/') && !character.isSpace();
}

} // namespace

bool canNameAnInterface(const QString &name)
{
    return !name.isEmpty() && name.toUtf8().size() <= maximumBytes &&
           std::all_of(name.begin(), name.end(), isAllowed) && name != QLatin1String(".") &&
           name != QLatin1String("..");
}

} // namespace recorder
