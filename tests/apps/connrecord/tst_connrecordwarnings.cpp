// SPDX-License-Identifier: MIT
#include "LocalZone.h"
#include "RecordedPlanTest.h"
#include "SystemZone.h"

#include <SQLiteCpp/Database.h>

#include <QDateTime>
#include <QTimeZone>

#include <csignal>

/// Warnings of data plans, as the program that records gives them.
class ConnrecordWarningsTest : public RecordedPlanTest
{
    Q_OBJECT

public:
    using RecordedPlanTest::RecordedPlanTest;

private slots:
    void warnsOnceOfEachPercentage();
    void warnsOfTheHighestPercentageAlone();
    void warnsOfEachPlan();
    void warnsOnceThoughItIsKilled();
    void warnsOnceThoughAnotherTakesOver();
    void warnsOfAPlanThatIsMadeLater();
    void saysWhatIsWrongWithAPlan();
    void followsTheZoneOfTheSystem();
};

void ConnrecordWarningsTest::warnsOnceOfEachPercentage()
{
    addPlan("home", {50, 100});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(49));
    QVERIFY(use(1));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
    QVERIFY(use(10));
    QVERIFY(use(40));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 50), title("home", 100)}),
                              checkpointTimeout);
    const auto shown = m_desktop->shown();
    QCOMPARE(shown[0].program, QString("connrecord"));
    QVERIFY(shown[0].desktopEntry.endsWith(".refdialer"));
    QVERIFY2(shown[0].text.contains(" left until "), qPrintable(shown[0].text));
    QVERIFY2(shown[1].text.contains("; the period lasts until "), qPrintable(shown[1].text));
    QCOMPARE(shown[0].urgency, 1);
    QCOMPARE(shown[1].urgency, 2);
    QCOMPARE(program->said().count(title("home", 50).toUtf8()), 1);
    QCOMPARE(program->said().count(title("home", 100).toUtf8()), 1);
}

void ConnrecordWarningsTest::warnsOfTheHighestPercentageAlone()
{
    addPlan("home", {50, 80, 100});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(85));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 80)), checkpointTimeout);
    QVERIFY(use(15));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 80), title("home", 100)}),
                              checkpointTimeout);
}

void ConnrecordWarningsTest::warnsOfEachPlan()
{
    addPlan("home", {50});
    addPlan("travel", {10});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(60));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 50), title("travel", 10)}),
                              checkpointTimeout);
}

void ConnrecordWarningsTest::warnsOnceThoughItIsKilled()
{
    addPlan("home", {50, 70, 100});
    Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QStringList expected;
    int used = 0;
    for (const int percent : {50, 70, 100}) {
        QVERIFY(use(percent - used));
        used = percent;
        expected.append(title("home", percent));
        QTRY_COMPARE_WITH_TIMEOUT(titles(), expected, checkpointTimeout);
        QCOMPARE(program->exitCodeAfter(SIGKILL), -1);
        program = start();
        QTRY_VERIFY(program->said().contains("Connected"));
    }
}

void ConnrecordWarningsTest::warnsOnceThoughAnotherTakesOver()
{
    addPlan("home", {50, 100});
    const Program first = start();
    QTRY_VERIFY(first->said().contains("Connected"));
    const Program second = start();
    QTRY_VERIFY(second->said().contains("recorded by another"));
    QVERIFY(use(50));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
    QCOMPARE(first->exitCodeAfter(SIGKILL), -1);
    QTRY_VERIFY(second->said().contains("Connected"));
    QVERIFY(use(50));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 50), title("home", 100)}),
                              checkpointTimeout);
    QVERIFY(!second->said().contains(title("home", 50).toUtf8()));
}

void ConnrecordWarningsTest::warnsOfAPlanThatIsMadeLater()
{
    addPlan("home", {50});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(60));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
    addPlan("travel", {10});
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 50), title("travel", 10)}),
                              checkpointTimeout);
}

void ConnrecordWarningsTest::saysWhatIsWrongWithAPlan()
{
    addPlan("home", {50});
    SQLite::Database(m_path.toStdString(), SQLite::OPEN_READWRITE)
        .exec("UPDATE plan SET network = 'another'");
    const Program program = start();
    QTRY_VERIFY(program->said().contains("\"another\", is none of "));
}

/// The two zones are 25 hours apart, so no moment is of the same day in both.
void ConnrecordWarningsTest::followsTheZoneOfTheSystem()
{
    const LocalZone theSystems(nullptr);
    SystemZone zone;
    if (const QString obstacle = zone.change("Pacific/Pago_Pago"); !obstacle.isEmpty())
        QSKIP(qPrintable(obstacle), "");
    const auto today =
        QDateTime::currentDateTime().toTimeZone(QTimeZone("Pacific/Kiritimati")).date();
    const history::JulianDay day = today.toJulianDay();
    addPlan("east", {50}, history::OnceBetween{day, day + 1});
    addPlan("west", {50}, history::OnceBetween{day - 3, day - 1});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(50));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("west", 50)), checkpointTimeout);
    QCOMPARE(zone.change("Pacific/Kiritimati"), QString());
    QVERIFY(use(1));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("west", 50), title("east", 50)}),
                              checkpointTimeout);
}

NETWORK_TEST_MAIN(ConnrecordWarningsTest)

#include "tst_connrecordwarnings.moc"
