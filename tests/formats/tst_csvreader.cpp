// SPDX-License-Identifier: MIT
#include "formats/CsvReader.h"
#include "formats/LineReader.h"

#include <QBuffer>
#include <QTest>

using namespace formats;

using Rows = QList<QStringList>;

class CsvReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void takesRowsApart_data();
    void takesRowsApart();
    void knowsTheLineThatAFieldBeginsIn();
    void tellsWhereTheQuotingIsWrong_data();
    void tellsWhereTheQuotingIsWrong();
};

namespace
{

QList<CsvRow> rowsOf(QByteArray contents)
{
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    LineReader lines(buffer, longestCsvLine + 1);
    CsvReader reader(lines, 3);
    QList<CsvRow> rows;
    for (CsvRow row; reader.next(row);)
        rows << row;
    return rows;
}

} // namespace

void CsvReaderTest::takesRowsApart_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<Rows>("rows");

    QTest::newRow("an empty file has no row") << QByteArray() << Rows();
    QTest::newRow("an empty line is one empty field") << QByteArray("\n") << Rows{{""}};
    QTest::newRow("empty fields") << QByteArray(",,\n") << Rows{{"", "", ""}};
    QTest::newRow("the last line may lack its end")
        << QByteArray("a,b\nc,d") << Rows{{"a", "b"}, {"c", "d"}};
    QTest::newRow("lines end with carriage return and line feed")
        << QByteArray("a,b\r\n\"c\",\r\n") << Rows{{"a", "b"}, {"c", ""}};
    QTest::newRow("a byte order mark is passed over") << QByteArray("\xEF\xBB\xBF"
                                                                    "a,b\n")
                                                      << Rows{{"a", "b"}};
    QTest::newRow("a byte order mark in the second line is text")
        << QByteArray("a\n\xEF\xBB\xBF"
                      "b\n")
        << Rows{{"a"}, {QString(QChar(0xFEFF)) + "b"}};
    QTest::newRow("a byte order mark before a quotation mark")
        << QByteArray("\xEF\xBB\xBF\"a,b\"\n") << Rows{{"a,b"}};
    QTest::newRow("quoted commas") << QByteArray("\"a,b\",c\n") << Rows{{"a,b", "c"}};
    QTest::newRow("doubled quotation marks")
        << QByteArray("\"\"\"a\"\"\",\"\"\n") << Rows{{"\"a\"", ""}};
    QTest::newRow("quoted line breaks of both kinds")
        << QByteArray("\"a\nb\r\nc\n\",d\r\n") << Rows{{"a\nb\r\nc\n", "d"}};
    QTest::newRow("a quoted carriage return") << QByteArray("\"a\rb\"\n") << Rows{{"a\rb"}};
    QTest::newRow("spaces are text") << QByteArray(" a , b\n") << Rows{{" a ", " b"}};
}

void CsvReaderTest::takesRowsApart()
{
    QFETCH(QByteArray, contents);
    Rows rows;
    for (const CsvRow &row : rowsOf(contents)) {
        QStringList texts;
        for (std::size_t i = 0; i < row.size(); ++i)
            texts << QString::fromUtf8('.' + QByteArray::fromStdString(row[i].text)).mid(1);
        rows << texts;
    }
    QTEST(rows, "rows");
}

void CsvReaderTest::knowsTheLineThatAFieldBeginsIn()
{
    const QList<CsvRow> rows = rowsOf("a,b\n\"c\nc\nc\",\"d\n\"\ne,f\n");
    QCOMPARE(rows[0][1].line, std::int64_t(1));
    QCOMPARE(rows[1][0].line, std::int64_t(2));
    QCOMPARE(rows[1][1].line, std::int64_t(4));
    QCOMPARE(rows[2][0].line, std::int64_t(6));
}

void CsvReaderTest::tellsWhereTheQuotingIsWrong_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<qint64>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("word");

    QTest::newRow("a quotation mark within a plain text")
        << QByteArray("a\nb,c\"d\n") << qint64(2) << 1 << "not quoted as a whole";
    QTest::newRow("text behind a closing quotation mark")
        << QByteArray("\"a\"b,c\n") << qint64(1) << 0 << "closing quotation mark";
    QTest::newRow("text behind a quotation mark that closes some lines below")
        << QByteArray("\"a\nb\nc\"d\n") << qint64(3) << 0 << "closing quotation mark";
    QTest::newRow("a quotation mark that is never closed")
        << QByteArray("a\nb,\"c\nd\ne\n") << qint64(2) << 1 << "never closed";
    QTest::newRow("a quotation mark at the very end")
        << QByteArray("a,\"") << qint64(1) << 1 << "never closed";
    QTest::newRow("a carriage return within a plain text")
        << QByteArray("a\rb,c\n") << qint64(1) << 0 << "carriage return";
    QTest::newRow("a column too many")
        << QByteArray("a\nb,c,d,\n") << qint64(2) << 3 << "3 columns";
    QTest::newRow("twenty million commas")
        << "a\n" + QByteArray(20 * 1000 * 1000, ',') << qint64(2) << 0 << "4194304 bytes";
    QTest::newRow("four million commas")
        << "a\n" + QByteArray(4 * 1000 * 1000, ',') << qint64(2) << 3 << "3 columns";
    QTest::newRow("too long a plain text")
        << "a\nb," + QByteArray(1048577, 'x') << qint64(2) << 1 << "1048576 bytes";
    QTest::newRow("too long a quoted text")
        << "a\n\"" + QByteArray(1048577, 'x') + '"' << qint64(2) << 0 << "1048576 bytes";
    QTest::newRow("too long a text of many lines")
        << "a\nb,\"" + QByteArray("line\n").repeated(10 * 1000 * 1000) << qint64(2) << 1
        << "1048576 bytes";
    QTest::newRow("two carriage returns at the end of a line")
        << QByteArray("a,b\r\r\n") << qint64(1) << 1 << "carriage return";
}

void CsvReaderTest::tellsWhereTheQuotingIsWrong()
{
    QFETCH(QByteArray, contents);
    QFETCH(qint64, line);
    QFETCH(int, column);
    QFETCH(QString, word);
    try {
        rowsOf(contents);
        QFAIL("the contents were taken");
    } catch (const CsvError &error) {
        QCOMPARE(qint64(error.line), line);
        QCOMPARE(int(error.column), column);
        const QString reason = QString::fromStdString(inEnglish(error.reason));
        QVERIFY2(reason.contains(word), qPrintable(reason));
    }
}

QTEST_GUILESS_MAIN(CsvReaderTest)

#include "tst_csvreader.moc"
