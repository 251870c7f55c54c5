// SPDX-License-Identifier: MIT
#include "history/Store.h"

#include "SamplePlans.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"

#include <SQLiteCpp/Database.h>

#include <QTest>

#include <atomic>
#include <random>
#include <thread>

#include <map>

using namespace history;

namespace
{

QString plansIn(const Store &store)
{
    const auto plans = store.plans();
    if (!plans)
        return QString::fromStdString(plans.error().message);
    QStringList texts;
    for (const DataPlan &each : plans.value())
        texts << textOf(each);
    return texts.join('\n');
}

/// Whether the warning was not noted before.
bool isNoted(Store &store, std::int64_t plan, JulianDay periodFirst, int percent)
{
    const auto added = store.noteWarnings(plan, periodFirst, {percent});
    return added && added.value() == std::vector<int>{percent};
}
bool isNoted(Store &&store, std::int64_t plan, JulianDay periodFirst, int percent)
{
    return isNoted(store, plan, periodFirst, percent);
}

} // namespace

Q_DECLARE_METATYPE(DataPlan)

class StoredPlansTest : public StoreTestCase
{
    Q_OBJECT

private slots:
    void areKept_data();
    void areKept();
    void agreeWithAModel();
    void haveANameOfTheirOwn();
    void areNotChangedOnceRemoved();
    void areReplacedAsTheyWereReadOnly();
    void areNotKeptIfAValueIsOutOfItsRange_data();
    void areNotKeptIfAValueIsOutOfItsRange();
    void areRemovedWhereThereAreNone();
    void areCopied();
    void areNoneInAnEarlierVersionsStore();
    void ofAnotherProgramAreToldAndCanBeRemoved_data();
    void ofAnotherProgramAreToldAndCanBeRemoved();
    void areWarnedOfOnce();
    void areWarnedOfByOneProgramOnly();
    void areWarnedOfAgainWithAnotherAmountOnly();
    void areNotWarnedOfAgainWhereTheyAreStillReached();

private:
    Store opened() const { return storeWith(m_path, {}); }
};

void StoredPlansTest::areKept_data()
{
    QTest::addColumn<DataPlan>("plan");
    QTest::addColumn<QString>("text");
    DataPlan every = planCalled("every");
    every.covers = DataPlan::Covers::Profile;
    every.covered = "internet";
    every.network = DataPlan::Network::Home;
    every.counts = DataPlan::Counts::Received;
    every.amount = 0;
    every.period = EveryDays{28, 2461000};
    every.warnAtPercent = {};
    QTest::newRow("all as it is without being said")
        << planCalled("plain") << "plain|everything||both|both|none|monthly 1|none|80,100";
    DataPlan close = planCalled("close");
    close.warnAtPercent = {99, 100};
    QTest::newRow("warnings close together")
        << close << "close|everything||both|both|none|monthly 1|none|99,100";
    QTest::newRow("28 days") << every
                             << "every|profile|internet|home|received|0|every 28 from "
                                "2025-11-20|none|";
    QTest::newRow("once")
        << prepaid()
        << QString::fromUtf8(
               "Prepaid \xc3\xa9|sim|8949000000000001234|roaming|sent|"
               "9223372036854775807|2026-11-10 to 2026-12-09|-5 on 2026-11-12|50,120");
}

void StoredPlansTest::areKept()
{
    QFETCH(DataPlan, plan);
    QVERIFY(opened().setPlan(planCalled("another")));
    plan.key = opened().setPlan(plan).value();
    QVERIFY(plan.key > 1);
    const auto stored = opened().plans();
    QCOMPARE(stored.value().size(), std::size_t(2));
    QCOMPARE(stored.value()[plan.name < "another" ? 0 : 1].key, plan.key);
    QTEST(textOf(stored.value()[plan.name < "another" ? 0 : 1]), "text");

    // In its place, every value is another one.
    DataPlan changed = plan.name == prepaid().name ? planCalled("plain") : prepaid();
    changed.key = plan.key;
    QCOMPARE(opened().setPlan(changed).value(), plan.key);
    QVERIFY(opened().removePlan("another").value());
    QCOMPARE(plansIn(opened()), textOf(changed));
}

