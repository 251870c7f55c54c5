// SPDX-License-Identifier: MIT
#include "formats/CsvFormat.h"
#include "formats/CsvReader.h"
#include "formats/LineReader.h"
#include "history/ConnectionFields.h"
#include "tests/formats/Documents.h"

#include <QBuffer>
#include <QTest>

#include <limits>

using namespace formats;
using namespace history;

class CsvFormatTest : public QObject
{
    Q_OBJECT

private slots:
    void writesAHeaderAndOneRowForEachConnection();
    void readsBackWhatItHasWritten_data();
    void readsBackWhatItHasWritten();
    void readsTimesInOtherZones();
    void tellsOfAConnectionThatStillLasts();
    void passesOverBlankLinesAtTheEnd_data();
    void passesOverBlankLinesAtTheEnd();
    void tellsWhatIsWrongWithALine_data();
    void tellsWhatIsWrongWithALine();
    void tellsARoamingThatIsNone();
    void tellsAWrongHeader_data();
    void tellsAWrongHeader();
};

namespace
{

/// Of a file as earlier versions wrote it, without who a connection belongs to.
const QByteArray earlierHeader =
    "profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,ending,interface\n";
const QByteArray header =
    earlierHeader.trimmed() + ",operator,operator_code,sim,roaming,technology\n";

history::Connection sample()
{
    history::Connection connection;
    connection.key = 7;
    connection.profile = "internet.example";
    connection.startUtc = 1717180200;
    connection.endUtc = 1717183800;
    connection.connectedSeconds = 3590;
    connection.uploadedBytes = 31981;
    connection.downloadedBytes = 20722;
    connection.interfaceName = "ppp0";
    return connection;
}

std::vector<history::Connection> readBack(QByteArray csv)
{
    QBuffer buffer(&csv);
    buffer.open(QIODevice::ReadOnly);
    LineReader lines(buffer, longestCsvLine + 1);
    return connectionsFromCsv(lines);
}

/// Reading this fails; the place and reason as one text.
QString errorOf(const QByteArray &csv)
{
    try {
        readBack(csv);
        return "none";
    } catch (const CsvError &error) {
        return QString::number(error.line) + ' ' +
               QString::fromStdString(csvColumnName(error.column) + ": " + inEnglish(error.reason));
    }
}

} // namespace

void CsvFormatTest::writesAHeaderAndOneRowForEachConnection()
{
    history::Connection quoted = sample();
    quoted.profile = "a \"b\", c";
    QCOMPARE(toCsv({}), header);
    QCOMPARE(toCsv({sample(), quoted}),
             header + "internet.example,2024-05-31T18:30:00Z,2024-05-31T19:30:00Z,3590,31981,"
                      "20722,normal,ppp0,,,,,\n"
                      "\"a \"\"b\"\", c\",2024-05-31T18:30:00Z,2024-05-31T19:30:00Z,3590,31981,"
                      "20722,normal,ppp0,,,,,\n");
}

void CsvFormatTest::readsBackWhatItHasWritten_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<qint64>("number");

    QTest::newRow("a plain name") << QByteArray("internet.example") << qint64(1);
    QTest::newRow("an empty name and zeros") << QByteArray() << qint64(0);
    QTest::newRow("the largest numbers") << QByteArray("x") << std::numeric_limits<qint64>::max();
    QTest::newRow("commas and quotation marks") << QByteArray("\"a\",\"b\"") << qint64(1);
    QTest::newRow("line breaks of every kind") << QByteArray("\na\r\nb\rc\n") << qint64(1);
    QTest::newRow("a carriage return at the end") << QByteArray("a\r") << qint64(1);
    QTest::newRow("UTF-8 with emoji") << QByteArray("Z\xC3\xBC \xF0\x9F\x93\xB6") << qint64(1);
    QTest::newRow("a byte order mark") << QByteArray("\xEF\xBB\xBF") << qint64(1);
    QTest::newRow("control characters") << QByteArray("\x01\x1b[0m\x7f") << qint64(1);
    QTest::newRow("spaces around") << QByteArray("  a  ") << qint64(1);
    QTest::newRow("a name of a megabyte") << QByteArray(1 << 20, 'x') << qint64(1);
    QTest::newRow("a megabyte of quotation marks") << QByteArray(1 << 20, '"') << qint64(1);
}

