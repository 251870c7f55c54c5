// SPDX-License-Identifier: MIT
#include "Change.h"
#include "Host.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <memory>

namespace refhost
{

namespace
{

constexpr char folder[] = ":/refhost/translations";
constexpr char prefix[] = "netinforecord_";
constexpr char suffix[] = ".qm";

/// What is installed at the moment; the application owns the translators.
struct Installed {
    QString language;
    QPointer<QTranslator> texts;
    QPointer<QTranslator> qtTexts;
};

Installed &installed()
{
    static Installed current;
    return current;
}

std::unique_ptr<QTranslator> loadTexts(const QString &language)
{
    auto translator = std::make_unique<QTranslator>();
    // Without this check, the loader would fall back from "de_XX" to "de".
    if (!availableLanguages().contains(language) ||
        !translator->load(QLatin1String(prefix) + language + QLatin1String(suffix),
                          QLatin1String(folder)))
        return nullptr;
    return translator;
}

// Qt 6 has a new name for this and calls the one that both versions have old.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
QString qtTextsFolder()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}
QT_WARNING_POP

/// Qt's own texts; null where the system has none for the language.
std::unique_ptr<QTranslator> loadQtTexts(const QString &language)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                          qtTextsFolder()))
        return nullptr;
    return translator;
}

/// What the texts say about themselves; empty where there are none.
QString textAboutItself(const QString &language, const char *id)
{
    const auto texts = loadTexts(language);
    return texts ? texts->translate("Host", id) : QString();
}

QPointer<QTranslator> install(std::unique_ptr<QTranslator> translator)
{
    if (!translator)
        return nullptr;
    translator->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(translator.get());
    return translator.release();
}

/// Qt does this by its own texts, which are not everywhere.
void layWindowsOutFor(const QString &language)
{
    // Texts are there without windows, too.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}

} // namespace

QStringList availableLanguages()
{
    QStringList languages;
    const QString pattern = QLatin1String(prefix) + QLatin1Char('*') + QLatin1String(suffix);
    for (const QFileInfo &file :
         QDir(QLatin1String(folder)).entryInfoList({pattern}, QDir::Files, QDir::Name))
        languages.append(file.completeBaseName().mid(int(sizeof(prefix)) - 1));
    return languages;
}

QString languageName(const QString &language)
{
    const QString name = textAboutItself(language, "IDS_LANGUAGE_NAME");
    return name.isEmpty() ? language : name;
}

bool isLanguageReviewed(const QString &language)
{
    return textAboutItself(language, "IDS_LANGUAGE_REVIEWED") == QLatin1String("yes");
}

bool setLanguage(const QString &language)
{
    auto texts = loadTexts(language);
    if (!texts)
        return false;
    const Installed old = installed();
    installed() = {language, install(std::move(texts)), install(loadQtTexts(language))};
    delete old.texts;
    delete old.qtTexts;
    // Last: Qt 5 looks at Qt's own texts whenever others come or go.
    layWindowsOutFor(language);
    return true;
}

QString language()
{
    return installed().language;
}

} // namespace refhost
