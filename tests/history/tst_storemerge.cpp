// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "tests/Many.h"

#include <QTest>

#include <algorithm>

#include <stdexcept>

using history::Connection;
using history::Store;

using Connections = std::vector<Connection>;
Q_DECLARE_METATYPE(Connections)

/// Storing what logs tell, of which they may have lost a part.
class StoreMergeTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void knowsAConnectionAgain_data();
    void knowsAConnectionAgain();
    void addsNothingTheSecondTime();
    void completesTheStoredOneUnderANewKey();
    void leavesEqualOnesAlone();
    void keepsNothingWhenTheListenerThrows();
    void pairsManyOfOneIdentity();
};

namespace
{

/// Of 30 s until 100, with these names and this start.
Connection logged(const std::string &interface, const std::string &profile = "p",
                  std::int64_t start = 70)
{
    Connection given = connection(profile, start, 100);
    given.connectedSeconds = 30;
    given.interfaceName = interface;
    return given;
}

Connection changed(std::int64_t Connection::*field)
{
    Connection given = logged("ppp0");
    given.*field = 31;
    return given;
}

bool changeNothing(Connection & /*stored*/, std::size_t /*index*/)
{
    return false;
}

QString outcomeOfMerge(const history::Result<Store::Merged> &merged)
{
    return merged ? QString("%1 added, %2 completed")
                        .arg(merged.value().added)
                        .arg(merged.value().completed)
                  : QString::fromStdString(merged.error().message);
}

} // namespace

void StoreMergeTest::knowsAConnectionAgain_data()
{
    QTest::addColumn<Connections>("stored");
    QTest::addColumn<Connections>("given");
    QTest::addColumn<int>("added");

    const Connections one = {logged("ppp0")};
    const Connections unknown = {logged("")};
    const Connections two = {logged("ppp0"), logged("ppp1")};
    QTest::newRow("the same") << one << one << 0;
    QTest::newRow("another profile") << one << Connections{logged("ppp0", "q")} << 0;
    QTest::newRow("another start") << one << Connections{logged("ppp0", "p", 69)} << 0;
    QTest::newRow("no interface in the store") << unknown << one << 0;
    QTest::newRow("no interface in the log") << one << unknown << 0;
    QTest::newRow("another interface") << one << Connections{logged("ppp1")} << 1;
    QTest::newRow("another end") << one << Connections{changed(&Connection::endUtc)} << 1;
    QTest::newRow("another connected time")
        << one << Connections{changed(&Connection::connectedSeconds)} << 1;
    QTest::newRow("other bytes sent")
        << one << Connections{changed(&Connection::uploadedBytes)} << 1;
    QTest::newRow("other bytes received")
        << one << Connections{changed(&Connection::downloadedBytes)} << 1;
    QTest::newRow("two of one second in one log") << Connections() << two << 2;
    QTest::newRow("two, of which one is there") << one << two << 1;
    QTest::newRow("two, of which one is there without its interface") << unknown << two << 1;
    QTest::newRow("two of unknown interface, of which one is there")
        << one << Connections{logged(""), logged("")} << 1;
    QTest::newRow("one that knows its interface has the choice before one that does not")
        << two << Connections{logged(""), logged("ppp0", "q")} << 0;
    QTest::newRow("one more than is there")
        << two << Connections{logged("", "x"), logged("ppp1", "q"), logged("ppp0", "q")} << 1;
}

void StoreMergeTest::knowsAConnectionAgain()
{
    QFETCH(Connections, stored);
    QFETCH(Connections, given);
    QFETCH(int, added);
    Store store = storeWith(m_path, stored);
    QCOMPARE(outcomeOfMerge(store.merge(given, changeNothing)),
             QString("%1 added, 0 completed").arg(added));
    QCOMPARE(int(store.list().value().size()), int(stored.size()) + added);
}

void StoreMergeTest::addsNothingTheSecondTime()
{
    Store store = storeWith(m_path, {});
    const Connections given = {logged("ppp0"), logged(""), logged("ppp0"), logged("ppp1", "q")};
    QCOMPARE(outcomeOfMerge(store.merge(given, changeNothing)), QString("4 added, 0 completed"));
    QCOMPARE(outcomeOfMerge(store.merge(given, changeNothing)), QString("0 added, 0 completed"));
    QCOMPARE(outcomeOfMerge(store.merge({}, changeNothing)), QString("0 added, 0 completed"));
}

void StoreMergeTest::completesTheStoredOneUnderANewKey()
{
    Store store = storeWith(m_path, {connection("other", 1, 2), logged("", "p", 70)});
    const auto before = store.list().value();
    const auto merged = store.merge({logged("ppp0", "full", 60)}, [](Connection &stored, auto) {
        stored.profile = "full";
        stored.interfaceName = "ppp0";
        stored.startUtc = 60;
        return true;
    });
    QCOMPARE(outcomeOfMerge(merged), QString("0 added, 1 completed"));
    const auto after = store.list().value();
    QCOMPARE(after.size(), std::size_t(2));
    QCOMPARE(after[0].profile, std::string("other"));
    // Who knows it by its former key learns that it has changed.
    QVERIFY(after[1].key > std::max(before[0].key, before[1].key));
    QCOMPARE(after[1].profile, std::string("full"));
    QCOMPARE(after[1].interfaceName, std::string("ppp0"));
    QCOMPARE(after[1].startUtc, std::int64_t(60));
    QCOMPARE(after[1].endUtc, std::int64_t(100));
}

void StoreMergeTest::leavesEqualOnesAlone()
{
    Store store = storeWith(m_path, {logged("ppp0"), logged("ppp0", "q")});
    const auto merged =
        store.merge({logged("ppp0", "q"), logged("ppp0")}, [](Connection &stored, auto) {
            stored.profile = "taken over";
            return true;
        });
    QCOMPARE(outcomeOfMerge(merged), QString("0 added, 0 completed"));
    QCOMPARE(profilesIn(m_path), QString("p q"));
}

void StoreMergeTest::keepsNothingWhenTheListenerThrows()
{
    Store store = storeWith(m_path, {logged("ppp0")});
    const auto merged = store.merge(
        {logged("ppp0", "q"), logged("ppp1", "r")},
        [](Connection &stored, auto) {
            stored.profile = "q";
            return true;
        },
        [](std::size_t done) {
            if (done == 2)
                throw std::runtime_error("enough");
        });
    QVERIFY(!merged);
    QCOMPARE(profilesIn(m_path), QString("p"));
}

void StoreMergeTest::pairsManyOfOneIdentity()
{
    Connections stored;
    Connections given;
    for (int i = 0; i < many(50000); ++i) {
        stored.push_back(logged("", "p" + std::to_string(i)));
        given.push_back(logged("ppp" + std::to_string(i)));
    }
    Store store = storeWith(m_path, {});
    QVERIFY(store.addMissing(stored));
    QCOMPARE(outcomeOfMerge(store.merge(given, changeNothing)), QString("0 added, 0 completed"));
}

QTEST_GUILESS_MAIN(StoreMergeTest)

#include "tst_storemerge.moc"
