// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace common
{

// The user's choices, from the settings of refdialer, for whichever program records. They
// are read anew at each call; what is not there, or cannot be read, is not chosen.

constexpr char settingsGroup[] = "refdialer";
constexpr char interfacesKey[] = "interfaces";
constexpr char planWarningsKey[] = "planWarnings";
constexpr char languageKey[] = "language";

/// The interfaces to record besides the mobile ones, without what can name none.
QStringList chosenInterfaces();
/// The names in a text, apart by blanks or commas, each once.
QStringList namesIn(const QString &text);

/// Whether desktop notifications tell of data plans that are nearly used up; so it is
/// unless the user has switched it off.
bool arePlanWarningsWanted();

/// The language, as "de" or "pt_BR"; empty for the system's.
QString chosenLanguage();

} // namespace common
