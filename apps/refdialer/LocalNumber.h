// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QLocale;

namespace refdialer
{

/// A number such as "-1.5" with the decimal point and the digits of the locale.
QString localNumber(QString number, const QLocale &locale);

/// The text with digits of ASCII in the place of those of any script.
QString withPlainDigits(QString text);

} // namespace refdialer
