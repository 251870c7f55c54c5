// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <QTest>

#include <sqlite3.h>

#include <limits>
#include <stdexcept>

using history::Connection;
using history::Store;

Q_DECLARE_METATYPE(history::Connection)

namespace
{

constexpr std::int64_t latest = 4294967295;
constexpr std::int64_t longest = 2147483647;

Connection withField(std::int64_t Connection::*field, std::int64_t value)
{
    Connection changed = connection("p", 1, 2);
    changed.*field = value;
    return changed;
}

Connection withText(std::string Connection::*field, const std::string &value)
{
    Connection changed = connection("p", 1, 2);
    changed.*field = value;
    return changed;
}

} // namespace

class StoredRecordsTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void takesValuesAtTheLimits_data();
    void takesValuesAtTheLimits();
    void refusesValuesOutsideTheirRange_data();
    void refusesValuesOutsideTheirRange();

    void addMissingAddsNothingTheSecondTime();
    void addMissingTellsEqualConnectionsByTheirNumber();
    void addMissingTellsConnectionsApartByAnyField_data();
    void addMissingTellsConnectionsApartByAnyField();
    void addMissingKeepsTheOrderOfMany();
    void addMissingReportsEveryConnectionLookedAt();
    void addMissingAddsAllOrNone();
    void addMissingKeepsNothingWhenTheListenerThrows();
    void saysThatThereIsNotEnoughMemory();
    void saysThatTheDatabaseHasNotEnoughMemory();
};

void StoredRecordsTest::takesValuesAtTheLimits_data()
{
    QTest::addColumn<Connection>("given");
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    QTest::newRow("the first second") << connection("p", 0, 0);
    QTest::newRow("the last second") << connection("p", latest, latest);
    QTest::newRow("the longest time") << withField(&Connection::connectedSeconds, longest);
    QTest::newRow("the most bytes sent") << withField(&Connection::uploadedBytes, most);
    QTest::newRow("the most bytes received") << withField(&Connection::downloadedBytes, most);
    QTest::newRow("the longest ending") << withText(&Connection::ending, std::string(31, 'e'));
    QTest::newRow("no interface") << withText(&Connection::interfaceName, "");
    QTest::newRow("the longest profile")
        << withText(&Connection::profile, std::string(1048576, 'p'));
}

void StoredRecordsTest::takesValuesAtTheLimits()
{
    QFETCH(Connection, given);
    Store store = storeWith(m_path, {});
    QVERIFY(store.add(given));
    // Found again as the same, so nothing was cut or wrapped.
    QCOMPARE(outcomeOf(store.addMissing({given})), QString("0"));
}

