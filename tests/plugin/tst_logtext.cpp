// SPDX-License-Identifier: MIT
#include "LogText.h"

#include <QTest>

#include <limits>

class tst_LogText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAsPrintfDoes();
    void leavesOutWhatDoesNotFit();
};

void tst_LogText::writesAsPrintfDoes()
{
    const QString path = QStringLiteral("src/100%/ä");
    const char *const format = "<=== %s: %s:%d%s%ld";
    const long lowest = std::numeric_limits<long>::min();
    const LogText text(format, qUtf8Printable(path), "", -7, "%d", lowest);
    QCOMPARE(QString::fromUtf8(text.text()),
             QString::asprintf(format, qUtf8Printable(path), "", -7, "%d", lowest));
    QCOMPARE(LogText("as it stands").text(), "as it stands");
}

void tst_LogText::leavesOutWhatDoesNotFit()
{
    const QByteArray longText(2000, 'x');
    QCOMPARE(LogText("%s %d", longText.constData(), 7).text(), QByteArray(1023, 'x').constData());
    QCOMPARE(LogText("%s%d", longText.left(1020).constData(), 1234).text(),
             QByteArray(1020, 'x').constData());
}

QTEST_GUILESS_MAIN(tst_LogText)
#include "tst_logtext.moc"
