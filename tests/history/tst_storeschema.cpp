// SPDX-License-Identifier: MIT
#include "history/SchemaUpgrade.h"

#include <SQLiteCpp/Database.h>

#include <QTest>

#include <exception>

using history::SchemaSteps;
using history::upgradeSchema;

namespace
{

const SchemaSteps oneStep = {"CREATE TABLE fruit (name TEXT);"
                             "INSERT INTO fruit VALUES ('apple')"};

SchemaSteps followedBy(const char *step)
{
    SchemaSteps steps = oneStep;
    steps.push_back(step);
    return steps;
}

int versionOf(SQLite::Database &database)
{
    return database.execAndGet("PRAGMA user_version").getInt();
}

std::string fruitsIn(SQLite::Database &database)
{
    return database.execAndGet("SELECT group_concat(name) FROM fruit").getString();
}

/// What the exception says that `operation` throws, nothing if it throws none.
template <typename Operation>
QString errorOf(Operation operation)
{
    try {
        operation();
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what());
    }
    return {};
}

} // namespace

class StoreSchemaTest : public QObject
{
    Q_OBJECT

private slots:
    void takesEveryStepInANewDatabase();
    void takesOnlyTheStepsThatLack();
    void takesNoStepTwice();
    void undoesAllStepsWhenOneFails();
    void refusesANewerDatabase();
    void refusesADatabaseOfAnotherProgram();
    void everyReleasedStepCanBeTaken();

    void init() { m_database = SQLite::Database(":memory:", SQLite::OPEN_READWRITE); }

private:
    SQLite::Database m_database{":memory:", SQLite::OPEN_READWRITE};
};

void StoreSchemaTest::takesEveryStepInANewDatabase()
{
    upgradeSchema("file", m_database, followedBy("INSERT INTO fruit VALUES ('pear')"));
    QCOMPARE(versionOf(m_database), 2);
    QCOMPARE(fruitsIn(m_database), std::string("apple,pear"));
    QCOMPARE(m_database.execAndGet("PRAGMA application_id").getInt(), history::storeApplicationId);
}

void StoreSchemaTest::takesOnlyTheStepsThatLack()
{
    upgradeSchema("file", m_database, oneStep);
    m_database.exec("INSERT INTO fruit VALUES ('fig')");
    upgradeSchema("file", m_database, followedBy("INSERT INTO fruit VALUES ('pear')"));
    QCOMPARE(versionOf(m_database), 2);
    QCOMPARE(fruitsIn(m_database), std::string("apple,fig,pear"));
}

void StoreSchemaTest::takesNoStepTwice()
{
    upgradeSchema("file", m_database, oneStep);
    upgradeSchema("file", m_database, oneStep);
    QCOMPARE(fruitsIn(m_database), std::string("apple"));
}

void StoreSchemaTest::undoesAllStepsWhenOneFails()
{
    upgradeSchema("file", m_database, oneStep);
    SchemaSteps steps = followedBy("INSERT INTO fruit VALUES ('pear')");
    steps.push_back("INSERT INTO vegetable VALUES ('leek')");
    QCOMPARE(errorOf([&] { upgradeSchema("file", m_database, steps); }),
             QString("no such table: vegetable"));
    QCOMPARE(versionOf(m_database), 1);
    QCOMPARE(fruitsIn(m_database), std::string("apple"));
}

void StoreSchemaTest::refusesANewerDatabase()
{
    upgradeSchema("file", m_database, followedBy("INSERT INTO fruit VALUES ('pear')"));
    QCOMPARE(errorOf([&] { upgradeSchema("file", m_database, oneStep); }),
             QString("The connection history \"file\" has version 2, but this program knows only "
                     "versions up to 1; it was left as it is, update and restart this program to "
                     "use it."));
    QCOMPARE(versionOf(m_database), 2);
}

void StoreSchemaTest::refusesADatabaseOfAnotherProgram()
{
    m_database.exec("CREATE TABLE notes (text)");
    QCOMPARE(errorOf([&] { upgradeSchema("file", m_database, oneStep); }),
             QString("\"file\" is not a connection history but a database of another program; it "
                     "was left as it is, move it away or name another file."));
    QCOMPARE(m_database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt(), 1);
}

void StoreSchemaTest::everyReleasedStepCanBeTaken()
{
    SchemaSteps steps;
    for (const char *const step : history::storeSchema()) {
        steps.push_back(step);
        upgradeSchema("file", m_database, steps);
    }
    QCOMPARE(versionOf(m_database), static_cast<int>(history::storeSchema().size()));
    QCOMPARE(m_database.execAndGet("SELECT count(*) FROM connection").getInt(), 0);
}

QTEST_GUILESS_MAIN(StoreSchemaTest)

#include "tst_storeschema.moc"