void StoredRecordsTest::refusesValuesOutsideTheirRange_data()
{
    QTest::addColumn<Connection>("given");
    QTest::addColumn<QString>("sentence");
    const auto range = [](const char *field, const char *value, const char *maximum) {
        return QString("The %1 of the connection is %2, but must lie between 0 and %3.")
            .arg(field, value, maximum);
    };
    const char *const lastSecond = "4294967295";
    const char *const longestTime = "2147483647";
    const char *const mostBytes = "9223372036854775807";
    QTest::newRow("a start before 1970")
        << withField(&Connection::startUtc, -1) << range("start time", "-1", lastSecond);
    QTest::newRow("a start after 2106") << withField(&Connection::startUtc, latest + 1)
                                        << range("start time", "4294967296", lastSecond);
    QTest::newRow("an end before 1970")
        << withField(&Connection::endUtc, -1) << range("end time", "-1", lastSecond);
    QTest::newRow("an end after 2106") << withField(&Connection::endUtc, latest + 1)
                                       << range("end time", "4294967296", lastSecond);
    QTest::newRow("a negative time") << withField(&Connection::connectedSeconds, -5)
                                     << range("connected time", "-5", longestTime);
    QTest::newRow("a time beyond 68 years") << withField(&Connection::connectedSeconds, longest + 1)
                                            << range("connected time", "2147483648", longestTime);
    QTest::newRow("negative bytes sent") << withField(&Connection::uploadedBytes, -1)
                                         << range("number of bytes sent", "-1", mostBytes);
    QTest::newRow("negative bytes received") << withField(&Connection::downloadedBytes, -1)
                                             << range("number of bytes received", "-1", mostBytes);
    QTest::newRow("an ending of 32 bytes")
        << withText(&Connection::ending, std::string(32, 'e'))
        << QString("The ending of the connection, \"%1\", has 32 bytes, but may have 0 to 31.")
               .arg(QString(32, 'e'));
    QTest::newRow("an interface of 32 bytes")
        << withText(&Connection::interfaceName, std::string(32, 'i'))
        << QString("The interface of the connection, \"%1\", has 32 bytes, but may have 0 to 31.")
               .arg(QString(32, 'i'));
    QTest::newRow("a profile of more than a megabyte")
        << withText(&Connection::profile, std::string(1048577, 'p'))
        << QString("The profile of the connection, \"%1...\", has 1048577 bytes, but may have 0 to "
                   "1048576.")
               .arg(QString(64, 'p'));
    QTest::newRow("a profile of more than a megabyte in long characters")
        << withText(&Connection::profile, "x" + QString(600000, QChar(0xe4)).toStdString())
        << QString(
               "The profile of the connection, \"x%1...\", has 1200001 bytes, but may have 0 to "
               "1048576.")
               .arg(QString(31, QChar(0xe4)));
    QTest::newRow("a profile with a NUL")
        << withText(&Connection::profile, std::string("a\0b", 3))
        << QString("The profile of the connection contains a NUL character, but must be text "
                   "without one.");
}

void StoredRecordsTest::refusesValuesOutsideTheirRange()
{
    QFETCH(Connection, given);
    QFETCH(QString, sentence);
    Store store = storeWith(m_path, {});
    const auto added = store.add(given);
    QCOMPARE(outcomeOf(added), QString("BadRecord"));
    QCOMPARE(QString::fromStdString(added.error().message), sentence);
    QCOMPARE(profilesIn(m_path), QString());
}

void StoredRecordsTest::addMissingAddsNothingTheSecondTime()
{
    Store store = storeWith(m_path, {connection("1", 1010, 1015)});
    const auto given = numberedConnections(4);
    QCOMPARE(outcomeOf(store.addMissing(given)), QString("3"));
    QCOMPARE(outcomeOf(store.addMissing(given)), QString("0"));
    QCOMPARE(profilesIn(m_path), QString("0 1 2 3"));
    QCOMPARE(outcomeOf(store.addMissing({})), QString("0"));
}

void StoredRecordsTest::addMissingTellsEqualConnectionsByTheirNumber()
{
    const Connection same = connection("same", 5, 6);
    Store store = storeWith(m_path, {same});
    QCOMPARE(outcomeOf(store.addMissing({same, same, same})), QString("2"));
    QCOMPARE(outcomeOf(store.addMissing({same, same, same})), QString("0"));
    QCOMPARE(outcomeOf(store.addMissing({same})), QString("0"));
    QCOMPARE(profilesIn(m_path), QString("same same same"));
}

void StoredRecordsTest::addMissingTellsConnectionsApartByAnyField_data()
{
    QTest::addColumn<Connection>("other");
    QTest::newRow("profile") << withText(&Connection::profile, "q");
    QTest::newRow("start") << withField(&Connection::startUtc, 0);
    QTest::newRow("end") << withField(&Connection::endUtc, 3);
    QTest::newRow("connected time") << withField(&Connection::connectedSeconds, 9);
    QTest::newRow("bytes sent") << withField(&Connection::uploadedBytes, 9);
    QTest::newRow("bytes received") << withField(&Connection::downloadedBytes, 9);
    QTest::newRow("ending") << withText(&Connection::ending, "lost");
    QTest::newRow("interface") << withText(&Connection::interfaceName, "ppp0");
}

