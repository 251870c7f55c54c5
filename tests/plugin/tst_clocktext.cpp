// SPDX-License-Identifier: MIT
#include "ClockText.h"

#include <QTest>
#include <QTime>

class tst_ClockText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesATimeOfDay_data();
    void writesATimeOfDay();
    void writesTheLocalTime();
};

void tst_ClockText::writesATimeOfDay_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("midnight") << 0 << "00:00:00:000";
    QTest::newRow("a millisecond before midnight") << 86399999 << "23:59:59:999";
    QTest::newRow("in between") << 45296789 << "12:34:56:789";
}

void tst_ClockText::writesATimeOfDay()
{
    QFETCH(int, milliseconds);
    QTEST(QString::fromLatin1(ClockText(milliseconds).text()), "text");
}

void tst_ClockText::writesTheLocalTime()
{
    const auto shown = [] {
        return QTime::fromString(QString::fromLatin1(ClockText().text()),
                                 QStringLiteral("hh:mm:ss:zzz"));
    };
    QTime before;
    QTime between;
    QTime after;
    do { // again, if it was midnight
        before = QTime::currentTime();
        between = shown();
        after = QTime::currentTime();
    } while (after < before);
    QVERIFY2(before <= between && between <= after, qPrintable(between.toString()));
}

QTEST_GUILESS_MAIN(tst_ClockText)
#include "tst_clocktext.moc"
