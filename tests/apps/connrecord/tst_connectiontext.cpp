// SPDX-License-Identifier: MIT
#include "apps/common/Export.h"
#include "apps/connrecord/ConnectionText.h"
#include "tests/formats/Documents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace connrecord;
using namespace formats;
using namespace history;

class ConnectionTextTest : public QObject
{
    Q_OBJECT

private slots:
    void givesTheHeaderAloneWithoutConnections();
    void alignsTheColumns();
    void showsTheEndOfASimAlone();
    void keepsEachConnectionOnOneLine();
    void alignsWideCharacters();
    void writesExactIntegers_data();
    void writesExactIntegers();
    void writesEveryFieldAsJson();
    void writesPieceByPiece();
    void widensColumnsOnTheWay();
};

namespace
{

Connection sample()
{
    Connection connection;
    connection.key = 12;
    connection.profile = "internet.example";
    connection.startUtc = 1717180200;
    connection.endUtc = 1717183800;
    connection.connectedSeconds = 3590;
    connection.uploadedBytes = 31981;
    connection.downloadedBytes = 512;
    connection.interfaceName = "ppp0";
    return connection;
}

} // namespace

void ConnectionTextTest::givesTheHeaderAloneWithoutConnections()
{
    QCOMPARE(toTable({}), QByteArray("KEY  PROFILE  START  END  CONNECTED  UPLOADED  DOWNLOADED  "
                                     "ENDING  INTERFACE  OPERATOR  SIM  ROAMING\n"));
    QCOMPARE(toJsonText({}), QByteArray("[]\n"));
}

void ConnectionTextTest::alignsTheColumns()
{
    Connection other = sample();
    other.key = 3;
    other.profile = "a";
    other.connectedSeconds = 360000;
    other.uploadedBytes = 5368709120;
    other.interfaceName = "";
    QCOMPARE(
        toTable({other, sample()}),
        QByteArray("KEY  PROFILE           START                END                  CONNECTED  "
                   "UPLOADED  DOWNLOADED  ENDING  INTERFACE  OPERATOR  SIM  ROAMING\n"
                   "  3  a                 2024-05-31 20:30:00  2024-05-31 21:30:00  100:00:00   "
                   "5.00 GB     0.50 KB  normal\n"
                   " 12  internet.example  2024-05-31 20:30:00  2024-05-31 21:30:00   00:59:50  "
                   "31.23 KB     0.50 KB  normal  ppp0\n"));
}

void ConnectionTextTest::showsTheEndOfASimAlone()
{
    Connection known = sample();
    known.operatorName = "Operator";
    known.operatorCode = "26201";
    known.sim = "89490200001234567890";
    known.roaming = history::abroad;
    known.technology = "lte";
    const QByteArray table = toTable({known});
    QVERIFY2(table.endsWith("ppp0       Operator  7890  roaming\n"), table.constData());
    const QByteArray json = toJsonText({known});
    for (const char *const value : {"\"operator\": \"Operator\"", "\"operator_code\": \"26201\"",
                                    "\"sim\": \"89490200001234567890\"", "\"roaming\": \"roaming\"",
                                    "\"technology\": \"lte\""})
        QVERIFY2(json.contains(value), value);
}

void ConnectionTextTest::keepsEachConnectionOnOneLine()
{
    Connection connection = sample();
    connection.profile = "a\nb\x1b[2J";
    const QByteArray table = toTable({connection});
    QCOMPARE(table.count('\n'), 2);
    QVERIFY(table.contains("a\\nb\\u001b[2J "));
    QVERIFY(!table.contains('\x1b'));
}

void ConnectionTextTest::alignsWideCharacters()
{
    Connection wide = sample();
    wide.profile = "\xE7\xB6\xB2\xE8\xB7\xAF"; // two characters, four cells
    Connection narrow = sample();
    narrow.profile = "abcd";
    const QList<QByteArray> lines = toTable({wide, narrow}).split('\n');
    QVERIFY(lines[1].contains("\xE7\xB6\xB2\xE8\xB7\xAF     2024"));
    QVERIFY(lines[2].contains("abcd     2024"));
}

