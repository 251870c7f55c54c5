// SPDX-License-Identifier: MIT
#include "history/Sentence.h"

#include <QTest>

#include <string>

using history::Sentence;
using history::translatable;
using history::Translatable;

Q_DECLARE_METATYPE(history::Sentence)

class SentenceTest : public QObject
{
    Q_OBJECT

private slots:
    void isFilledPlaceByPlace_data();
    void isFilledPlaceByPlace();
    void isTranslatedTextByText();
};

namespace
{

std::string words(const char *text)
{
    return text;
}

Sentence clause(const char *text, std::vector<history::Part> arguments = {})
{
    return {translatable("tests", text), std::move(arguments)};
}

} // namespace

void SentenceTest::isFilledPlaceByPlace_data()
{
    QTest::addColumn<Sentence>("sentence");
    QTest::addColumn<QString>("text");

    QTest::newRow("one place") << clause("\"%1\" is full.", {words("/a")}) << "\"/a\" is full.";
    QTest::newRow("places in another order")
        << clause("%2 in %1", {words("a"), words("b")}) << "b in a";
    QTest::newRow("places side by side") << clause("%1%2", {words("a"), words("b")}) << "ab";
    QTest::newRow("a place twice") << clause("%1, %1", {words("a")}) << "a, a";
    QTest::newRow("words with what looks like a place")
        << clause("%1 (%2)", {words("/100%2"), words("a")}) << "/100%2 (a)";
    QTest::newRow("a place for which there is nothing") << clause("%1 %2", {words("a")}) << "a %2";
    QTest::newRow("no place") << clause("10 % of 100%", {words("a")}) << "10 % of 100%";
    QTest::newRow("nothing") << clause("", {words("a")}) << "";
    QTest::newRow("a clause between words")
        << clause("%1: %2.",
                  {words("a"), clause("\"%1\" is more than %2", {words("%1"), words("1")})})
        << "a: \"%1\" is more than 1.";
    QTest::newRow("a clause in a clause")
        << clause("%1.", {clause("member %1", {clause("it is missing")})})
        << "member it is missing.";
}

void SentenceTest::isFilledPlaceByPlace()
{
    QFETCH(Sentence, sentence);
    QTEST(QString::fromStdString(inEnglish(sentence)), "text");
}

/// Each with its context; words stay as they are.
void SentenceTest::isTranslatedTextByText()
{
    const Sentence sentence =
        clause("%1: %2.", {words("%2: %1."), clause("%1 is missing", {words("a")})});
    const auto translation = [](const Translatable &text) {
        return std::string(text.context) + '<' + text.text + '>';
    };
    QCOMPARE(said(sentence, translation), std::string("tests<%2: %1.: tests<a is missing>.>"));
}

QTEST_GUILESS_MAIN(SentenceTest)
#include "tst_sentence.moc"
