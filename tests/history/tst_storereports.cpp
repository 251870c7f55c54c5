// SPDX-License-Identifier: MIT
#include "StoreErrorNames.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "history/ConnectionSpool.h"
#include "history/StoreReports.h"

#include <SQLiteCpp/Database.h>

#include <QTest>

#include <limits>

using namespace history;

namespace
{

constexpr std::int64_t hour = 1717372800;

Connection used(const std::string &profile, const std::string &roaming, std::int64_t sent)
{
    Connection used = connection(profile, hour, hour + 60);
    used.connectedSeconds = 60;
    used.roaming = roaming;
    used.uploadedBytes = sent;
    used.downloadedBytes = 2 * sent;
    return used;
}

QString sumsIn(const std::string &path)
{
    const auto sums = connectionSums(path);
    if (!sums)
        return nameOf(sums.error().kind);
    QStringList texts;
    for (const ConnectionSum &sum : sums.value())
        texts << QString("%1%2 %3 %4 %5 %6")
                     .arg(QString::fromStdString(sum.profile + sum.sim),
                          sum.isRoaming ? "/roaming" : "")
                     .arg(sum.connections)
                     .arg(sum.connectedSeconds)
                     .arg(sum.uploadedBytes)
                     .arg(sum.downloadedBytes);
    return texts.join(", ");
}

/// The last one, then the removed ones.
QString keysGivenBy(const std::string &path)
{
    const auto keys = givenKeys(path);
    if (!keys)
        return nameOf(keys.error().kind);
    QString text = QString::number(keys.value().last);
    for (const KeyRange &range : keys.value().removed)
        text += QString(" %1-%2").arg(range.first).arg(range.last);
    return text;
}

OpenConnection begunAt(std::int64_t utc)
{
    OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.startUtc = open.updatedUtc = utc;
    return open;
}

} // namespace

/// What is told of a whole history, and what is put into one from a spool.
class StoreReportsTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void sumsUpWhereBytesWereMoved();
    void refusesSumsThatAreTooLarge();
    void tellsWhichKeysWereGiven();
    void tellsOfNoHistory();
    void keepsASpoolInTheOrder();
    void storesNothingOfASpoolWithABadRecord();
    void refusesOpenConnectionsThatCannotBe();
    void copiesTheHistory();
    void saysThatItsCopyIsInUse();
    void knowsWhatWasTakenOver();
    void keepsWhatLinksShow();
    void tellsWhatIsWrongWithTheFile_data();
    void tellsWhatIsWrongWithTheFile();
};

void StoreReportsTest::sumsUpWhereBytesWereMoved()
{
    Connection abroadLater = used("web", atHome, 10);
    abroadLater.hours = {{hour, false, 4, 8}, {hour, true, 6, 12}};
    Store store = storeWith(m_path, {used("iot", abroad, 1), abroadLater, used("web", "", 100)});
    // Without hours at home; a connection counts where it began.
    QCOMPARE(sumsIn(m_path), QString("iot 0 0 1 2, iot/roaming 1 60 0 0, web 2 120 104 208, "
                                     "web/roaming 0 0 6 12"));
    OpenConnection open;
    static_cast<ConnectionBase &>(open) = used("web", atHome, 5);
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.updatedUtc = hour + 60;
    open.hours = {{hour, true, 5, 10}};
    QVERIFY(store.begin(open));
    QCOMPARE(sumsIn(m_path), QString("iot 0 0 1 2, iot/roaming 1 60 0 0, web 3 180 104 208, "
                                     "web/roaming 0 0 11 22"));
}

void StoreReportsTest::refusesSumsThatAreTooLarge()
{
    Connection large = used("large", atHome, 0);
    large.downloadedBytes = std::numeric_limits<std::int64_t>::max();
    Store store = storeWith(m_path, {large});
    QCOMPARE(sumsIn(m_path), QString("large 1 60 0 9223372036854775807"));
    // The sum of what has hours and what has none.
    Connection one = connection("large", hour + 1, hour + 2);
    one.downloadedBytes = 1;
    one.hours = {{hour, false, 0, 1}};
    QVERIFY(store.add(one));
    QCOMPARE(sumsIn(m_path), QString("BadRecord"));
    QVERIFY(store.remove({2}));
    one.hours.clear();
    QVERIFY(store.add(one));
    QCOMPARE(sumsIn(m_path), QString("BadRecord"));
}

