// SPDX-License-Identifier: MIT
#include "formats/LineReader.h"

#include <QBuffer>
#include <QTemporaryFile>
#include <QTest>

using namespace formats;

class LineReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void givesTheBytesBeforeEachLineFeed_data();
    void givesTheBytesBeforeEachLineFeed();
    void cutsWhatIsLongerThanTheLongestLine();
    void readsLinesAcrossChunks();
    void countsLines();
    void countsTheLinesOfBytesToo();
    void tellsHowFarItIsInTheMiddleOfALine();
    void tellsADeviceThatCannotBeRead();
};

namespace
{

QList<QByteArray> linesOf(LineReader &reader)
{
    QList<QByteArray> lines;
    while (reader.next())
        lines << QByteArray(reader.line().data(), static_cast<int>(reader.line().size()));
    return lines;
}

class BrokenDevice : public QIODevice
{
public:
    BrokenDevice() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        if (m_hasRead || size < 3)
            return -1;
        m_hasRead = true;
        std::copy_n("a\nb", 3, data);
        return 3;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    bool m_hasRead = false;
};

} // namespace

void LineReaderTest::givesTheBytesBeforeEachLineFeed_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QList<QByteArray>>("lines");

    QTest::newRow("an empty file has no line") << QByteArray() << QList<QByteArray>();
    QTest::newRow("a line feed alone is an empty line")
        << QByteArray("\n") << QList<QByteArray>{""};
    QTest::newRow("the last line may lack its line feed")
        << QByteArray("a\nb") << QList<QByteArray>{"a", "b"};
    QTest::newRow("a line feed at the end begins no further line")
        << QByteArray("a\nb\n") << QList<QByteArray>{"a", "b"};
    QTest::newRow("carriage returns and NULs are kept")
        << QByteArray("a\r\n\0b\n", 6) << QList<QByteArray>{"a\r", QByteArray("\0b", 2)};
}

void LineReaderTest::givesTheBytesBeforeEachLineFeed()
{
    QFETCH(QByteArray, contents);
    QFETCH(QList<QByteArray>, lines);
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    LineReader reader(buffer);

    QCOMPARE(linesOf(reader), lines);
    QVERIFY(!reader.hasFailed());
}

void LineReaderTest::cutsWhatIsLongerThanTheLongestLine()
{
    QByteArray contents = "abcdef\nabcd\nab";
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    LineReader reader(buffer, 4);

    QCOMPARE(linesOf(reader), (QList<QByteArray>{"abcd", "abcd", "ab"}));
}

void LineReaderTest::readsLinesAcrossChunks()
{
    const QByteArray longLine(3 * 1024 * 1024, 'x');
    QByteArray contents = longLine + '\n' + "short\n" + longLine;
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    LineReader reader(buffer);

    QCOMPARE(linesOf(reader), (QList<QByteArray>{longLine, "short", longLine}));
}

void LineReaderTest::countsLines()
{
    QByteArray contents = "a\n\nccc";
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    LineReader reader(buffer);

    QVERIFY(reader.next());
    QCOMPARE(reader.lineNumber(), std::int64_t(1));
    QVERIFY(reader.next());
    QVERIFY(reader.next());
    QCOMPARE(reader.lineNumber(), std::int64_t(3));
}

void LineReaderTest::countsTheLinesOfBytesToo()
{
    QByteArray contents = "a\nb\nc\nd";
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    LineReader reader(buffer);

    QVERIFY(reader.next());
    QCOMPARE(std::string(reader.takeBytes(4)), std::string("b\nc\n"));
    QVERIFY(reader.next());
    QCOMPARE(reader.lineNumber(), std::int64_t(4));
}

void LineReaderTest::tellsHowFarItIsInTheMiddleOfALine()
{
    QByteArray contents(1 << 20, 'x');
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    QList<qint64> told;
    LineReader reader(buffer, 10, [&told](std::int64_t bytes) { told.append(bytes); });

    QCOMPARE(linesOf(reader), QList<QByteArray>{QByteArray(10, 'x')});
    QVERIFY(told.first() < contents.size());
    QCOMPARE(told.last(), qint64(contents.size()));
}

void LineReaderTest::tellsADeviceThatCannotBeRead()
{
    BrokenDevice device;
    LineReader reader(device);

    QCOMPARE(linesOf(reader), QList<QByteArray>{"a"});
    QVERIFY(reader.hasFailed());
}

QTEST_GUILESS_MAIN(LineReaderTest)

#include "tst_linereader.moc"