void StoredPlansTest::agreeWithAModel()
{
    std::mt19937 random(7);
    const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(random); };
    Store store = opened();
    std::map<std::string, DataPlan> model;
    for (int i = 0; i < 300; ++i) {
        DataPlan plan = upTo(1) == 0 ? prepaid() : planCalled("");
        plan.name = std::string(1, static_cast<char>('a' + upTo(5)));
        const auto found = model.find(plan.name);
        const bool isThere = found != model.end();
        if (upTo(2) == 0) {
            QCOMPARE(store.removePlan(plan.name).value(), isThere);
            model.erase(plan.name);
        } else {
            plan.key = isThere ? found->second.key : 0;
            plan.key = store.setPlan(plan).value();
            model[plan.name] = plan;
        }
        QStringList expected;
        for (const auto &[name, each] : model)
            expected << textOf(each);
        QCOMPARE(plansIn(store), expected.join('\n'));
    }
}

void StoredPlansTest::haveANameOfTheirOwn()
{
    Store store = opened();
    DataPlan home = planCalled("home");
    home.key = store.setPlan(home).value();
    QVERIFY(store.setPlan(planCalled("work")));
    for (const std::int64_t key : {std::int64_t(0), home.key}) {
        DataPlan other = planCalled("work");
        other.key = key;
        const auto refused = store.setPlan(other);
        QCOMPARE(outcomeOf(refused), QString("BadRecord"));
        const QString sentence = QString::fromStdString(refused.error().message);
        QVERIFY2(sentence.startsWith("The connection history \"") &&
                     sentence.contains("\" has the plan \"work\" already;"),
                 qPrintable(sentence));
    }
    home.name = "at home";
    QCOMPARE(store.setPlan(home).value(), home.key);
    QVERIFY(store.setPlan(planCalled("home")).value() > home.key);
    QVERIFY(store.setPlan(planCalled("Home")));
}

void StoredPlansTest::areNotChangedOnceRemoved()
{
    Store store = opened();
    DataPlan plan = planCalled("home");
    plan.key = store.setPlan(plan).value();
    QVERIFY(store.removePlan("home").value());
    const auto refused = store.setPlan(plan);
    QCOMPARE(outcomeOf(refused), QString("NoSuchRecord"));
    const QString sentence = QString::fromStdString(refused.error().message);
    QVERIFY2(sentence.contains("\" has the plan \"home\" no longer;"), qPrintable(sentence));
    QCOMPARE(plansIn(store), QString());
}

void StoredPlansTest::areReplacedAsTheyWereReadOnly()
{
    Store store = opened();
    using Former = std::optional<DataPlan>;
    const auto comesTo = [&](const DataPlan &plan, const Former &former, const PlanOutcome &end) {
        const auto outcome = store.setPlan(plan, former, {});
        return outcome && outcome.value() == end;
    };
    DataPlan plan = prepaid();
    plan.key = 1;
    QVERIFY(comesTo(prepaid(), Former(), plan.key));
    QVERIFY(comesTo(prepaid(), Former(), plan));
    DataPlan changed = plan;
    changed.name = "away";
    std::vector<DataPlan> others(6, plan);
    others[0].name = "home";
    others[1].amount.reset();
    others[2].usedElsewhere->day += 1;
    std::get<OnceBetween>(others[3].period).last += 1;
    others[4].period = EveryDays{28, 2461000};
    others[5].warnAtPercent.pop_back();
    for (const DataPlan &other : others)
        QVERIFY(comesTo(changed, other, plan));
    QCOMPARE(plansIn(store), textOf(plan));
    QVERIFY(comesTo(changed, plan, plan.key));
    QCOMPARE(plansIn(store), textOf(changed));
    QVERIFY(store.removePlan("away").value());
    const auto refused = store.setPlan(changed, changed, {});
    QVERIFY(!refused);
    QCOMPARE(refused.error().kind, StoreError::Kind::NoSuchRecord);
}

