// SPDX-License-Identifier: MIT
#include "LanguageChoice.h"

#include "CommonUtils.h"
#include "Host.h"

namespace refhost
{

namespace
{

const char *const settingsGroup = "refdialer";
const char *const languageKey = "language";

} // namespace

QString startLanguage()
{
    const QStringList available = availableLanguages();
    QStringList wanted{CommonUtils::GetSettings(settingsGroup, languageKey)};
    for (const QString &locale : QLocale::system().uiLanguages())
        wanted.append(locale.section(QLatin1Char('-'), 0, 0));
    for (const QString &language : wanted) {
        if (available.contains(language))
            return language;
    }
    return QStringLiteral("en");
}

bool storeLanguage(const QString &language)
{
    return storeSetting(settingsGroup, languageKey, language);
}

QLocale localeFor(const QString &language)
{
    const QLocale usual(language);
    const QLocale system = QLocale::system();
    return system.language() == usual.language() ? system : usual;
}

} // namespace refhost