void CsvFormatTest::readsBackWhatItHasWritten()
{
    QFETCH(QByteArray, profile);
    QFETCH(qint64, number);
    history::Connection connection = sample();
    connection.profile = profile.toStdString();
    connection.startUtc = 0;
    connection.endUtc = std::min<qint64>(number, history::largestTime);
    connection.connectedSeconds = std::min<qint64>(number, history::largestDuration);
    connection.uploadedBytes = number;
    connection.downloadedBytes = number;
    connection.ending = std::string(31, ',');
    connection.interfaceName = "";
    connection.operatorName = std::string(255, '"');
    connection.operatorCode = "26201";
    connection.sim = "89490200001234567890";
    connection.roaming = history::abroad;
    connection.technology = "lte";

    const std::vector<history::Connection> read = readBack(toCsv({connection, sample()}));
    QCOMPARE(read.size(), std::size_t(2));
    QCOMPARE(read[0].key, std::int64_t(0));
    QVERIFY(history::hasSameContents(read[0], connection));
    QCOMPARE(read[1].profile, sample().profile);
}

void CsvFormatTest::readsTimesInOtherZones()
{
    const auto read =
        readBack(earlierHeader + "x,2024-05-31T20:30:00+02:00,2024-05-31T21:30:00,1,2,3,normal,\n");
    QCOMPARE(read.at(0).startUtc, std::int64_t(1717180200));
    QCOMPARE(read.at(0).endUtc, std::int64_t(1717183800));
}

void CsvFormatTest::tellsOfAConnectionThatStillLasts()
{
    const QByteArray lasting = "x,2024-05-31T18:30:00Z,,1,2,3,normal,ppp0,,,,home,";
    QByteArray csv = toCsv({sample()}) + lasting + '\n';
    QBuffer buffer(&csv);
    buffer.open(QIODevice::ReadOnly);
    LineReader lines(buffer, longestCsvLine + 1);
    QStringList told;
    std::size_t finished = 0;
    readCsv(
        lines, [&finished](const history::Connection &) { ++finished; },
        [&told](std::int64_t line, const std::string &text) {
            told << QString::number(line) + ' ' + QString::fromStdString(text);
        });
    QCOMPARE(told, QStringList("3 " + lasting));
    QCOMPARE(finished, std::size_t(1));
}

void CsvFormatTest::passesOverBlankLinesAtTheEnd_data()
{
    QTest::addColumn<QByteArray>("end");

    QTest::newRow("one") << QByteArray("\n");
    QTest::newRow("one with a carriage return") << QByteArray("\r\n");
    QTest::newRow("a carriage return alone") << QByteArray("\r");
    QTest::newRow("several") << QByteArray("\n\r\n\n");
}

void CsvFormatTest::passesOverBlankLinesAtTheEnd()
{
    QFETCH(QByteArray, end);
    QCOMPARE(readBack(toCsv({sample()}) + end).size(), std::size_t(1));
    QCOMPARE(readBack(header + end).size(), std::size_t(0));
    const QString error =
        errorOf(toCsv({sample()}) + "\n\n" + toCsv({sample()}).mid(header.size()));
    QCOMPARE(error, QString("3 start: the line has 1 columns and should have 13"));
}

