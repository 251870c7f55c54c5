// SPDX-License-Identifier: MIT
#include "LocalNumber.h"

#include <QLocale>

namespace refdialer
{

QString localNumber(QString number, const QLocale &locale)
{
    number.replace(QLatin1Char('.'), QString(locale.decimalPoint()));
    for (int digit = 0; digit <= 9; ++digit)
        number.replace(QString::number(digit), locale.toString(digit));
    return number;
}

QString withPlainDigits(QString text)
{
    for (QChar &each : text) {
        if (each.digitValue() >= 0)
            each = QLatin1Char(static_cast<char>('0' + each.digitValue()));
    }
    return text;
}

} // namespace refdialer