void StoreReportsTest::tellsWhichKeysWereGiven()
{
    Store store = storeWith(m_path, numberedConnections(7));
    QCOMPARE(keysGivenBy(m_path), QString("7"));
    QVERIFY(store.remove({1, 3, 4}));
    QCOMPARE(keysGivenBy(m_path), QString("7 1-1 3-4"));
    QVERIFY(store.remove({7}));
    QCOMPARE(keysGivenBy(m_path), QString("7 1-1 3-4 7-7"));
    QVERIFY(store.remove({2, 5, 6}));
    QCOMPARE(keysGivenBy(m_path), QString("7 1-7"));
}

void StoreReportsTest::tellsOfNoHistory()
{
    QCOMPARE(sumsIn(m_path), QString());
    QCOMPARE(keysGivenBy(m_path), QString("0"));
    writeFile(QString::fromStdString(m_path), "no database, but long enough to be a file of one");
    QCOMPARE(sumsIn(m_path), QString("NotAStore"));
    QCOMPARE(keysGivenBy(m_path), QString("NotAStore"));
}

void StoreReportsTest::keepsASpoolInTheOrder()
{
    ConnectionSpool spool;
    Connection each;
    QVERIFY(!spool.next(each));
    constexpr std::int64_t count = 2000;
    // More than it keeps in memory.
    for (std::int64_t i = 0; i < count; ++i) {
        each = used(std::string(1000, 'a') + std::to_string(i), abroad, i);
        each.startUtc += i;
        if (i % 2 == 0)
            each.hours = {{hour, true, i, 2 * i}};
        else
            each.hours.clear();
        spool.add(each);
    }
    QCOMPARE(spool.size(), std::size_t(count));
    QVERIFY(spool.starts().fromUtc <= hour && spool.starts().untilUtc > hour + count - 1);
    for (int times = 0; times < 2; ++times) {
        spool.rewind();
        for (std::int64_t i = 0; i < count; ++i) {
            QVERIFY(spool.next(each));
            QCOMPARE(each.uploadedBytes, i);
            QCOMPARE(each.startUtc, hour + i);
            QCOMPARE(each.roaming, std::string(abroad));
            QCOMPARE(each.hours.size(), std::size_t(i % 2 == 0 ? 1 : 0));
        }
        QVERIFY(!spool.next(each));
    }
    spool.rewind();
    Store store = storeWith(m_path, {});
    QCOMPARE(store.addMissing(spool).value(), std::size_t(count));
    QCOMPARE(store.list().value().back().profile.substr(1000), std::string("1999"));
}

void StoreReportsTest::storesNothingOfASpoolWithABadRecord()
{
    ConnectionSpool spool;
    spool.add(used("first", "", 1));
    spool.add(used("second", "nowhere", 1));
    Store store = storeWith(m_path, {});
    const auto added = store.addMissing(spool);
    QVERIFY(!added);
    QCOMPARE(nameOf(added.error().kind), "BadRecord");
    const QString message = QString::fromStdString(added.error().message);
    QVERIFY2(message.contains("connection 2 of 2") && message.contains("\"nowhere\""),
             qPrintable(message));
    QCOMPARE(store.count().value(), std::int64_t(0));
}

void StoreReportsTest::refusesOpenConnectionsThatCannotBe()
{
    Store store = storeWith(m_path, {});
    OpenConnection open = begunAt(hour);
    open.hours = {{hour + 1, false, 0, 0}};
    const auto begun = store.begin(open);
    QVERIFY(!begun);
    QVERIFY(QString::fromStdString(begun.error().message).contains("not the beginning of an hour"));
    open.hours.clear();
    open.uploadedBytes = -1;
    QVERIFY(!store.begin(open));
    QVERIFY(store.listOpen().value().empty());
}

void StoreReportsTest::copiesTheHistory()
{
    const Store store = storeWith(m_path, numberedConnections(3));
    const std::string copy = m_path + ".copy";
    writeFile(QString::fromStdString(copy), {});
    QVERIFY(store.copyTo(copy));
    QCOMPARE(profilesIn(copy), profilesIn(m_path));
    QVERIFY(!QFile::exists(QString::fromStdString(copy) + "-wal"));
    const auto failed = store.copyTo(m_folder->path().toStdString() + "/missing/copy");
    QVERIFY(!failed);
    QCOMPARE(nameOf(failed.error().kind), "WriteFailed");
}

