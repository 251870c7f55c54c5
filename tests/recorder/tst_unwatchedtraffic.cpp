// SPDX-License-Identifier: MIT
#include "history/StoreSchema.h"
#include "recorder/ConnectionRecorder.h"

#include "FakeClock.h"
#include "FakeLinks.h"
#include "FakePorts.h"
#include "RecordText.h"
#include "StoreLock.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

using history::Connection;
using history::SeenLink;
using history::Store;
using recorder::ConnectionRecorder;
using recorder::LinkNews;
using recorder::LinkReport;

Q_DECLARE_METATYPE(std::vector<LinkNews>)

/// What links move between the end of one recorder and the start of the next.
class UnwatchedTrafficTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isARecordOfItsOwn();
    void isOfNoUseWithoutBytes();
    void isFoundAfterALineThatWasLost();
    void isFoundAfterARowThatAnOlderVersionLeft();
    void isFoundOnALinkThatHadNoConnection();
    void isNothingOfAConnectionThatIsResumed();
    void isNothingOfAConnectionThatBeginsLater();
    void isNothingOfALinkThatWasNeverSeen();
    void isAllThatACounterShowsThatBeganAnew();
    void isAllThatALinkShowsInAnotherRunOfTheSystem();
    void beginsWithTheSystemAtTheEarliest();
    void isAllThatALinkShowsThatWasMadeAnew();
    void belongsToAPppConnectionThatIsThere();
    void isNotCountedAgainOfAPppInterface_data();
    void isNotCountedAgainOfAPppInterface();
    void doesNotEndBeforeItBegins();
    void isFoundWhateverTheInterfaceIsCalledNow();
    void saysNothingForACounterThatCannotBe();
    void isRecordedOnceTheStoreCanBeWritten_data();
    void isRecordedOnceTheStoreCanBeWritten();
    void leavesOutWhatWasMovedWithoutAConnection();

private:
    /// A recorder that finds these links.
    void start(const std::vector<LinkNews> &links, const QStringList &interfaceNames = {});
    /// It ends; time passes.
    void end();
    void runSql(const char *sql);
    /// The store as its `version` was, with what that one had a place for.
    void makeOlder(std::size_t version);
    std::vector<Connection> records();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    FakeClock m_clock;
    FakeLinks *m_links = nullptr; ///< the recorder's
    std::unique_ptr<ConnectionRecorder> m_recorder;
};

void UnwatchedTrafficTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_clock = FakeClock();
}

void UnwatchedTrafficTest::cleanup()
{
    m_recorder.reset();
    m_folder.reset();
}

void UnwatchedTrafficTest::start(const std::vector<LinkNews> &links,
                                 const QStringList &interfaceNames)
{
    auto source = std::make_unique<FakeLinks>();
    m_links = source.get();
    m_links->atStart = links;
    m_recorder = std::make_unique<ConnectionRecorder>(
        m_path, interfaceNames, std::move(source), std::make_unique<FakePorts>(),
        std::make_unique<FakeClock>(m_clock), shortIntervals);
    QVERIFY(m_recorder->start());
}

void UnwatchedTrafficTest::end()
{
    m_recorder.reset();
    m_clock.pass(600000);
}

void UnwatchedTrafficTest::runSql(const char *sql)
{
    SQLite::Database(m_path.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
}

void UnwatchedTrafficTest::makeOlder(std::size_t version)
{
    const QString newer = m_path + ".newer";
    QVERIFY(QFile::rename(m_path, newer));
    SQLite::Database older(m_path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    for (std::size_t step = 0; step < version; ++step)
        older.exec(history::storeSchema()[step]);
    older.exec("PRAGMA application_id = " + std::to_string(history::storeApplicationId) +
               "; PRAGMA user_version = " + std::to_string(version) + "; ATTACH '" +
               newer.toStdString() + "' AS newer");
    SQLite::Statement tables(older, "SELECT name, group_concat(column) FROM (SELECT t.name,"
                                    " '\"' || c.name || '\"' AS column FROM main.sqlite_schema t,"
                                    " pragma_table_info(t.name) c WHERE t.type = 'table')"
                                    " GROUP BY name");
    std::string copies;
    while (tables.executeStep()) {
        const std::string table = tables.getColumn(0), columns = tables.getColumn(1);
        copies += "INSERT INTO main." + table + " (" + columns + ") SELECT " + columns +
                  " FROM newer." + table + ';';
    }
    older.exec(copies);
}

std::vector<Connection> UnwatchedTrafficTest::records()
{
    return connectionsIn(m_path);
}

void UnwatchedTrafficTest::isARecordOfItsOwn()
{
    start({runningLink(3, "wwan0", 1000, 2000), addressOn(3)});
    m_links->tell(downLink(3, "wwan0", 1100, 2200));
    end();
    start({runningLink(3, "wwan0", 1150, 2260), addressOn(3)});
    m_links->tell(downLink(3, "wwan0", 1157, 2268));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 100 down 200 normal", "wwan0 up 50 down 60 not watched",
                          "wwan0 up 7 down 8 normal"}));
    const Connection unwatched = records().at(1);
    QCOMPARE(unwatched.startUtc, std::int64_t{1700000000});
    QCOMPARE(unwatched.endUtc, std::int64_t{1700000600});
    QCOMPARE(unwatched.connectedSeconds, std::int64_t{0});
    QCOMPARE(unwatched.profile, std::string("wwan0"));
    end();
    start({downLink(3, "wwan0", 1157, 2268)});
    QCOMPARE(recordsIn(m_path).size(), 3);
}

