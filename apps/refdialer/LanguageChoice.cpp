// SPDX-License-Identifier: MIT
#include "LanguageChoice.h"

#include "apps/common/RecordingChoices.h"
#include "apps/common/UserLanguage.h"
#include "refhost/libcore/Host.h"

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

} // namespace refdialer
