// SPDX-License-Identifier: MIT
#include "SizeText.h"

#include <iterator>

namespace usage
{

QString sizeText(std::int64_t bytes)
{
    constexpr const char *units[] = {"KB", "MB", "GB"};
    double value = static_cast<double>(bytes) / 1024;
    const char *const *unit = std::begin(units);
    // The unit is chosen before rounding, as in the history.
    for (; value >= 1024 && unit + 1 != std::end(units); ++unit)
        value /= 1024;
    return QString::number(value, 'f', 2) + QLatin1Char(' ') + QLatin1String(*unit);
}

QString rateText(std::int64_t bytesPerSecond)
{
    const QString size =
        bytesPerSecond < 1024
            ? QString::number(static_cast<qlonglong>(bytesPerSecond)) + QLatin1String(" B")
            : sizeText(bytesPerSecond);
    return size + QLatin1String("/s");
}

} // namespace usage