void StoredPlansTest::areNotKeptIfAValueIsOutOfItsRange_data()
{
    QTest::addColumn<DataPlan>("plan");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *name, const char *named, auto change) {
        DataPlan plan = planCalled("home");
        change(plan);
        QTest::newRow(name) << plan << QString(named);
    };
    row("no name", "The name of the plan", [](DataPlan &plan) { plan.name.clear(); });
    row("a long name", "256 bytes", [](DataPlan &plan) { plan.name.assign(256, 'x'); });
    row("a name that goes on behind its end", "NUL",
        [](DataPlan &plan) { plan.name.push_back('\0'); });
    row("a long profile", "The profile of the plan \"home\"", [](DataPlan &plan) {
        plan.covers = DataPlan::Covers::Profile;
        plan.covered.assign(longestProfile + 1, 'x');
    });
    row("a long number of a SIM", "The SIM of the plan \"home\"", [](DataPlan &plan) {
        plan.covers = DataPlan::Covers::Sim;
        plan.covered.assign(32, '1');
    });
    row("less than nothing", "The amount of the plan \"home\" is -1",
        [](DataPlan &plan) { plan.amount = -1; });
    row("no day of a month", "must lie between 1 and 31",
        [](DataPlan &plan) { plan.period = MonthlyFrom{32}; });
    row("no days", "The number of days of the plan \"home\" is 0", [](DataPlan &plan) {
        plan.period = EveryDays{0, firstPlanDay};
    });
    row("from a day that nobody writes", "first day", [](DataPlan &plan) {
        plan.period = EveryDays{28, lastPlanDay + 1};
    });
    row("a last day before the first", "last day", [](DataPlan &plan) {
        plan.period = OnceBetween{firstPlanDay + 1, firstPlanDay};
    });
    row("used elsewhere on no day", "used elsewhere", [](DataPlan &plan) {
        plan.usedElsewhere = UsedElsewhere{5, 0};
    });
    row("a percentage of nothing", "percentage", [](DataPlan &plan) {
        plan.warnAtPercent = {0, 80};
    });
    row("percentages in disorder", "higher than the one before", [](DataPlan &plan) {
        plan.warnAtPercent = {80, 80};
    });
}

void StoredPlansTest::areNotKeptIfAValueIsOutOfItsRange()
{
    QFETCH(DataPlan, plan);
    QFETCH(QString, named);
    Store store = opened();
    const auto refused = store.setPlan(plan);
    QCOMPARE(outcomeOf(refused), QString("BadRecord"));
    const QString sentence = QString::fromStdString(refused.error().message);
    QVERIFY2(sentence.contains(named), qPrintable(sentence));
    QCOMPARE(plansIn(store), QString());
}

void StoredPlansTest::areRemovedWhereThereAreNone()
{
    auto nothing = Store::openForReading(m_path);
    QCOMPARE(nothing.value().removePlan("home").value(), false);
    QVERIFY(!QFile::exists(QString::fromStdString(m_path)));
    QCOMPARE(plansIn(nothing.value()), QString());
}

void StoredPlansTest::areCopied()
{
    const std::string copy = m_path + "-copy";
    Store store = opened();
    const std::int64_t key = store.setPlan(prepaid()).value();
    QVERIFY(isNoted(store, key, 2461000, 50));
    writeFile(QString::fromStdString(copy), "");
    QVERIFY(store.copyTo(copy).value());
    Store copied = storeWith(copy, {});
    QCOMPARE(plansIn(copied), textOf(prepaid()));
    QCOMPARE(isNoted(copied, key, 2461000, 50), false);
}

void StoredPlansTest::areNoneInAnEarlierVersionsStore()
{
    makeStoreOfVersion(m_path, 5);
    QCOMPARE(versionOf(m_path), 5);
    Store store = opened();
    QCOMPARE(plansIn(store), QString());
    QVERIFY(store.setPlan(prepaid()));
    QCOMPARE(plansIn(store), textOf(prepaid()));
}

void StoredPlansTest::ofAnotherProgramAreToldAndCanBeRemoved_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *name, const char *sql, const char *named) {
        QTest::newRow(name) << QByteArray(sql) << QString(named);
    };
    row("an unknown network", "UPDATE plan SET network = 'moon'",
        "The network of the plan \"home\", \"moon\", is none of home, roaming, both.");
    row("unknown coverage", "UPDATE plan SET covers = ''", "The coverage of the plan \"home\"");
    row("an unknown direction", "UPDATE plan SET counts = 'up'",
        "The direction of the plan \"home\"");
    row("no period", "UPDATE plan SET month_day = NULL",
        "The period of the plan \"home\" is not a day of the month");
    row("two periods", "UPDATE plan SET cycle_days = 1, first_day = 2461000",
        "The period of the plan \"home\"");
    row("a number out of its range", "UPDATE plan SET month_day = 4294967297",
        "The day of the month of the plan \"home\" is 4294967297");
    row("a correction without a day", "UPDATE plan SET used_elsewhere = 7", "used elsewhere");
    row("a percentage that wraps", "INSERT INTO plan_threshold VALUES (1, 4294967376)",
        "percentage");
}