void ConnectionTextTest::writesExactIntegers_data()
{
    QTest::addColumn<qint64>("bytes");

    QTest::newRow("0") << qint64(0);
    QTest::newRow("the last that a double holds") << qint64(9007199254740992);
    QTest::newRow("the first that a double does not hold") << qint64(9007199254740993);
    QTest::newRow("one below the largest") << std::numeric_limits<qint64>::max() - 1;
    QTest::newRow("the largest") << std::numeric_limits<qint64>::max();
}

void ConnectionTextTest::writesExactIntegers()
{
    QFETCH(qint64, bytes);
    Connection connection = sample();
    connection.uploadedBytes = bytes;
    const QByteArray json = toJsonText({connection});
    QVERIFY2(json.contains("\"uploaded_bytes\": " + QByteArray::number(bytes) + '\n'), json);
}

void ConnectionTextTest::writesEveryFieldAsJson()
{
    const QByteArray json = toJsonText({sample()});
    const QJsonObject expected = {{"key", 12},
                                  {"profile", "internet.example"},
                                  {"start", "2024-05-31T18:30:00Z"},
                                  {"end", "2024-05-31T19:30:00Z"},
                                  {"connected_seconds", 3590},
                                  {"uploaded_bytes", 31981},
                                  {"downloaded_bytes", 512},
                                  {"ending", "normal"},
                                  {"interface", "ppp0"},
                                  {"operator", ""},
                                  {"operator_code", ""},
                                  {"sim", ""},
                                  {"roaming", ""},
                                  {"technology", ""}};
    QCOMPARE(QJsonDocument::fromJson(json).array(), QJsonArray{expected});
}

void ConnectionTextTest::writesPieceByPiece()
{
    const QTemporaryDir folder;
    auto store = Store::openOrCreate(folder.filePath("connections.db").toStdString());
    std::vector<Connection> connections;
    for (int i = 0; i < 2000; ++i) {
        connections.push_back(sample());
        connections.back().startUtc -= i;
    }
    QVERIFY(store.value().addMissing(connections));
    std::string text;
    std::size_t written = 0;
    std::vector<std::size_t> pieces; // what was written of the connections when each came
    const auto count = common::writeConnections(
        store.value(), {}, common::Running::LeftOut, *csvWriter(),
        [&](std::string_view piece) {
            text += piece;
            pieces.push_back(written);
        },
        [&](std::size_t done) { written = done; });
    QCOMPARE(count.value(), connections.size());
    QVERIFY(pieces.size() > 1 && pieces.front() < connections.size() / 2);
    QCOMPARE(pieces.back(), connections.size());
    QCOMPARE(QByteArray::fromStdString(text), toCsv(store.value().list().value()));
}

void ConnectionTextTest::widensColumnsOnTheWay()
{
    const auto writer = tableWriter();
    std::string text;
    writer->begin(text);
    Connection connection = sample();
    for (int i = 0; i < 999; ++i)
        writer->add(connection, text);
    // The last one that the first widths follow from.
    QCOMPARE(text, std::string());
    connection.profile = "a wider name than before";
    writer->add(connection, text);
    QCOMPARE(QByteArray::fromStdString(text), toTable([&] {
                 std::vector<Connection> first(999, sample());
                 first.push_back(connection);
                 return first;
             }()));
    text.clear();
    connection.profile = "and one that is wider still";
    writer->add(sample(), text);
    writer->add(connection, text);
    writer->end(text);
    const QList<QByteArray> lines = QByteArray::fromStdString(text).split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0].indexOf("2024"), lines[1].indexOf("2024"));
    QCOMPARE(lines[1].indexOf("2024"), 5 + int(connection.profile.size()) + 2);
}

QTEST_GUILESS_MAIN(ConnectionTextTest)

#include "tst_connectiontext.moc"
