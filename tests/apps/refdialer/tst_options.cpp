// SPDX-License-Identifier: MIT
#include "apps/refdialer/Failure.h"
#include "apps/refdialer/Options.h"
#include "refhost/libcore/Host.h"

#include <QTest>

class TestOptions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void areEmptyByDefault();
    void readsAllThatIsGiven();
    void refusesWhatDoesNotFit_data();
    void refusesWhatDoesNotFit();
    void answersQuestionsInsteadOfAnythingElse_data();
    void answersQuestionsInsteadOfAnythingElse();
};

void TestOptions::initTestCase()
{
    QCoreApplication::setApplicationName("refdialer");
    QCoreApplication::setApplicationVersion("7.8.9");
    QVERIFY(refhost::setLanguage("en"));
}

void TestOptions::areEmptyByDefault()
{
    const refdialer::Options options = refdialer::readOptions({"refdialer"});
    QCOMPARE(options.storeFile, QString());
    QCOMPARE(options.pluginFile, QString());
    QCOMPARE(options.language, QString());
    QCOMPARE(options.pictureFile, QString());
    QCOMPARE(options.information, QString());
    QCOMPARE(options.interfaceNames, QStringList());
    QVERIFY(options.hasDialupService);
    QVERIFY(!options.isDebug);
    QVERIFY(!options.isDemo);
}

void TestOptions::readsAllThatIsGiven()
{
    const refdialer::Options options =
        refdialer::readOptions({"refdialer", "--store", "a b.db", "--plugin=p.so", "--lang", "de",
                                "--debug", "--screenshot", "p.png"});
    QCOMPARE(options.storeFile, QString("a b.db"));
    QCOMPARE(options.pluginFile, QString("p.so"));
    QCOMPARE(options.language, QString("de"));
    QCOMPARE(options.pictureFile, QString("p.png"));
    QVERIFY(options.isDebug);
    QVERIFY(refdialer::readOptions({"refdialer", "--demo"}).isDemo);
    QVERIFY(!refdialer::readOptions({"refdialer", "--no-dialup-service"}).hasDialupService);
    QCOMPARE(refdialer::readOptions({"refdialer", "--interface", "usb0", "--interface=eth1"})
                 .interfaceNames,
             QStringList({"usb0", "eth1"}));
    const QString longest(127, 'x');
    QCOMPARE(refdialer::readOptions({"refdialer", "--interface", longest}).interfaceNames,
             QStringList(longest));
}

void TestOptions::refusesWhatDoesNotFit_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("an unknown option") << QStringList{"--stroe", "x"} << "stroe";
    QTest::newRow("an argument that is no option") << QStringList{"x.db"} << "x.db";
    QTest::newRow("an option without its value") << QStringList{"--store"} << "store";
    QTest::newRow("an empty store") << QStringList{"--store", ""} << "--store";
    QTest::newRow("an empty plug-in") << QStringList{"--plugin="} << "--plugin";
    QTest::newRow("an empty picture") << QStringList{"--screenshot", ""} << "--screenshot";
    QTest::newRow("an empty language") << QStringList{"--lang", ""} << "--lang";
    QTest::newRow("an empty interface") << QStringList{"--interface", ""} << "--interface";
    const QString tooLong(128, 'x');
    QTest::newRow("a name longer than any") << QStringList{"--interface", tooLong} << tooLong;
    QTest::newRow("a name of too many bytes")
        << QStringList{"--interface", QString(64, QChar(0xe4))} << "127";
    QTest::newRow("a path") << QStringList{"--interface", "net/ppp0"} << "\"net/ppp0\"";
    QTest::newRow("two names in one") << QStringList{"--interface", "a b"} << "\"a b\"";
    QTest::newRow("a folder's own name") << QStringList{"--interface", "."} << "\".\"";
    QTest::newRow("its parent's") << QStringList{"--interface", ".."} << "\"..\"";
    QTest::newRow("the known languages") << QStringList{"--lang", "xx"} << "de, en";
    QTest::newRow("the unknown language") << QStringList{"--lang", "xx"} << "\"xx\"";
    QTest::newRow("a path that is no text")
        << QStringList{"--store", QString(QChar::ReplacementCharacter)} << "not UTF-8";
    QTest::newRow("sample and own history") << QStringList{"--demo", "--store", "x"} << "--demo";
}

void TestOptions::refusesWhatDoesNotFit()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    try {
        refdialer::readOptions(QStringList{"refdialer"} + arguments);
        QFAIL("nothing was refused");
    } catch (const refdialer::Failure &failure) {
        QCOMPARE(int(failure.code), 2);
        QVERIFY2(failure.message.contains(named), qPrintable(failure.message));
        QVERIFY2(failure.message.contains("--help"), qPrintable(failure.message));
    }
}

void TestOptions::answersQuestionsInsteadOfAnythingElse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("answer");
    QTest::newRow("--help") << QStringList{"--help"} << "--screenshot";
    QTest::newRow("-h") << QStringList{"-h"} << "--screenshot";
    QTest::newRow("--version") << QStringList{"--version"} << "refdialer 7.8.9\n";
    QTest::newRow("help beside a mistake") << QStringList{"--lang", "xx", "--help"} << "--lang";
}

void TestOptions::answersQuestionsInsteadOfAnythingElse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, answer);
    const QString information =
        refdialer::readOptions(QStringList{"refdialer"} + arguments).information;
    QVERIFY2(information.contains(answer), qPrintable(information));
}

QTEST_MAIN(TestOptions)
#include "tst_options.moc"
