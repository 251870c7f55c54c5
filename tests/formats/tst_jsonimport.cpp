// SPDX-License-Identifier: MIT
#include "formats/ImportReader.h"
#include "formats/InputError.h"
#include "formats/JsonFormat.h"
#include "formats/JsonText.h"
#include "tests/Many.h"
#include "tests/formats/Documents.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

using namespace formats;

class JsonImportTest : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatIsWritten();
    void isWrittenAsAllJson();
    void takesAFileWithoutDetails();
    void tellsWhereAndWhy_data();
    void tellsWhereAndWhy();
    void refusesWhatWouldFillTheMemory();
    void readsMoreThanTheMemoryIsToHold();
    void saysWhereThereIsNoRoom();
};

namespace
{

history::Connection sample()
{
    history::Connection connection;
    connection.key = 7;
    connection.profile = "a\"b\\c\n\xF0\x9F\x93\xB6";
    connection.startUtc = 1706738400;
    connection.endUtc = 1706745600;
    connection.connectedSeconds = 7200;
    connection.uploadedBytes = 9223372036854775807;
    connection.downloadedBytes = 30;
    connection.interfaceName = "wwan0";
    connection.operatorName = "Example";
    connection.operatorCode = "26201";
    connection.sim = "8949000000000001234";
    connection.roaming = history::atHome;
    connection.technology = "lte";
    connection.hours = {{1706738400, false, 9223372036854775806, 10},
                        {1706738400, true, 1, 0},
                        {1706742000, false, 0, 20}};
    return connection;
}

std::vector<history::Connection> imported(QByteArray json)
{
    QBuffer device(&json);
    device.open(QIODevice::ReadOnly);
    const auto reader = jsonImport({});
    reader->read({device, history::translatable("formats", "input"), 0}, [](std::int64_t) {});
    return connectionsOf(reader->imported());
}

/// Why it is not imported; empty if it is.
QByteArray refusalOf(const QByteArray &json)
{
    try {
        imported(json);
    } catch (const InputError &error) {
        return error.what();
    }
    return {};
}

QByteArray object(const QByteArray &from = {}, const QByteArray &to = {})
{
    return QByteArray(R"({"profile":"a","start":"2024-01-31T22:00:00Z",)"
                      R"("end":"2024-01-31T23:00:00Z","connected_seconds":1,"uploaded_bytes":3,)"
                      R"("downloaded_bytes":4,"ending":"normal","interface":"",)"
                      R"("hours":[{"hour":"2024-01-31T22:00:00Z","roaming":false,)"
                      R"("uploaded_bytes":3,"downloaded_bytes":4}]})")
        .replace(from, to);
}

/// Of which hardly one fits into the memory that an import takes.
std::vector<history::Connection> largeConnections()
{
    std::vector<history::Connection> connections(5, sample());
    for (std::size_t i = 0; i < connections.size(); ++i) {
        connections[i].profile = std::string(700000, static_cast<char>('a' + i));
        if (i % 2 == 1)
            connections[i].hours.clear();
    }
    return connections;
}

} // namespace

void JsonImportTest::readsWhatIsWritten()
{
    const QByteArray json = toJsonText({sample(), history::Connection()});
    auto connections = imported(json);
    QCOMPARE(connections.size(), std::size_t(2));
    QCOMPARE(connections[0].key, std::int64_t(0));
    connections[0].key = sample().key;
    QCOMPARE(toJsonText(connections), json);
}

void JsonImportTest::isWrittenAsAllJson()
{
    history::Connection odd;
    odd.profile = std::string("\x01\t\x7f/<\"\\ ", 8) + std::string(1, '\0');
    odd.operatorName = "Ü\xF0\x9F\x93\xB6";
    odd.ending = "not UTF-8: \xFF\xC3";
    for (const std::vector<history::Connection> &connections :
         {std::vector<history::Connection>(), {sample()}, {odd, sample(), odd}}) {
        const QByteArray json = toJsonText(connections);
        const Json parsed = Json::parse(json.toStdString());
        QCOMPARE(parsed.size(), connections.size());
        QCOMPARE(json, jsonText(parsed));
    }
    const Json parsed = Json::parse(toJsonText({odd}).toStdString());
    QCOMPARE(parsed[0]["profile"].get<std::string>(), odd.profile);
    QCOMPARE(parsed[0]["ending"].get<std::string>(),
             std::string("not UTF-8: \xEF\xBF\xBD\xEF\xBF\xBD"));
}

void JsonImportTest::takesAFileWithoutDetails()
{
    QCOMPARE(imported("[" + object() + "," + object() + "]").size(), std::size_t(2));
    QCOMPARE(imported(" [ ]\n").size(), std::size_t(0));
}

