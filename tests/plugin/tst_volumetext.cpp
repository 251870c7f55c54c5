// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "ShortText.h"
#include "VolumeText.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

namespace
{

bool isWrittenAlike(double number)
{
    const QString actual = VolumeText::of(number, " GB");
    const QString expected = QString::asprintf("%.2f", number) + QStringLiteral(" GB");
    if (actual == expected)
        return true;
    qWarning("%.17g gave %s and not %s", number, qPrintable(actual), qPrintable(expected));
    return false;
}

} // namespace

class tst_VolumeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAKnownNumber();
    void writesOddNumbersLikeQt_data();
    void writesOddNumbersLikeQt();
    void writesEverySmallCountLikeQt();
    void writesRandomCountsLikeQt();
    void writesRandomNumbersLikeQt();
    void keepsShortTextsWithinTheirRoom();
};

void tst_VolumeText::writesAKnownNumber()
{
    QCOMPARE(VolumeText::of(1.5, " KB"), QStringLiteral("1.50 KB"));
    QCOMPARE(VolumeText::of(8388607.996, ""), QStringLiteral("8388608.00"));
}

void tst_VolumeText::writesOddNumbersLikeQt_data()
{
    QTest::addColumn<double>("number");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("zero with a sign") << -0.0;
    QTest::newRow("negative") << -1.5;
    QTest::newRow("a tie") << 0.125;
    QTest::newRow("another tie") << 0.375;
    QTest::newRow("a large tie") << 8388607.625;
    QTest::newRow("rounded up to one") << 1 - 1 / 1073741824.0;
    QTest::newRow("the limit") << 8388608.0;
    QTest::newRow("just below the limit") << std::nextafter(8388608.0, 0.0);
    QTest::newRow("past the limit") << 12345678901.5;
    QTest::newRow("the smallest part") << 1 / 1073741824.0;
    QTest::newRow("half of that") << 0.5 / 1073741824.0;
    QTest::newRow("tiny") << std::numeric_limits<double>::denorm_min();
    QTest::newRow("huge") << std::numeric_limits<double>::max();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("less than all") << -std::numeric_limits<double>::infinity();
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
}

void tst_VolumeText::writesOddNumbersLikeQt()
{
    QFETCH(double, number);
    QVERIFY(isWrittenAlike(number));
}

void tst_VolumeText::writesEverySmallCountLikeQt()
{
    for (int bytes = 0; bytes <= 20000; ++bytes)
        QVERIFY(isWrittenAlike(bytes / 1024.0));
}

void tst_VolumeText::writesRandomCountsLikeQt()
{
    QRandomGenerator random(static_cast<quint32>(campaign::seed(20101123)));
    for (int i = campaign::count(20000); i > 0; --i) {
        const auto bytes = static_cast<double>(random.generate64() >> (11 + i % 53));
        for (const double unit : {1024.0, 1048576.0, 1073741824.0})
            QVERIFY(isWrittenAlike(bytes / unit));
    }
}

void tst_VolumeText::writesRandomNumbersLikeQt()
{
    QRandomGenerator random(static_cast<quint32>(campaign::seed(20101124)));
    for (int i = campaign::count(20000); i > 0; --i)
        QVERIFY(isWrittenAlike(std::ldexp(random.generateDouble(), i % 60 - 20)));
}

void tst_VolumeText::keepsShortTextsWithinTheirRoom()
{
    ShortText text;
    for (int i = 0; i < 4; ++i)
        text.add(std::numeric_limits<qint64>::min());
    text.add('x');
    const QString number = QStringLiteral("-9223372036854775808");
    QCOMPARE(text.toString(), number + number + number + QLatin1Char('x'));
}

QTEST_GUILESS_MAIN(tst_VolumeText)
#include "tst_volumetext.moc"
