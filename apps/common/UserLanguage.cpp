// SPDX-License-Identifier: MIT
#include "UserLanguage.h"

#include "RecordingChoices.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <algorithm>

namespace common
{

namespace
{

constexpr QLatin1String suffix(".qm");

/// Whoever reads the one understands the other, as with "pt_PT" and "pt_BR"; "zh_TW" and
/// "zh_CN" are of different scripts.
bool areReadAlike(const QLocale &one, const QLocale &other)
{
    return one.language() == other.language() && one.script() == other.script();
}

/// Those of the folder, and that of the sources.
QStringList languagesIn(const QDir &folder)
{
    QStringList languages(QStringLiteral("en"));
    for (const QString &file : folder.entryList({QLatin1Char('*') + suffix}, QDir::Files))
        languages.append(file.chopped(suffix.size()));
    return languages;
}

} // namespace

QStringList wantedLanguages()
{
    return QStringList(chosenLanguage()) + QLocale::system().uiLanguages();
}

QString nearestLanguage(const QStringList &wanted, const QStringList &available)
{
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

UserLanguage::UserLanguage(const QString &folder)
{
    const QString language = nearestLanguage(wantedLanguages(), languagesIn(folder));
    if (m_texts.load(language + suffix, folder))
        QCoreApplication::installTranslator(&m_texts);
}

UserLanguage::~UserLanguage()
{
    QCoreApplication::removeTranslator(&m_texts);
}

} // namespace common