void StoredRecordsTest::addMissingTellsConnectionsApartByAnyField()
{
    QFETCH(Connection, other);
    Store store = storeWith(m_path, {connection("p", 1, 2)});
    QCOMPARE(outcomeOf(store.addMissing({other})), QString("1"));
    QCOMPARE(outcomeOf(store.addMissing({other})), QString("0"));
}

void StoredRecordsTest::addMissingKeepsTheOrderOfMany()
{
    auto given = numberedConnections(100);
    QStringList order;
    for (Connection &each : given) {
        each.startUtc = each.endUtc = 3600;
        order << QString::fromStdString(each.profile);
    }
    given[40].uploadedBytes = 7;
    given[40].hours = {{3600, true, 7, given[40].downloadedBytes}};
    Store store = storeWith(m_path, {});
    QCOMPARE(outcomeOf(store.addMissing(given)), QString("100"));
    QCOMPARE(profilesIn(m_path), order.join(' '));
    const auto hours = store.hours();
    QVERIFY(hours);
    for (const auto &hour : hours.value())
        QCOMPARE(hour.isKnown, hour.profile == given[40].profile);
}

void StoredRecordsTest::addMissingReportsEveryConnectionLookedAt()
{
    Store store = storeWith(m_path, {connection("1", 1010, 1015)});
    std::vector<std::size_t> reported;
    QVERIFY(store.addMissing(numberedConnections(3),
                             [&](std::size_t done) { reported.push_back(done); }));
    QCOMPARE(reported, std::vector<std::size_t>({1, 2, 3}));
}

void StoredRecordsTest::addMissingAddsAllOrNone()
{
    Store store = storeWith(m_path, {});
    auto given = numberedConnections(3);
    given[1].uploadedBytes = -7;
    const auto added = store.addMissing(given);
    QCOMPARE(outcomeOf(added), QString("BadRecord"));
    QCOMPARE(added.error().message,
             std::string("The number of bytes sent of connection 2 of 3 is -7, but must lie "
                         "between 0 and 9223372036854775807."));
    QCOMPARE(profilesIn(m_path), QString());
}

void StoredRecordsTest::addMissingKeepsNothingWhenTheListenerThrows()
{
    Store store = storeWith(m_path, {});
    const auto added = store.addMissing(numberedConnections(3), [](std::size_t done) {
        if (done == 2)
            throw std::runtime_error("enough");
    });
    QVERIFY(!added);
    QVERIFY(QString::fromStdString(added.error().message).contains("enough"));
    QCOMPARE(profilesIn(m_path), QString());
}

void StoredRecordsTest::saysThatThereIsNotEnoughMemory()
{
    Store store = storeWith(m_path, {});
    const auto added =
        store.addMissing(numberedConnections(1), [](std::size_t) { throw std::bad_alloc(); });
    QCOMPARE(outcomeOf(added), QString("CannotOpen"));
    QVERIFY(QString::fromStdString(added.error().message).contains("there is not enough memory"));
    QCOMPARE(profilesIn(m_path), QString());
}

void StoredRecordsTest::saysThatTheDatabaseHasNotEnoughMemory()
{
    const std::string large(1048576, 'p');
    const Store store = storeWith(m_path, {connection(large, 1, 2)});
    sqlite3_hard_heap_limit64(1); // what is in use already stays
    const auto listed = store.list();
    sqlite3_hard_heap_limit64(0);
    sqlite3_soft_heap_limit64(0);
    QCOMPARE(outcomeOf(listed), QString("CannotOpen"));
    const QString sentence = QString::fromStdString(listed.error().message);
    QVERIFY2(sentence.contains("there is not enough memory"), qPrintable(sentence));
    QCOMPARE(profilesIn(m_path), QString::fromStdString(large));
}

QTEST_GUILESS_MAIN(StoredRecordsTest)

#include "tst_storedrecords.moc"
