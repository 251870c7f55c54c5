// SPDX-License-Identifier: MIT
#include "LanguageChoice.h"

#include "CommonUtils.h"
#include "apps/common/RecordingChoices.h"
#include "refhost/libcore/Host.h"

#include <algorithm>

namespace refdialer
{

namespace
{

const char *const languageKey = "language";

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

/// Whoever reads the one understands the other, as with "pt_PT" and "pt_BR"; "zh_TW" and
/// "zh_CN" are of different scripts.
bool areReadAlike(const QLocale &one, const QLocale &other)
{
    return one.language() == other.language() && one.script() == other.script();
}

QList<QLocale> allLocales()
{
    return QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
}

} // namespace

QString startLanguage()
{
    return nearestLanguage(
        QStringList(CommonUtils::GetSettings(common::settingsGroup, languageKey)) +
        QLocale::system().uiLanguages());
}

QString systemLanguage()
{
    return nearestLanguage(QLocale::system().uiLanguages());
}

bool isSystemLanguageChosen()
{
    return CommonUtils::GetSettings(common::settingsGroup, languageKey).isEmpty();
}

QString nearestLanguage(const QStringList &wanted)
{
    const QStringList available = refhost::availableLanguages();
    for (QString name : wanted) {
        name.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (available.contains(name))
            return name;
        const auto nearest =
            std::find_if(available.begin(), available.end(), [&name](const QString &other) {
                return areReadAlike(QLocale(name), QLocale(other));
            });
        if (nearest != available.end())
            return *nearest;
    }
    return QStringLiteral("en");
}

bool storeLanguage(const QString &language)
{
    return refhost::storeSetting(common::settingsGroup, languageKey, language);
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
