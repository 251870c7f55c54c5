// SPDX-License-Identifier: MIT
#include "KoraStatistics.h"

#include "NamedStore.h"
#include "StorePeer.h"
#include "StoreSamples.h"
#include "history/Store.h"
#include "refhost/libsdk/KoraStatus.h"

#include <QTest>

#include <array>
#include <limits>

using history::Store;

namespace
{

int removeAt(int index)
{
    return KORA_Statistics_ConnRecord_RemoveRecord(index);
}

} // namespace

class KoraNumberingTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_store = std::make_unique<NamedStore>(); }
    void cleanup() { m_store.reset(); }

    void anIndexMeansThePlaceInTheListHandedOut();
    void removingTheFirstPlaceAgainAndAgainEmptiesTheList();
    void aPlaceThatIsGoneMeansTheNextRecordStillThere();
    void aConnectionRecordedMeanwhileSurvives();
    void whatTheListDoesNotHaveCannotBeRemoved();
    void nothingCanBeRemovedBeforeAList();
    void twoProcessesRemoveAtOnce();
    void aRecordRemovedElsewhereFailsOnceAndSparesItsNeighbour();
    void aRecordRemovedElsewhereBehindOneRemovedHereFailsToo();
    void removingTheFirstPlaceEmptiesAListThatAnotherProcessHasThinned();
    void aRemovalThatFailedIsNotCounted();
    void theStoreItselfLeavesTheNumberingAlone();
    void aFailedListLeavesTheNumberingAlone();
    void aListOfAnotherStoreRemovesNothing();
    void followsTheStoreThatIsNamed();
    void sawNothingOfAReplacedFile();

private:
    std::unique_ptr<NamedStore> m_store;
};

void KoraNumberingTest::anIndexMeansThePlaceInTheListHandedOut()
{
    storeWith(m_store->path(), numberedConnections(11));
    QCOMPARE(handOut().records.size(), std::size_t(11));
    QCOMPARE(removeAt(5), int(refhost::KoraOk));
    QCOMPARE(removeAt(9), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_store->path()), QString("0 1 2 3 4 6 7 8 10"));
}

void KoraNumberingTest::removingTheFirstPlaceAgainAndAgainEmptiesTheList()
{
    storeWith(m_store->path(), numberedConnections(50));
    handOut();
    for (int i = 0; i < 50; ++i)
        QCOMPARE(removeAt(0), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_store->path()), QString());
    QCOMPARE(removeAt(0), int(refhost::KoraNoSuchRecord));
}

void KoraNumberingTest::aPlaceThatIsGoneMeansTheNextRecordStillThere()
{
    storeWith(m_store->path(), numberedConnections(5));
    handOut();
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
    QCOMPARE(removeAt(3), int(refhost::KoraOk));
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_store->path()), QString("0 1"));
    QCOMPARE(removeAt(2), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_store->path()), QString("0 1"));
}

void KoraNumberingTest::aConnectionRecordedMeanwhileSurvives()
{
    Store store = storeWith(m_store->path(), numberedConnections(3));
    handOut();
    // It sorts before all others, so it would be the first in a newer list.
    QVERIFY(store.add(connection("meanwhile", 1, 2)));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(removeAt(0), int(refhost::KoraOk));
    QCOMPARE(removeAt(0), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_store->path()), QString("meanwhile"));
}

void KoraNumberingTest::whatTheListDoesNotHaveCannotBeRemoved()
{
    storeWith(m_store->path(), numberedConnections(3));
    handOut();
    for (const int index :
         {3, 4, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QCOMPARE(removeAt(index), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_store->path()), QString("0 1 2"));
}

void KoraNumberingTest::nothingCanBeRemovedBeforeAList()
{
    storeWith(m_store->path(), numberedConnections(3));
    // The environment of this process reaches the new one.
    StorePeer fresh;
    QCOMPARE(fresh.tell("remove 0"), QString("ok %1").arg(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_store->path()), QString("0 1 2"));
}

void KoraNumberingTest::twoProcessesRemoveAtOnce()
{
    constexpr int removals = 40;
    storeWith(m_store->path(), numberedConnections(removals + 5));
    std::array<StorePeer, 2> peers;
    for (StorePeer &peer : peers)
        QCOMPARE(peer.tell("list"), QString("ok %1").arg(removals + 5));
    int removed = 0;
    for (int i = 0; i < removals; ++i) {
        for (StorePeer &peer : peers)
            peer.send("remove 0");
        for (StorePeer &peer : peers)
            removed += peer.answer() == "ok 0" ? 1 : 0;
    }
    // Each record was taken once, and none that neither of them had come to.
    QCOMPARE(removed, removals);
    QCOMPARE(profilesIn(m_store->path()), QString("40 41 42 43 44"));
}

void KoraNumberingTest::aRecordRemovedElsewhereFailsOnceAndSparesItsNeighbour()
{
    storeWith(m_store->path(), numberedConnections(4));
    handOut();
    StorePeer peer;
    QCOMPARE(peer.tell("list"), QString("ok 4"));
    QCOMPARE(peer.tell("remove 1"), QString("ok 0"));
    QCOMPARE(removeAt(1), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_store->path()), QString("0 2 3"));
    // From now on it counts as removed here.
    QCOMPARE(removeAt(1), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_store->path()), QString("0 3"));
}

