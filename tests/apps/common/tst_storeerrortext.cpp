// SPDX-License-Identifier: MIT
#include "apps/common/ProblemText.h"
#include "apps/common/StoreErrorText.h"
#include "history/SchemaUpgrade.h"
#include "history/Store.h"
#include "history/StoreFailure.h"
#include "recorder/Problem.h"
#include "refhost/libcore/Host.h"

#include <QTemporaryDir>
#include <QTest>

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

using history::Access;
using history::StoreError;

Q_DECLARE_METATYPE(history::StoreError)

class StoreErrorTextTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { refhost::setLanguage(QStringLiteral("en")); }

    void speaksTheLanguageOfTheProgram_data();
    void speaksTheLanguageOfTheProgram();
    void keepsTheEnglishSentenceThatHasNoParts();
};

namespace
{

const std::string path = "/100%2/a.db";

StoreError writing(int code)
{
    return history::sqliteFailure(path, Access::Writing, code, 0, "disk I/O error").error();
}

StoreError versionThatCannotBe()
{
    try {
        history::checkSchemaVersion(path, 0);
    } catch (const history::StoreFailure &failure) {
        return failure.error();
    }
    return {};
}

/// Of a store whose plan "Home" another program has changed.
StoreError planThatCannotBe()
{
    const QTemporaryDir folder;
    const std::string file = folder.filePath("connections.db").toStdString();
    auto store = history::Store::openOrCreate(file);
    history::DataPlan plan;
    plan.name = "Home";
    if (!store || !store.value().setPlan(plan))
        return {};
    SQLite::Database(file, SQLite::OPEN_READWRITE).exec("UPDATE plan SET month_day = 99");
    const auto plans = store.value().plans();
    return plans ? StoreError() : plans.error();
}

void addRow(const char *name, const char *language, const StoreError &error, const char *part)
{
    QTest::newRow(name) << QString(language) << error << QString::fromUtf8(part);
}

} // namespace

void StoreErrorTextTest::speaksTheLanguageOfTheProgram_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<StoreError>("error");
    QTest::addColumn<QString>("part");

    addRow("locked", "en", writing(SQLITE_BUSY),
           "The connection history \"/100%2/a.db\" has been locked by another program for 5 "
           "seconds; close that program or try again later.");
    addRow("locked, German", "de", writing(SQLITE_BUSY),
           "Der Verbindungsverlauf „/100%2/a.db“ war 5 Sekunden lang von einem anderen");
    addRow("locked, Arabic", "ar", writing(SQLITE_BUSY),
           "ظل سجل الاتصالات «\u2066/100%2/a.db\u2069» مقفلًا من برنامج آخر لمدة 5 ثوانٍ. أغلق ذلك "
           "البرنامج أو أعد المحاولة لاحقًا.");
    addRow("full disk, German", "de", writing(SQLITE_FULL), "weil der Datenträger voll");
    addRow("failing disk, German", "de", writing(SQLITE_IOERR), "(disk I/O error). Nichts wurde");
    addRow("no memory, German", "de", writing(SQLITE_NOMEM), "(der Speicher reicht nicht)");
    addRow("failing disk, Arabic", "ar", writing(SQLITE_IOERR),
           "«\u2066/100%2/a.db\u2069»\u200f (\u200edisk I/O error\u200e)");
    addRow("a version that cannot be, German", "de", versionThatCannotBe(),
           "(als Version ist 0 angegeben). Er blieb");
    const StoreError plan = planThatCannotBe();
    addRow("a plan that cannot be", "en", plan,
           "The day of the month of the plan \"Home\" is 99, but must lie between 1 and 31. The ");
    addRow("a plan that cannot be, German", "de", plan,
           "lässt sich nicht verwenden (The day of the month of the plan \"Home\" is 99,");
    addRow("damage, Arabic", "ar", writing(SQLITE_CORRUPT), "تالف (\u200edisk I/O error\u200e)");
    addRow("another program's database, Arabic", "ar", history::anotherDatabase(path).error(),
           "ليس سجل اتصالات بل قاعدة بيانات لبرنامج آخر. تُركت كما هي؛ انقلها إلى مكان آخر");
}

/// So does what a recorder says of the same error.
void StoreErrorTextTest::speaksTheLanguageOfTheProgram()
{
    QFETCH(QString, language);
    QFETCH(StoreError, error);
    QFETCH(QString, part);
    QVERIFY(refhost::setLanguage(language));
    const QString text = common::storeErrorText(error);
    QVERIFY2(text.contains(part), qPrintable(text));
    QCOMPARE(common::problemText(recorder::historyProblem(error)), text);
}

void StoreErrorTextTest::keepsTheEnglishSentenceThatHasNoParts()
{
    QVERIFY(refhost::setLanguage(QStringLiteral("de")));
    const StoreError error =
        history::StoreFailure(StoreError::Kind::BadRecord, "An hour has %1 bytes.").error();
    QCOMPARE(common::storeErrorText(error), QStringLiteral("An hour has %1 bytes."));
    QCOMPARE(common::problemText(recorder::historyProblem(error)),
             QStringLiteral("An hour has %1 bytes."));
}

QTEST_GUILESS_MAIN(StoreErrorTextTest)

#include "tst_storeerrortext.moc"