void UnwatchedTrafficTest::isOfNoUseWithoutBytes()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    start({downLink(3, "wwan0", 1000, 2000)});
    QCOMPARE(recordsIn(m_path), QStringList());
}

void UnwatchedTrafficTest::isFoundAfterALineThatWasLost()
{
    start({runningLink(3, "wwan0", 1000, 2000), addressOn(3)});
    m_links->toCome = {runningLink(3, "wwan0", 1100, 2200)};
    end();
    LinkReport again = runningLink(3, "wwan0", 1150, 2260);
    again.carrierLosses = 1;
    start({again, addressOn(3)});
    m_links->tell(downLink(3, "wwan0", 1157, 2268));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 100 down 200 recovered", "wwan0 up 50 down 60 not watched",
                          "wwan0 up 7 down 8 normal"}));
}

/// That one kept no counters but those of the row.
void UnwatchedTrafficTest::isFoundAfterARowThatAnOlderVersionLeft()
{
    start({runningLink(3, "wwan0", 1000, 2000), addressOn(3), downLink(4, "wwan1", 5, 6)});
    m_links->toCome = {runningLink(3, "wwan0", 1100, 2200)};
    end();
    makeOlder(2);
    LinkReport again = runningLink(3, "wwan0", 1150, 2260);
    again.carrierLosses = 1;
    start({again, addressOn(3), downLink(4, "wwan1", 7, 8)});
    m_links->tell(downLink(3, "wwan0", 1157, 2268));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 100 down 200 recovered", "wwan0 up 50 down 60 not watched",
                          "wwan0 up 7 down 8 normal"}));
}

void UnwatchedTrafficTest::isFoundOnALinkThatHadNoConnection()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    start({downLink(3, "wwan0", 1050, 2060)});
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 50 down 60 not watched"));
}

void UnwatchedTrafficTest::isNothingOfAConnectionThatIsResumed()
{
    start({runningLink(3, "wwan0", 1000, 2000), addressOn(3)});
    end();
    start({runningLink(3, "wwan0", 1050, 2060), addressOn(3)});
    m_links->tell(downLink(3, "wwan0", 1057, 2068));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 57 down 68 normal"));
}

void UnwatchedTrafficTest::isNothingOfAConnectionThatBeginsLater()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    start({downLink(3, "wwan0", 1050, 2060)});
    m_links->tell(addressOn(3));
    m_links->tell(runningLink(3, "wwan0", 1057, 2068));
    m_links->tell(downLink(3, "wwan0", 1060, 2070));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 50 down 60 not watched", "wwan0 up 10 down 10 normal"}));
}

void UnwatchedTrafficTest::isNothingOfALinkThatWasNeverSeen()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    QCOMPARE(recordsIn(m_path), QStringList());
    end();
    start({downLink(3, "wwan0", 1000, 2000), runningLink(4, "wwan1", 70, 80), addressOn(4)});
    QCOMPARE(recordsIn(m_path), QStringList());
}

void UnwatchedTrafficTest::isAllThatACounterShowsThatBeganAnew()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    start({downLink(3, "wwan0", 50, 2060)});
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 50 down 60 not watched"));
}

void UnwatchedTrafficTest::isAllThatALinkShowsInAnotherRunOfTheSystem()
{
    start({downLink(3, "wwan0", 1000, 2000), downLink(4, "wwan1", 1000, 2000)});
    end();
    runSql("UPDATE seen_link SET boot_id = 'an earlier one'");
    // Each index is another interface's now.
    start({runningLink(3, "wwan1", 5000, 6000), addressOn(3), downLink(4, "wwan0", 50, 60)});
    m_links->tell(downLink(3, "wwan1", 5007, 6008));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan1 up 5000 down 6000 not watched", "wwan0 up 50 down 60 not watched",
                          "wwan1 up 7 down 8 normal"}));
    end();
    start({downLink(3, "wwan1", 5007, 6008), downLink(4, "wwan0", 50, 60)});
    QCOMPARE(recordsIn(m_path).size(), 3);
}

void UnwatchedTrafficTest::beginsWithTheSystemAtTheEarliest()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    runSql("UPDATE seen_link SET boot_id = 'an earlier one'");
    m_clock.boot = 60000;
    start({downLink(3, "wwan0", 50, 60)});
    QCOMPARE(records().at(0).startUtc, std::int64_t{1700000540});
    QCOMPARE(records().at(0).endUtc, std::int64_t{1700000600});
}

