// SPDX-License-Identifier: MIT
#include "SizeText.h"

#include <iterator>

namespace refdialer
{

QString sizeText(qint64 bytes)
{
    constexpr const char *units[] = {"KB", "MB", "GB"};
    double value = double(bytes) / 1024;
    const char *const *unit = std::begin(units);
    // The unit is chosen before rounding, as in the history.
    for (; value >= 1024 && unit + 1 != std::end(units); ++unit)
        value /= 1024;
    return QString::number(value, 'f', 2) + QLatin1Char(' ') + QLatin1String(*unit);
}

QString rateText(qint64 bytesPerSecond)
{
    const QString size = bytesPerSecond < 1024
                             ? QString::number(bytesPerSecond) + QLatin1String(" B")
                             : sizeText(bytesPerSecond);
    return size + QLatin1String("/s");
}

} // namespace refdialer
