// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <QFile>
#include <QTest>

#include <utility>

using history::Connection;
using history::Store;

/// By what whoever watches a store knows that there is something new in it, and what of.
class StoreChangesTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void knowsWhetherItsConnectionsAreTheSame();
    void leavesOpenConnectionsOutOfTheFingerprint();
    void tellsWhetherAnythingHasBeenWritten();
    void knowsWhatItsConnectionsAreOf();
};

void StoreChangesTest::knowsWhetherItsConnectionsAreTheSame()
{
    auto watching = Store::openForReading(m_path);
    const auto fingerprint = [&watching] { return watching.value().fingerprint().value(); };
    QCOMPARE(fingerprint(), std::uint64_t(0));
    auto writing = Store::openOrCreate(m_path);
    const auto first = writing.value().add(connection("first", 100, 100));
    const auto second = writing.value().add(connection("second", 200, 200));
    std::uint64_t expected = 0;
    const auto listed = watching.value().list();
    for (const Connection &stored : listed.value())
        expected += Store::fingerprintOf(stored);
    QCOMPARE(fingerprint(), expected);
    QCOMPARE(writing.value().fingerprint().value(), expected);

    runSql(m_path, "UPDATE connection SET uploaded_bytes = 1 WHERE profile = 'first'");
    QVERIFY(fingerprint() != expected);
    QVERIFY(writing.value().remove({first.value(), second.value()}));
    QCOMPARE(fingerprint(), std::uint64_t(0));
    QCOMPARE(writing.value().fingerprint().value(), std::uint64_t(0));
    // The same again is another connection.
    QVERIFY(writing.value().add(connection("first", 100, 100)));
    QVERIFY(writing.value().add(connection("second", 200, 200)));
    QVERIFY(fingerprint() != expected);
    QVERIFY(writing.value().fingerprint().value() == fingerprint());

    QVERIFY(QFile::remove(QString::fromStdString(m_path)));
    QCOMPARE(fingerprint(), std::uint64_t(0));
}

void StoreChangesTest::leavesOpenConnectionsOutOfTheFingerprint()
{
    auto writing = Store::openOrCreate(m_path);
    QVERIFY(writing.value().add(connection("finished", 100, 100)));
    const auto watching = Store::openForReading(m_path);
    const std::uint64_t before = watching.value().fingerprint().value();
    history::OpenConnection open;
    open.bootId = "boot";
    auto begun = writing.value().begin(open).value();
    QCOMPARE(watching.value().fingerprint().value(), before);
    begun.uploadedBytes = 100;
    QVERIFY(writing.value().checkpoint(begun));
    QCOMPARE(watching.value().fingerprint().value(), before);
    QVERIFY(writing.value().finish(begun, connection("open", 200, 200)));
    QVERIFY(watching.value().fingerprint().value() != before);
}

void StoreChangesTest::tellsWhetherAnythingHasBeenWritten()
{
    const auto watching = Store::openForReading(m_path);
    QCOMPARE(watching.value().revision().value(), std::uint64_t(0));
    std::uint64_t former = 0;
    const auto isNew = [&] {
        const std::uint64_t revision = watching.value().revision().value();
        return std::exchange(former, revision) != revision;
    };
    auto writing = Store::openOrCreate(m_path);
    QVERIFY(isNew());
    QVERIFY(!isNew());
    QVERIFY(writing.value().add(connection("finished", 100, 100)));
    QVERIFY(isNew());
    history::OpenConnection open;
    open.bootId = "boot";
    QVERIFY(writing.value().begin(open));
    QVERIFY(isNew());
    runSql(m_path, "INSERT INTO plan (name, covers, covered, network, counts, month_day) VALUES"
                   " ('plan', 'everything', '', 'both', 'both', 1)");
    QVERIFY(isNew());
    QVERIFY(!isNew());

    // What an own write changes is new as well, and so is another file.
    const std::uint64_t before = writing.value().revision().value();
    QVERIFY(writing.value().removePlan("plan").value());
    QVERIFY(writing.value().revision().value() != before);
    QVERIFY(isNew());
    QVERIFY(QFile::remove(QString::fromStdString(m_path)));
    QVERIFY(isNew());
    QCOMPARE(former, std::uint64_t(0));
}

void StoreChangesTest::knowsWhatItsConnectionsAreOf()
{
    auto store = Store::openForReading(m_path);
    const auto overview = [&store] { return store.value().overview().value(); };
    QVERIFY(!overview().firstUtc);
    QVERIFY(overview().profiles.empty() && overview().sims.empty());
    QVERIFY(!overview().hasConnectionsWithoutSim);
    Connection withSim = connection("web", 300, 400);
    withSim.sim = "8949";
    storeWith(m_path, {withSim, connection("internet", 200, 300), connection("web", 400, 500)});
    QCOMPARE(overview().firstUtc.value(), std::int64_t(200));
    QCOMPARE(overview().profiles, std::vector<std::string>({"internet", "web"}));
    QCOMPARE(overview().sims, std::vector<std::string>({"8949"}));
    QVERIFY(overview().hasConnectionsWithoutSim);
    history::OpenConnection open;
    open.bootId = "boot";
    open.profile = "a new one";
    open.sim = "8948";
    open.startUtc = 100;
    QVERIFY(Store::openOrCreate(m_path).value().begin(open));
    QCOMPARE(overview().firstUtc.value(), std::int64_t(100));
    QCOMPARE(overview().profiles, std::vector<std::string>({"a new one", "internet", "web"}));
    QCOMPARE(overview().sims, std::vector<std::string>({"8948", "8949"}));
}

QTEST_GUILESS_MAIN(StoreChangesTest)

#include "tst_storechanges.moc"