void StoredPlansTest::ofAnotherProgramAreToldAndCanBeRemoved()
{
    QFETCH(QByteArray, sql);
    QFETCH(QString, named);
    Store store = opened();
    QVERIFY(store.setPlan(planCalled("home")));
    runSql(m_path, sql.toStdString());
    const auto plans = store.plans();
    QVERIFY(!plans);
    QCOMPARE(plans.error().kind, StoreError::Kind::Damaged);
    const QString sentence = QString::fromStdString(plans.error().message);
    QVERIFY2(sentence.contains(named), qPrintable(sentence));
    QVERIFY2(sentence.contains(QString::fromStdString(m_path)), qPrintable(sentence));
    const auto problems = store.examine().value().problems;
    QCOMPARE(problems.size(), std::size_t(1));
    QVERIFY(sentence.startsWith(QString::fromStdString(problems.front())));
    QVERIFY(store.removePlan("home").value());
    QCOMPARE(plansIn(store), QString());
    QVERIFY(store.examine().value().problems.empty());
}

void StoredPlansTest::areWarnedOfOnce()
{
    const std::int64_t key = opened().setPlan(planCalled("home")).value();
    const std::int64_t other = opened().setPlan(planCalled("other")).value();
    QCOMPARE(isNoted(opened(), key, 2461000, 80), true);
    QCOMPARE(isNoted(opened(), key, 2461000, 80), false);
    QCOMPARE(isNoted(opened(), key, 2461000, 100), true);
    QCOMPARE(isNoted(opened(), key, 2461030, 80), true);
    QCOMPARE(isNoted(opened(), other, 2461000, 80), true);
    QCOMPARE(textOf(opened().warningsGiven(key, 2461000).value()), QString("80,100"));
    QCOMPARE(textOf(opened().warningsGiven(key, 2461001).value()), QString());
    QVERIFY(opened().removePlan("home").value());
    QCOMPARE(isNoted(opened(), key, 2461000, 80), false);
    QCOMPARE(textOf(opened().warningsGiven(key, 2461000).value()), QString());
    QCOMPARE(textOf(opened().warningsGiven(other, 2461000).value()), QString("80"));
}

void StoredPlansTest::areWarnedOfByOneProgramOnly()
{
    const std::int64_t key = opened().setPlan(planCalled("home")).value();
    constexpr int warnings = 50;
    std::atomic<int> given{0};
    std::vector<std::thread> programs;
    for (int i = 0; i < 4; ++i) {
        programs.emplace_back([this, key, &given] {
            auto store = Store::openOrCreate(m_path);
            for (int percent = 1; percent <= warnings; ++percent) {
                given += isNoted(store.value(), key, 2461000, percent) ? 1 : 0;
            }
        });
    }
    for (std::thread &each : programs)
        each.join();
    QCOMPARE(given.load(), warnings);
}

void StoredPlansTest::areWarnedOfAgainWithAnotherAmountOnly()
{
    Store store = opened();
    DataPlan plan = planCalled("home");
    plan.amount = 1000;
    plan.key = store.setPlan(plan).value();
    QCOMPARE(isNoted(store, plan.key, 2461000, 80), true);
    plan.name = "renamed";
    plan.usedElsewhere = UsedElsewhere{-500, 2461000};
    QVERIFY(store.setPlan(plan));
    QCOMPARE(isNoted(store, plan.key, 2461000, 80), false);
    plan.amount = 2000;
    QVERIFY(store.setPlan(plan));
    QCOMPARE(isNoted(store, plan.key, 2461000, 80), true);
    plan.amount.reset();
    QVERIFY(store.setPlan(plan));
    QCOMPARE(textOf(store.warningsGiven(plan.key, 2461000).value()), QString());
}

void StoredPlansTest::areNotWarnedOfAgainWhereTheyAreStillReached()
{
    Store store = opened();
    DataPlan plan = planCalled("home", 1000);
    plan.key = store.setPlan(plan).value();
    QVERIFY(store.noteWarnings(plan.key, 2461000, {50, 80, 100}));
    const auto givenWith = [&](std::optional<std::int64_t> amount,
                               const std::vector<int> &reached) {
        const DataPlan former = plan;
        plan.amount = amount;
        if (!store.setPlan(plan, former, reached))
            return QString("not stored");
        return textOf(store.warningsGiven(plan.key, 2461000).value());
    };
    QCOMPARE(givenWith(1000, {}), QString("50,80,100"));
    QCOMPARE(givenWith(1200, {50, 80}), QString("50,80"));
    QCOMPARE(givenWith(2000, {20, 50}), QString("50"));
    QCOMPARE(givenWith(std::nullopt, {}), QString());
}

QTEST_GUILESS_MAIN(StoredPlansTest)

#include "tst_storedplans.moc"
