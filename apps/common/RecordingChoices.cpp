// SPDX-License-Identifier: MIT
#include "RecordingChoices.h"

#include "recorder/InterfaceName.h"

#include <QRegularExpression>
#include <QSettings>

#include <algorithm>

namespace common
{

namespace
{

QString setting(const char *key)
{
    const QSettings settings(QStringLiteral("refdialer"), QStringLiteral("refdialer"));
    return settings.value(QLatin1String(settingsGroup) + QLatin1Char('/') + QLatin1String(key))
        .toStringList()
        .join(QLatin1Char(' ')); // one that is written by hand may have commas
}

} // namespace

QStringList chosenInterfaces()
{
    QStringList names = namesIn(setting(interfacesKey));
    names.erase(
        std::remove_if(names.begin(), names.end(),
                       [](const QString &name) { return !recorder::canNameAnInterface(name); }),
        names.end());
    return names;
}

QStringList namesIn(const QString &text)
{
    QStringList names =
        text.split(QRegularExpression(QStringLiteral("[\\s,]+")), Qt::SkipEmptyParts);
    names.removeDuplicates();
    return names;
}

bool arePlanWarningsWanted()
{
    return setting(planWarningsKey).compare(QLatin1String("false"), Qt::CaseInsensitive) != 0;
}

QString chosenLanguage()
{
    return setting(languageKey);
}

} // namespace common
