// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

namespace refdialer
{

/// The language to start with: the one the user chose last, else the first of
/// the system's languages that there are texts for, else English.
QString startLanguage();

/// Remembers the user's choice for later runs; false if it cannot be written.
bool storeLanguage(const QString &language);

/// How dates are written in a window of this language: as in the user's region, in the
/// language itself if Qt knows how, else in the user's; as is usual for the
/// language where the environment names no region.
QLocale localeFor(const QString &language);

} // namespace refdialer