void CsvFormatTest::tellsWhatIsWrongWithALine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("error");

    const QByteArray start = "x,2024-05-31T18:30:00Z,2024-05-31T19:30:00Z,";
    QTest::newRow("a column too few") << start + "1,2,3,normal"
                                      << "3 interface: the line has 7 columns and should have 8";
    QTest::newRow("a column too many") << start + "1,2,3,normal,ppp0,more"
                                       << "3 operator: the line has 9 columns and should have 8";
    QTest::newRow("an empty line")
        << QByteArray() << "3 start: the line has 1 columns and should have 8";
    QTest::newRow("a number with letters") << start + "1,2a,3,normal,"
                                           << "3 uploaded_bytes: \"2a\" is not a whole number";
    QTest::newRow("no number") << start + "1,,3,normal,"
                               << "3 uploaded_bytes: \"\" is not a whole number";
    QTest::newRow("a fraction") << start + "1.5,2,3,normal,"
                                << "3 connected_seconds: \"1.5\" is not a whole number";
    QTest::newRow("a negative number") << start + "1,2,-3,normal,"
                                       << "3 downloaded_bytes: \"-3\" is negative";
    QTest::newRow("more bytes than 63 bits")
        << start + "1,9223372036854775808,3,normal,"
        << "3 uploaded_bytes: \"9223372036854775808\" is more than 9223372036854775807";
    QTest::newRow("too long a time connected")
        << start + "2147483648,2,3,normal,"
        << "3 connected_seconds: \"2147483648\" is more than 2147483647";
    QTest::newRow("no time") << QByteArray("x,tomorrow,2024-05-31T19:30:00Z,1,2,3,normal,")
                             << "3 start: \"tomorrow\" is not a time such as 2024-05-31T18:30:00Z";
    QTest::newRow("a time before 1970")
        << QByteArray("x,1969-12-31T23:59:59Z,2024-05-31T19:30:00Z,1,2,3,normal,")
        << "3 start: \"1969-12-31T23:59:59Z\" is not between 1970-01-01T00:00:00Z and "
           "2106-02-07T06:28:15Z";
    QTest::newRow("an end before the start")
        << QByteArray("x,2024-05-31T18:30:00Z,2024-05-31T18:29:59Z,1,2,3,normal,")
        << "3 end: \"2024-05-31T18:29:59Z\" is before the start, 2024-05-31T18:30:00Z";
    QTest::newRow("a time after 31 bits")
        << QByteArray("x,2024-05-31T18:30:00Z,2106-02-07T06:28:16Z,1,2,3,normal,")
        << "3 end: \"2106-02-07T06:28:16Z\" is not between 1970-01-01T00:00:00Z and "
           "2106-02-07T06:28:15Z";
    QTest::newRow("too long an ending")
        << start + "1,2,3," + QByteArray(32, 'e') + ','
        << "3 ending: the text has 32 bytes, at most 31 are allowed";
    QTest::newRow("too long an interface")
        << start + "1,2,3,normal," + QByteArray(32, 'i')
        << "3 interface: the text has 32 bytes, at most 31 are allowed";
    QTest::newRow("a NUL byte") << QByteArray("a\0b", 3) + start.mid(1) + "1,2,3,normal,"
                                << "3 profile: the text holds a NUL byte";
    QTest::newRow("a profile in Latin-1") << "Z\xFCrich" + start.mid(1) + "1,2,3,normal,"
                                          << "3 profile: the text is not UTF-8";
    QTest::newRow("an interface in Latin-1") << start + "1,2,3,normal,\xFC"
                                             << "3 interface: the text is not UTF-8";
    QTest::newRow("an open quotation mark") << start + "1,2,3,\"normal,"
                                            << "3 ending: the quotation mark is never closed";
    QTest::newRow("a wrong number behind a line break in quotes")
        << QByteArray("\"a\nb\nc\",2024-05-31T18:30:00Z,2024-05-31T19:30:00Z,1,x,3,normal,")
        << "5 uploaded_bytes: \"x\" is not a whole number";
}

void CsvFormatTest::tellsWhatIsWrongWithALine()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, error);
    const QByteArray goodLine = toCsv({sample()}).mid(header.size()).replace(",,,,,\n", "\n");
    QCOMPARE(errorOf(earlierHeader + goodLine + line + '\n' + goodLine), error);
}

void CsvFormatTest::tellsARoamingThatIsNone()
{
    QCOMPARE(errorOf(toCsv({sample()}).replace("ppp0,,,,,", "ppp0,,,,Home,")),
             QString("2 roaming: \"Home\" is neither \"home\" nor \"roaming\" nor empty"));
}

void CsvFormatTest::tellsAWrongHeader_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QString>("place");

    QTest::newRow("an empty file") << QByteArray() << "1 profile:";
    QTest::newRow("a byte order mark alone") << QByteArray("\xEF\xBB\xBF") << "1 profile:";
    QTest::newRow("no header") << toCsv({sample()}).mid(header.size()) << "1 profile:";
    QTest::newRow("a column missing")
        << QByteArray(header).replace(",interface", "") << "1 interface:";
    QTest::newRow("one that ends early")
        << header.left(header.indexOf(",uploaded_bytes")) << "1 uploaded_bytes:";
    QTest::newRow("columns in another order")
        << QByteArray(header).replace("start,end", "end,start") << "1 start:";
    QTest::newRow("a column more")
        << QByteArray(header).replace("technology", "technology,x") << "1 14:";
    QTest::newRow("a later column by another name")
        << QByteArray(header).replace("roaming", "abroad") << "1 roaming:";
    QTest::newRow("binary contents") << QByteArray("\0\xFF\0\xFF", 4) << "1 profile:";
}

void CsvFormatTest::tellsAWrongHeader()
{
    QFETCH(QByteArray, csv);
    QFETCH(QString, place);
    const QString error = errorOf(csv);
    QVERIFY2(error.startsWith(place), qPrintable(error));
}

QTEST_GUILESS_MAIN(CsvFormatTest)

#include "tst_csvformat.moc"
