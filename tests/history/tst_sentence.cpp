// SPDX-License-Identifier: MIT
#include "history/Sentence.h"

#include <QTest>

#include <string>
#include <vector>

class SentenceTest : public QObject
{
    Q_OBJECT

private slots:
    void isFilledPlaceByPlace_data();
    void isFilledPlaceByPlace();
};

using Arguments = std::vector<std::string>;
Q_DECLARE_METATYPE(Arguments)

void SentenceTest::isFilledPlaceByPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Arguments>("arguments");
    QTest::addColumn<QString>("sentence");

    QTest::newRow("one place") << "\"%1\" is full." << Arguments{"/a"} << "\"/a\" is full.";
    QTest::newRow("places in another order") << "%2 in %1" << Arguments{"a", "b"} << "b in a";
    QTest::newRow("places side by side") << "%1%2" << Arguments{"a", "b"} << "ab";
    QTest::newRow("a place twice") << "%1, %1" << Arguments{"a"} << "a, a";
    QTest::newRow("an argument with what looks like a place")
        << "%1 (%2)" << Arguments{"/100%2", "a"} << "/100%2 (a)";
    QTest::newRow("a place for which there is nothing") << "%1 %2" << Arguments{"a"} << "a %2";
    QTest::newRow("no place") << "10 % of 100%" << Arguments{"a"} << "10 % of 100%";
    QTest::newRow("nothing") << "" << Arguments{"a"} << "";
}

void SentenceTest::isFilledPlaceByPlace()
{
    QFETCH(QString, text);
    QFETCH(Arguments, arguments);
    const std::string filled = history::filled(text.toStdString(), arguments);
    QTEST(QString::fromStdString(filled), "sentence");
}

QTEST_GUILESS_MAIN(SentenceTest)
#include "tst_sentence.moc"
