// SPDX-License-Identifier: MIT
#include "EnvironmentVariable.h"
#include "apps/common/UserLanguage.h"
#include "apps/refdialer/LanguageChoice.h"
#include "refhost/libcore/Host.h"

#include <QTest>

/// Which texts a user gets, and how dates are written beside them.
class TestLanguageChoice : public QObject
{
    Q_OBJECT

private slots:
    void startsInTheNearestLanguage_data();
    void startsInTheNearestLanguage();
    void writesDatesAsTheUsersRegionDoes_data();
    void writesDatesAsTheUsersRegionDoes();
    void writesDatesWithTheDigitsOfSizes_data();
    void writesDatesWithTheDigitsOfSizes();
};

void TestLanguageChoice::startsInTheNearestLanguage_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("language");
    QTest::newRow("the language alone") << QStringList("de") << "de";
    QTest::newRow("a region of it") << QStringList("de-AT") << "de";
    QTest::newRow("one with its region") << QStringList("pt-BR") << "pt_BR";
    QTest::newRow("as it is stored") << QStringList("pt_BR") << "pt_BR";
    QTest::newRow("with its script, too") << QStringList("pt-Latn-BR") << "pt_BR";
    QTest::newRow("another region of it") << QStringList({"pt-PT", "pt", "en"}) << "pt_BR";
    QTest::newRow("Chinese") << QStringList("zh-CN") << "zh_CN";
    QTest::newRow("Chinese with its script") << QStringList("zh-Hans-CN") << "zh_CN";
    QTest::newRow("Chinese in Singapore") << QStringList("zh_SG") << "zh_CN";
    QTest::newRow("Chinese in another script") << QStringList({"zh-TW", "fr-FR"}) << "fr";
    QTest::newRow("the second") << QStringList({"fi-FI", "pl-PL", "de"}) << "pl";
    QTest::newRow("nothing stored") << QStringList({"", "tr-TR"}) << "tr";
    QTest::newRow("the C locale") << QStringList("C") << "en";
    QTest::newRow("none with texts") << QStringList({"fi", "xx", ""}) << "en";
    QTest::newRow("none") << QStringList() << "en";
}

void TestLanguageChoice::startsInTheNearestLanguage()
{
    QFETCH(QStringList, wanted);
    QTEST(common::nearestLanguage(wanted, refhost::availableLanguages()), "language");
}

void TestLanguageChoice::writesDatesAsTheUsersRegionDoes_data()
{
    QTest::addColumn<QByteArray>("all");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<QByteArray>("lang");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("locale");
    const QByteArray none;
    QTest::newRow("nothing said") << none << none << none << "en"
                                  << "en_US";
    QTest::newRow("no region") << none << none << QByteArray("C.UTF-8") << "en"
                               << "en_US";
    QTest::newRow("the language's region") << none << none << QByteArray("en_GB.UTF-8") << "en"
                                           << "en_GB";
    QTest::newRow("times of another region")
        << none << QByteArray("en_GB.UTF-8") << QByteArray("C.UTF-8") << "en"
        << "en_GB";
    QTest::newRow("everything of one region")
        << QByteArray("de_CH.UTF-8") << QByteArray("en_US") << QByteArray("en_US") << "de"
        << "de_CH";
    QTest::newRow("the language in a region that speaks another")
        << none << none << QByteArray("de_DE@euro") << "en"
        << "en_DE";
    QTest::newRow("a region where nobody speaks the language")
        << none << none << QByteArray("pl_PL.UTF-8") << "de"
        << "pl_PL";
    QTest::newRow("a language named with another region")
        << none << none << QByteArray("pt_PT.UTF-8") << "pt_BR"
        << "pt_PT";
    QTest::newRow("a language that Qt does not know")
        << none << none << QByteArray("xx_PL.UTF-8") << "de"
        << "pl_PL";
}

void TestLanguageChoice::writesDatesAsTheUsersRegionDoes()
{
    QFETCH(QByteArray, all);
    QFETCH(QByteArray, time);
    QFETCH(QByteArray, lang);
    QFETCH(QString, language);
    const EnvironmentVariable lcAll("LC_ALL", all);
    const EnvironmentVariable lcTime("LC_TIME", time);
    const EnvironmentVariable langVariable("LANG", lang);
    QTEST(refdialer::localeFor(language).name(), "locale");
}

void TestLanguageChoice::writesDatesWithTheDigitsOfSizes_data()
{
    QTest::addColumn<QByteArray>("region");
    QTest::addColumn<QString>("language");
    QTest::newRow("Arabic") << QByteArray("ar_EG.UTF-8") << "ar";
    QTest::newRow("English where nobody speaks it") << QByteArray("fa_IR.UTF-8") << "en";
}

void TestLanguageChoice::writesDatesWithTheDigitsOfSizes()
{
    QFETCH(QByteArray, region);
    QFETCH(QString, language);
    const EnvironmentVariable lcAll("LC_ALL", region);
    const QLocale locale = refdialer::localeFor(language);
    QCOMPARE(locale.toString(1.5), QString("1.5"));
    QCOMPARE(locale.language(), QLocale(language).language());
}

QTEST_MAIN(TestLanguageChoice)
#include "tst_languagechoice.moc"
