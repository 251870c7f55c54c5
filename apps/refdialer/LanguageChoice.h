// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

namespace refdialer
{

/// The language to start with: the nearest to the one the user chose last, or to the
/// first of the system's languages that has one.
QString startLanguage();

/// The nearest to the first of the system's languages that has one.
QString systemLanguage();

/// Whether the user has chosen the system's, or nothing.
bool isSystemLanguageChosen();

/// Remembers the user's choice for later runs, the system's if that is empty; false if it
/// cannot be written.
bool storeLanguage(const QString &language);

/// How dates are written in a window of this language: as in the user's region, in the
/// language itself if Qt knows how, else in the user's; as is usual for the
/// language where the environment names no region.
QLocale localeFor(const QString &language);

} // namespace refdialer
