// SPDX-License-Identifier: MIT
#include "formats/Utf8Text.h"

#include <QTest>

#include <string>

using namespace formats;

class Utf8TextTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsUtf8FromOtherBytes_data();
    void tellsUtf8FromOtherBytes();
    void keepsAByteOrderMark();
    void cleansWhatTheStoreDoesNotTake();
    void printsOneLineThatTheTerminalDoesNotObey_data();
    void printsOneLineThatTheTerminalDoesNotObey();
    void keepsTheLinesOfAText();
    void cutsWithoutTearingACharacterApart();
};

void Utf8TextTest::tellsUtf8FromOtherBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("valid");

    QTest::newRow("nothing is text") << QByteArray() << true;
    QTest::newRow("umlauts and emoji are text")
        << QByteArray("Z\xC3\xBCrich \xF0\x9F\x93\xB6") << true;
    QTest::newRow("a byte order mark is text") << QByteArray("\xEF\xBB\xBFx") << true;
    QTest::newRow("the replacement character is text") << QByteArray("\xEF\xBF\xBD") << true;
    QTest::newRow("Latin-1 is not") << QByteArray("Z\xFCrich") << false;
    QTest::newRow("a cut sequence is not") << QByteArray("Z\xC3") << false;
    QTest::newRow("an overlong sequence is not") << QByteArray("\xC0\xAF") << false;
    QTest::newRow("half a surrogate pair is not") << QByteArray("\xED\xA0\x80") << false;
}

void Utf8TextTest::tellsUtf8FromOtherBytes()
{
    QFETCH(QByteArray, bytes);
    QTEST(isUtf8(bytes.toStdString()), "valid");
}

void Utf8TextTest::keepsAByteOrderMark()
{
    QCOMPARE(fromUtf8("\xEF\xBB\xBFx").size(), 2);
}

void Utf8TextTest::cleansWhatTheStoreDoesNotTake()
{
    QCOMPARE(cleanedUtf8(std::string("a\0b", 3)), std::string("a\xEF\xBF\xBD"
                                                              "b"));
    QVERIFY(isUtf8(cleanedUtf8("Z\xFCrich")));
    QCOMPARE(cleanedUtf8("Z\xC3\xBCrich"), std::string("Z\xC3\xBCrich"));
}

void Utf8TextTest::printsOneLineThatTheTerminalDoesNotObey_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("printed");

    QTest::newRow("plain text is left alone") << "a b ü 🛰"
                                              << "a b ü 🛰";
    QTest::newRow("line breaks and tabs are named") << "a\nb\r\tc"
                                                    << "a\\nb\\r\\tc";
    QTest::newRow("an escape sequence is disarmed") << "\x1b[2J"
                                                    << "\\u001b[2J";
    QTest::newRow("a change of writing direction is disarmed") << "a\u202Eb"
                                                               << "a\\u202eb";
    QTest::newRow("a line separator is named") << "a\u2028b"
                                               << "a\\u2028b";
    const auto named = [](uint character) {
        const QString text = QChar::requiresSurrogates(character)
                                 ? QString(QChar(QChar::highSurrogate(character))) +
                                       QChar(QChar::lowSurrogate(character))
                                 : QString(QChar(static_cast<ushort>(character)));
        QString name;
        for (const QChar unit : text)
            name += QString("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
        QTest::addRow("U+%04X is named", character) << 'a' + text + 'b' << 'a' + name + 'b';
    };
    // Control and format characters, lines and paragraphs, private and unknown ones.
    for (const uint character :
         {0x00U,   0x7fU,   0x9bU,    0xadU,    0x61cU,   0x180eU,  0x200bU,  0x200fU,  0x2029U,
          0x202aU, 0x202eU, 0x2060U,  0x2066U,  0x206fU,  0xe000U,  0xfeffU,  0xfff9U,  0xfffbU,
          0xffffU, 0x378U,  0x110bdU, 0x1bca0U, 0x1d173U, 0xe0001U, 0xe007fU, 0xf0000U, 0x10fffdU})
        named(character);
}

void Utf8TextTest::printsOneLineThatTheTerminalDoesNotObey()
{
    QFETCH(QString, text);
    QTEST(printable(text), "printed");
}

void Utf8TextTest::keepsTheLinesOfAText()
{
    QCOMPARE(printableLines("a\x1b\n\nZ\xC3\xBCrich\r\n"),
             QByteArray("a\\u001b\n\nZ\xC3\xBCrich\\r\n"));
    QCOMPARE(printableLines(std::string(1000, 'x')), QByteArray(1000, 'x'));
}

void Utf8TextTest::cutsWithoutTearingACharacterApart()
{
    QCOMPARE(printable(QString("abcdef"), 3), QString("abc…"));
    QCOMPARE(printable(QString("abc"), 3), QString("abc"));
    QCOMPARE(printable(QString("ab🛰d"), 3), QString("ab🛰…"));
}

QTEST_GUILESS_MAIN(Utf8TextTest)

#include "tst_utf8text.moc"
