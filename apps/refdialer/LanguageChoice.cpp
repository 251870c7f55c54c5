// SPDX-License-Identifier: MIT
#include "LanguageChoice.h"

#include "apps/common/RecordingChoices.h"
#include "apps/common/UserLanguage.h"
#include "refhost/libcore/Host.h"

#include <algorithm>

namespace refdialer
{

namespace
{

/// What the environment asks for when times are written, as "de_AT".
QString timeLocaleName()
{
    for (const char *const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return name.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    }
    return {};
}

QList<QLocale> allLocales()
{
    return QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
}

/// Of the user's region, in that language if it has it.
QLocale localeOfRegion(const QString &language)
{
    const QString user = timeLocaleName();
    const QString territory = QLatin1Char('_') + user.section(QLatin1Char('_'), 1);
    if (territory.size() > 1) {
        const QString spoken = language.section(QLatin1Char('_'), 0, 0);
        for (const QString &name : {spoken + territory, user}) {
            // Qt answers to a name that it does not know with another locale.
            if (QLocale(name).name() == name)
                return QLocale(name);
        }
        for (const QLocale &locale : allLocales()) {
            if (locale.name().endsWith(territory))
                return locale;
        }
    }
    return QLocale(language);
}

/// The one given, or another one of its language: sizes have the digits 0 to 9 everywhere, and
/// dates beside them have the same.
QLocale withPlainDigits(const QLocale &locale, const QString &language)
{
    if (locale.toString(0) == QLatin1String("0"))
        return locale;
    const QList<QLocale> others =
        QLocale::matchingLocales(locale.language(), QLocale::AnyScript, QLocale::AnyCountry);
    const auto plain = std::find_if(others.begin(), others.end(), [](const QLocale &other) {
        return other.toString(1.5) == QLatin1String("1.5");
    });
    return plain == others.end() ? QLocale(language) : *plain;
}

} // namespace

QString startLanguage()
{
    return common::nearestLanguage(common::wantedLanguages(), refhost::availableLanguages());
}

QString systemLanguage()
{
    return common::nearestLanguage(QLocale::system().uiLanguages(), refhost::availableLanguages());
}

bool isSystemLanguageChosen()
{
    return common::chosenLanguage().isEmpty();
}

bool storeLanguage(const QString &language)
{
    return refhost::storeSetting(common::settingsGroup, common::languageKey, language);
}

QLocale localeFor(const QString &language)
{
    return withPlainDigits(localeOfRegion(language), language);
}

} // namespace refdialer
