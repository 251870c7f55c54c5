// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "SdkText.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace
{

struct Field {
    char text[32] = {};
};

Field fieldOf(const QByteArray &text)
{
    Field field;
    std::copy_n(text.constData(), std::min<int>(32, static_cast<int>(text.size())), field.text);
    return field;
}

bool isReadAlike(const QByteArray &text)
{
    const Field field = fieldOf(text);
    const QString asText = SdkText::bounded(field.text);
    const double actual = SdkText::real(field.text);
    bool isNumber = false;
    const double value = asText.toDouble(&isNumber);
    const double expected = isNumber ? value : 0.0; // Qt's may be infinite
    const bool isSameReal = actual == expected || (std::isnan(actual) && std::isnan(expected));
    if (SdkText::integer(field.text) == asText.toInt() && isSameReal &&
        std::signbit(actual) == std::signbit(expected))
        return true;
    qWarning("'%s' gave %d and %g", text.constData(), SdkText::integer(field.text), actual);
    return false;
}

} // namespace

class tst_SdkText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsNumbersLikeQt_data();
    void readsNumbersLikeQt();
    void readsRandomTextsLikeQt();
    void takesWhatIsTooLargeForNoNumber();
};

void tst_SdkText::readsNumbersLikeQt_data()
{
    QTest::addColumn<QByteArray>("text");
    const char *const texts[] = {"",
                                 "0",
                                 "00000000000000000000000000000007",
                                 "1267795800",
                                 "2147483647",
                                 "2147483648",
                                 "4294967296",
                                 "-1",
                                 "+7",
                                 " 7",
                                 "7 ",
                                 "7x",
                                 "x",
                                 "1.5",
                                 "1e3",
                                 "1e-400",
                                 "1e400",
                                 "-1e400",
                                 "-0",
                                 "inf",
                                 "nan",
                                 "0x10",
                                 "1,000",
                                 "999999999999999",
                                 "0009",
                                 "\xb2",
                                 "1000000000000000",
                                 "9007199254740993",
                                 "99999999999999999999999999999999"};
    for (const char *text : texts)
        QTest::newRow(*text ? text : "an empty text") << QByteArray(text);
}

void tst_SdkText::readsNumbersLikeQt()
{
    QFETCH(QByteArray, text);
    QVERIFY(isReadAlike(text));
}

void tst_SdkText::readsRandomTextsLikeQt()
{
    const QByteArray characters = "01234567890123456789 +-.eExinf,\xb2";
    QRandomGenerator random(static_cast<quint32>(campaign::seed(20101125)));
    for (int i = campaign::count(50000); i > 0; --i) {
        QByteArray text;
        // Mostly digits, now and then another character.
        for (int length = random.bounded(18); length > 0; --length)
            text += characters.at(random.bounded(random.bounded(8) ? 10 : int(characters.size())));
        QVERIFY(isReadAlike(text));
    }
}

void tst_SdkText::takesWhatIsTooLargeForNoNumber()
{
    QCOMPARE(SdkText::real(fieldOf("1e400").text), 0.0);
    QCOMPARE(SdkText::real(fieldOf("-1e400").text), 0.0);
    QVERIFY(std::isinf(SdkText::real(fieldOf("inf").text)));
}

QTEST_GUILESS_MAIN(tst_SdkText)
#include "tst_sdktext.moc"
