// SPDX-License-Identifier: MIT
#include "VolumeText.h"

#include "ShortText.h"

#include <cmath>

QString VolumeText::of(double number, const char *unit)
{
    // A count of bytes in gigabytes is a whole number of these parts, and any
    // number of them below the limit is exact, also a hundred times as large.
    constexpr int partBits = 30;
    constexpr quint64 partsOfOne = quint64(1) << partBits;
    constexpr double limit = 1 << 23;
    const double parts = number * static_cast<double>(partsOfOne);
    const bool isExact = !std::signbit(number) && number < limit && parts == std::floor(parts);
    const quint64 scaled = isExact ? static_cast<quint64>(parts) * 100 : 0;
    const quint64 rest = scaled % partsOfOne;
    if (!isExact || rest == partsOfOne / 2) // Qt decides where a tie goes
        return QString::asprintf("%.2f", number) + QLatin1String(unit);

    const quint64 hundredths = (scaled >> partBits) + (rest > partsOfOne / 2 ? 1 : 0);
    ShortText text;
    text.add(static_cast<qint64>(hundredths / 100));
    text.add('.');
    text.addTwoDigits(static_cast<int>(hundredths % 100));
    for (; *unit; ++unit)
        text.add(*unit);
    return text.toString();
}
