// SPDX-License-Identifier: MIT
// What somebody has put into a store that its own program would not: it does not run.
#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "history/Store.h"

#include <SQLiteCpp/Database.h>

#include <QTest>

#include <memory>

using history::Store;

class PlantedSchemaTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        StoreTestCase::init();
        storeWith(m_path, numberedConnections(2));
    }

    void isRefused_data();
    void isRefused();
    void doesNotRunWhenPlantedLater();
    void statisticsOfTheQueryPlannerAreNoObstacle();
    void indexesOfColumnsAreNoObstacle();
};

void PlantedSchemaTest::isRefused_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<QString>("name");
    QTest::newRow("a trigger") << QByteArray("CREATE TRIGGER more AFTER INSERT ON connection BEGIN"
                                             " UPDATE connection SET uploaded_bytes = 0; END")
                               << "trigger \"more\"";
    QTest::newRow("a trigger called as a harmless index")
        << QByteArray("CREATE INDEX more ON connection (profile);"
                      "CREATE TRIGGER more AFTER INSERT ON connection BEGIN"
                      " UPDATE connection SET uploaded_bytes = 0; END")
        << "trigger \"more\"";
    QTest::newRow("a view in a table's place")
        << QByteArray("ALTER TABLE connection RENAME TO hidden;"
                      "CREATE VIEW connection AS SELECT * FROM hidden")
        << "table \"hidden\"";
    QTest::newRow("a virtual table in a table's place")
        << QByteArray("DROP TABLE connection; CREATE VIRTUAL TABLE connection USING fts5(profile)")
        << "table \"connection";
    QTest::newRow("a table of another form")
        << QByteArray("ALTER TABLE connection ADD COLUMN note TEXT DEFAULT 'x'")
        << "table \"connection\"";
    QTest::newRow("another table") << QByteArray("CREATE TABLE notes (text)") << "table \"notes\"";
    QTest::newRow("an index that refuses records")
        << QByteArray("CREATE UNIQUE INDEX one ON connection (ending) WHERE start_utc > 2000")
        << "index \"one\"";
    QTest::newRow("an index that computes")
        << QByteArray("CREATE INDEX one ON connection (abs(start_utc))") << "index \"one\"";
    QTest::newRow("an index with a condition")
        << QByteArray("CREATE INDEX one ON connection (ending) WHERE abs(start_utc) > 0")
        << "index \"one\"";
}

void PlantedSchemaTest::isRefused()
{
    QFETCH(QByteArray, sql);
    QFETCH(QString, name);
    runSql(m_path, sql.toStdString());
    const QByteArray before = contentsOf(QString::fromStdString(m_path));
    for (const auto open : {Store::openForReading, Store::openForRecording}) {
        const auto store = open(m_path);
        QCOMPARE(outcomeOf(store), QString("Damaged"));
        const QString sentence = QString::fromStdString(store.error().message);
        QVERIFY2(sentence.contains(name), qPrintable(sentence));
        QVERIFY2(sentence.contains("not one that this program makes"), qPrintable(sentence));
    }
    QCOMPARE(contentsOf(QString::fromStdString(m_path)), before);
}

void PlantedSchemaTest::doesNotRunWhenPlantedLater()
{
    Store store = storeWith(m_path, {});
    runSql(m_path, "CREATE TRIGGER none BEFORE INSERT ON connection"
                   " BEGIN DELETE FROM connection; END");
    QVERIFY(store.add(connection("added", 5000, 5001)));
    QCOMPARE(outcomeOf(store.list()), QString("0 1 added"));
}

void PlantedSchemaTest::statisticsOfTheQueryPlannerAreNoObstacle()
{
    runSql(m_path, "ANALYZE");
    QCOMPARE(profilesIn(m_path), QString("0 1"));
}

void PlantedSchemaTest::indexesOfColumnsAreNoObstacle()
{
    runSql(m_path,
           "CREATE INDEX by_profile ON connection (profile COLLATE NOCASE, start_utc DESC)");
    QCOMPARE(profilesIn(m_path), QString("0 1"));
    Store store = storeWith(m_path, {connection("added", 5000, 5001)});
    QCOMPARE(profilesIn(m_path), QString("0 1 added"));
}

QTEST_GUILESS_MAIN(PlantedSchemaTest)

#include "tst_plantedschema.moc"