void UnwatchedTrafficTest::isAllThatALinkShowsThatWasMadeAnew()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    start({downLink(9, "wwan0", 50, 60)});
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 50 down 60 not watched"));
    end();
    start({downLink(9, "wwan0", 50, 60)});
    QCOMPARE(recordsIn(m_path).size(), 1);
}

void UnwatchedTrafficTest::belongsToAPppConnectionThatIsThere()
{
    start({runningLink(3, "ppp0", 0, 0), addressOn(3)});
    m_links->tell(goneLink(3, "ppp0", 5, 6));
    end();
    start({runningLink(4, "ppp0", 50, 60), addressOn(4)});
    m_links->tell(goneLink(4, "ppp0", 57, 68));
    QCOMPARE(recordsIn(m_path),
             QStringList({"ppp0 up 5 down 6 normal", "ppp0 up 57 down 68 normal"}));
}

void UnwatchedTrafficTest::isNotCountedAgainOfAPppInterface_data()
{
    QTest::addColumn<int>("uploaded");
    QTest::addColumn<int>("downloaded");
    QTest::addColumn<QString>("unwatched");
    QTest::newRow("without new bytes") << 100 << 200 << QString();
    QTest::newRow("with new bytes")
        << 150 << 260 << QStringLiteral("ppp0 up 50 down 60 not watched");
}

void UnwatchedTrafficTest::isNotCountedAgainOfAPppInterface()
{
    QFETCH(int, uploaded);
    QFETCH(int, downloaded);
    QFETCH(QString, unwatched);
    start({runningLink(3, "ppp0", 0, 0), addressOn(3)});
    m_links->tell(downLink(3, "ppp0", 100, 200));
    end();
    start({runningLink(3, "ppp0", uploaded, downloaded), addressOn(3)});
    m_links->tell(downLink(3, "ppp0", uploaded + 7, downloaded + 8));
    QStringList expected("ppp0 up 100 down 200 normal");
    if (!unwatched.isEmpty())
        expected << unwatched;
    expected << QStringLiteral("ppp0 up 7 down 8 normal");
    QCOMPARE(recordsIn(m_path), expected);
}

void UnwatchedTrafficTest::doesNotEndBeforeItBegins()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    m_clock.utc = 1600000000;
    start({downLink(3, "wwan0", 1050, 2060)});
    QCOMPARE(records().at(0).startUtc, std::int64_t{1600000000});
    QCOMPARE(records().at(0).endUtc, std::int64_t{1600000000});
}

void UnwatchedTrafficTest::isFoundWhateverTheInterfaceIsCalledNow()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    start({downLink(3, "modem", 1050, 2060)}, {QStringLiteral("modem")});
    QCOMPARE(recordsIn(m_path), QStringList("modem up 50 down 60 not watched"));
}

void UnwatchedTrafficTest::saysNothingForACounterThatCannotBe()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    end();
    runSql("UPDATE seen_link SET uploaded = -9223372036854775808, seen_utc = -1");
    start({downLink(3, "wwan0", 1050, 2060)});
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 0 down 60 not watched"));
}

void UnwatchedTrafficTest::isRecordedOnceTheStoreCanBeWritten_data()
{
    QTest::addColumn<std::vector<LinkNews>>("meanwhile");
    QTest::addColumn<QString>("record");
    const LinkNews reset = runningLink(3, "ppp0", 7, 8);
    QTest::newRow("before a connection's end")
        << std::vector<LinkNews>{downLink(3, "ppp0", 157, 268)}
        << QStringLiteral("ppp0 up 7 down 8 normal");
    QTest::newRow("although the counters began anew meanwhile")
        << std::vector<LinkNews>{reset, downLink(3, "ppp0", 17, 28)}
        << QStringLiteral("ppp0 up 10 down 20 counter reset");
}

void UnwatchedTrafficTest::isRecordedOnceTheStoreCanBeWritten()
{
    QFETCH(std::vector<LinkNews>, meanwhile);
    QFETCH(QString, record);
    start({runningLink(3, "ppp0", 0, 0), addressOn(3)});
    m_links->tell(downLink(3, "ppp0", 100, 200));
    end();
    {
        const StoreLock lock(m_path);
        start({runningLink(3, "ppp0", 150, 260), addressOn(3)});
        for (const LinkNews &news : meanwhile)
            m_links->tell(news);
    }
    m_recorder.reset();
    QCOMPARE(recordsIn(m_path), QStringList({"ppp0 up 100 down 200 normal",
                                             "ppp0 up 50 down 60 not watched", record}));
}

void UnwatchedTrafficTest::leavesOutWhatWasMovedWithoutAConnection()
{
    start({downLink(3, "wwan0", 1000, 2000)});
    m_links->tell(downLink(3, "wwan0", 1050, 2060));
    const auto isKept = [this] {
        const auto store = Store::openForReading(m_path.toStdString());
        const auto seen = store.value().listSeen();
        return seen.value().at(0).uploaded == 1050;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isKept(), 30000);
}

QTEST_GUILESS_MAIN(UnwatchedTrafficTest)

#include "tst_unwatchedtraffic.moc"