void StoreReportsTest::saysThatItsCopyIsInUse()
{
    const Store store = storeWith(m_path, numberedConnections(3));
    const std::string copy = m_path + ".copy";
    SQLite::Database other(copy, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    other.exec("BEGIN");
    QCOMPARE(other.execAndGet("SELECT count(*) FROM sqlite_schema").getInt(), 0);
    const auto failed = store.copyTo(copy);
    QVERIFY(!failed);
    QCOMPARE(nameOf(failed.error().kind), "WriteFailed");
    const QString sentence = QString::fromStdString(failed.error().message);
    QVERIFY2(sentence.contains("database is locked"), qPrintable(sentence));
    QCOMPARE(profilesIn(m_path), QString("0 1 2"));
}

void StoreReportsTest::knowsWhatWasTakenOver()
{
    Store store = storeWith(m_path, {});
    OpenConnection open = begunAt(hour);
    QVERIFY(!store.wasTakenOver("file 1").value());
    const auto begun = store.begin(open);
    QVERIFY(begun && store.checkpoint(begun.value(), "file 1"));
    QVERIFY(store.wasTakenOver("file 1").value());
    QVERIFY(!store.wasTakenOver("file 2").value());
    QCOMPARE(store.forgetOrigins().value(), std::int64_t(1));
    QVERIFY(!store.wasTakenOver("file 1").value());
}

void StoreReportsTest::keepsWhatLinksShow()
{
    Store store = storeWith(m_path, {});
    const SeenLink gone{"boot 1", 3, "wwan0", 5, 6, hour};
    const SeenLink other{"boot 1", 4, "usb0", 7, 8, hour};
    QCOMPARE(store.see({gone, other}).value(), std::size_t(0));
    // The same name after a restart.
    const SeenLink anew{"boot 2", 2, "wwan0", 1, 2, hour + 60};
    QCOMPARE(store.see({anew}, {used("nobody has watched", "", 9)}).value(), std::size_t(1));
    QCOMPARE(profilesIn(m_path), QString("nobody has watched"));
    QVERIFY(!store.see({gone}, {used("no roaming", "nowhere", 9)}));
    const auto seen = store.listSeen().value();
    QCOMPARE(seen.size(), std::size_t(2));
    QCOMPARE(seen[0].interfaceName, std::string("usb0"));
    QCOMPARE(seen[1].bootId, std::string("boot 2"));
    QCOMPARE(seen[1].downloaded, std::int64_t(2));
    QCOMPARE(seen[1].seenUtc, hour + 60);
}

void StoreReportsTest::tellsWhatIsWrongWithTheFile_data()
{
    QTest::addColumn<QByteArray>("unusedPages");
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("problem");

    const QByteArray none(4, '\0');
    QTest::newRow("nothing") << none << "SELECT 1"
                             << "";
    QTest::newRow("a value that cannot be")
        << none << "UPDATE connection SET uploaded_bytes = -1 WHERE key = 2"
        << "Key 2: ";
    QTest::newRow("pages that are not there") << QByteArray("\0\0\0\5", 4) << "SELECT 1"
                                              << "5";
}

void StoreReportsTest::tellsWhatIsWrongWithTheFile()
{
    QFETCH(QByteArray, unusedPages);
    QFETCH(QString, sql);
    QFETCH(QString, problem);
    storeWith(m_path, numberedConnections(3));
    runSql(m_path, sql.toStdString());
    const QString file = QString::fromStdString(m_path);
    constexpr int unusedPagesOffset = 36;
    writeFile(file, contentsOf(file).replace(unusedPagesOffset, 4, unusedPages));
    const auto examined = Store::openForReading(m_path).value().examine();
    QVERIFY(examined);
    QCOMPARE(examined.value().connections, std::size_t(3));
    QCOMPARE(examined.value().problems.size(), std::size_t(problem.isEmpty() ? 0 : 1));
    if (!problem.isEmpty())
        QVERIFY(QString::fromStdString(examined.value().problems[0]).contains(problem));
}

QTEST_GUILESS_MAIN(StoreReportsTest)
#include "tst_storereports.moc"