void JsonImportTest::tellsWhereAndWhy_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QByteArray>("told");

    const auto row = [](const char *name, const QByteArray &json, const char *told) {
        QTest::newRow(name) << json << QByteArray(told);
    };
    const auto second = [](const QByteArray &from, const QByteArray &to) {
        return "[" + object() + ",\n" + object(from, to) + "]";
    };
    row("nothing", "", "input: parse error at line 1, column 1");
    row("cut", "[" + object() + ",\n{", "input: parse error at line 2, column 2");
    row("more behind it", "[] x", "input: parse error at line 1, column 4");
    row("not UTF-8", "[{\"profile\":\"\xFF\"}]", "invalid string: ill-formed UTF-8");
    row("an object", "{}", "the file has to be an array of objects");
    row("a number", "17", "the file has to be an array of objects");
    row("numbers", "[1]", "input, connection 1: it is no object");
    row("arrays", "[[]]", "input, connection 1: it is no object");
    row("too deep", "[{\"hours\":[{\"hour\":[[[[", "nested more deeply");
    row("a member too many", second("\"profile\"", "\"apn\":\"\",\"profile\""),
        "input, connection 2: member \"apn\": a connection has no such member");
    row("a member too few", second("\"connected_seconds\":1,", ""),
        "input, connection 2: member \"connected_seconds\": it is missing");
    row("a number for a text", second("\"a\"", "1"), "member \"profile\": it is no text");
    row("a text for a number", second(":3,", ":\"3\","),
        "member \"uploaded_bytes\": it is no number");
    row("a fraction", second(":3,", ":3.5,"), "\"3.5\" is not a whole number");
    row("less than nothing", second(":3,", ":-3,"), "\"-3\" is negative");
    row("too much", second(":3,", ":9223372036854775808,"), "is more than 9223372036854775807");
    row("more than a number can be", second(":3,", ":3e888,"), "number overflow parsing '3e888'");
    row("a NUL", second("\"a\"", "\"\\u0000\""), "the text holds a NUL character");
    row("no time", second("2024-01-31T23:00:00Z", "yesterday"), "member \"end\": ");
    row("an end before the start", second("2024-01-31T23:00:00Z", "2024-01-31T21:00:00Z"),
        "is before the start");
    row("no hour",
        second("\"2024-01-31T22:00:00Z\",\"roaming\"", "\"2024-01-31T22:30:00Z\",\"roaming\""),
        "member \"hour\": it is no whole hour of UTC");
    row("neither home nor roaming", second("false", "\"home\""),
        "member \"roaming\": it is neither true nor false");
    row("hours that lack bytes",
        second("\"uploaded_bytes\":3,\"downloaded_bytes\":4}]",
               "\"uploaded_bytes\":3,\"downloaded_bytes\":3}]"),
        "the hours do not add up");
    row("hours that are none", second("\"hours\":[{", "\"hours\":[3,{"), "it is no object");
    const QByteArray hour = object().mid(object().indexOf("{\"hour\""));
    row("an hour twice", "[" + object().chopped(2) + "," + hour + "]",
        "member \"hours\": an hour is there twice");
}

void JsonImportTest::tellsWhereAndWhy()
{
    QFETCH(QByteArray, json);
    QFETCH(QByteArray, told);
    const QByteArray sentence = refusalOf(json);
    QVERIFY2(sentence.contains(told), sentence);
    QVERIFY2(sentence.endsWith(". Nothing was imported."), sentence);
}

void JsonImportTest::refusesWhatWouldFillTheMemory()
{
    QVERIFY(!refusalOf("[{\"profile\":\"" + QByteArray(many(20000000), 'x')).isEmpty());
    QVERIFY(!refusalOf(QByteArray(many(20000000), '[')).isEmpty());
}

void JsonImportTest::readsMoreThanTheMemoryIsToHold()
{
    const auto given = largeConnections();
    auto connections = imported(toJsonText(given));
    QCOMPARE(connections.size(), given.size());
    for (std::size_t i = 0; i < given.size(); ++i)
        connections[i].key = given[i].key;
    QVERIFY(toJsonText(connections) == toJsonText(given));
}

void JsonImportTest::saysWhereThereIsNoRoom()
{
    const QTemporaryDir folder;
    const QByteArray gone = folder.filePath("gone").toUtf8();
    const QByteArray former = qgetenv("TMPDIR");
    qputenv("TMPDIR", gone);
    const QByteArray refusal = refusalOf(toJsonText(largeConnections()));
    const QByteArray small = refusalOf(toJsonText({sample()}));
    former.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", former);
    QVERIFY2(refusal.contains('"' + gone + '"'), refusal.constData());
    QVERIFY2(refusal.contains("Nothing was imported"), refusal.constData());
    QCOMPARE(small, QByteArray());
}

QTEST_GUILESS_MAIN(JsonImportTest)

#include "tst_jsonimport.moc"