void KoraNumberingTest::aRecordRemovedElsewhereBehindOneRemovedHereFailsToo()
{
    storeWith(m_store->path(), numberedConnections(4));
    handOut();
    QCOMPARE(removeAt(0), int(refhost::KoraOk));
    StorePeer peer;
    QCOMPARE(peer.tell("list"), QString("ok 3"));
    QCOMPARE(peer.tell("remove 0"), QString("ok 0"));
    QCOMPARE(removeAt(0), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_store->path()), QString("2 3"));
    QCOMPARE(removeAt(0), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_store->path()), QString("3"));
}

void KoraNumberingTest::removingTheFirstPlaceEmptiesAListThatAnotherProcessHasThinned()
{
    storeWith(m_store->path(), numberedConnections(6));
    handOut();
    StorePeer peer;
    QCOMPARE(peer.tell("list"), QString("ok 6"));
    for (const char *const elsewhere : {"remove 0", "remove 3", "remove 5"})
        QCOMPARE(peer.tell(elsewhere), QString("ok 0"));
    int removed = 0;
    for (int i = 0; i < 6; ++i)
        removed += removeAt(0) == refhost::KoraOk ? 1 : 0;
    QCOMPARE(removed, 3);
    QCOMPARE(profilesIn(m_store->path()), QString());
}

void KoraNumberingTest::aRemovalThatFailedIsNotCounted()
{
    storeWith(m_store->path(), numberedConnections(3));
    handOut();
    const std::string version = std::to_string(versionOf(m_store->path()));
    runSql(m_store->path(), "PRAGMA user_version = 99");
    QCOMPARE(removeAt(1), int(refhost::KoraNewerStore));
    runSql(m_store->path(), "PRAGMA user_version = " + version);
    QCOMPARE(removeAt(1), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_store->path()), QString("0 2"));
}

void KoraNumberingTest::theStoreItselfLeavesTheNumberingAlone()
{
    Store store = storeWith(m_store->path(), numberedConnections(4));
    handOut();
    const auto listed = store.list();
    QVERIFY(listed);
    QVERIFY(store.remove({listed.value()[0].key}));
    QVERIFY(store.list());
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_store->path()), QString("1 3"));
}

void KoraNumberingTest::aFailedListLeavesTheNumberingAlone()
{
    storeWith(m_store->path(), numberedConnections(4));
    handOut();
    const std::string store = m_store->path();
    m_store->use("diary.txt");
    writeFile(QString::fromStdString(m_store->path()), "not a store");
    QCOMPARE(handOut().status, int(refhost::KoraNotAStore));
    qputenv("NETINFO_STORE", store.c_str());
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
    QCOMPARE(profilesIn(store), QString("0 1 3"));
}

void KoraNumberingTest::aListOfAnotherStoreRemovesNothing()
{
    storeWith(m_store->path(), numberedConnections(4));
    handOut();
    m_store->use("other.db");
    storeWith(m_store->path(), numberedConnections(4));
    QCOMPARE(removeAt(2), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_store->path()), QString("0 1 2 3"));
}

void KoraNumberingTest::followsTheStoreThatIsNamed()
{
    storeWith(m_store->path(), numberedConnections(4));
    QCOMPARE(handOut().records.size(), std::size_t(4));
    m_store->use("other.db");
    storeWith(m_store->path(), numberedConnections(2));
    QCOMPARE(handOut().records.size(), std::size_t(2));
    QCOMPARE(removeAt(1), int(refhost::KoraOk));
    QCOMPARE(profilesIn(m_store->path()), QString("0"));
}

void KoraNumberingTest::sawNothingOfAReplacedFile()
{
    storeWith(m_store->path(), numberedConnections(4));
    const std::string other = m_store->path() + ".other";
    storeWith(other, numberedConnections(4));
    handOut();
    QCOMPARE(std::rename(other.c_str(), m_store->path().c_str()), 0);
    QCOMPARE(removeAt(2), int(refhost::KoraNoSuchRecord));
    QCOMPARE(profilesIn(m_store->path()), QString("0 1 2 3"));
    QCOMPARE(handOut().records.size(), std::size_t(4));
    QCOMPARE(removeAt(2), int(refhost::KoraOk));
}

QTEST_GUILESS_MAIN(KoraNumberingTest)

#include "tst_koranumbering.moc"
