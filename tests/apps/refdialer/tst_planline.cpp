// SPDX-License-Identifier: MIT
#include "LocalZone.h"
#include "PlanTest.h"
#include "apps/refdialer/PastPeriodsDialog.h"
#include "apps/refdialer/PlanDialog.h"
#include "apps/refdialer/PlanEditor.h"
#include "apps/refdialer/PlanLine.h"
#include "apps/refdialer/PlanMenu.h"
#include "refhost/libcore/Host.h"

#include <SQLiteCpp/Database.h>

#include <QApplication>
#include <QClipboard>
#include <QProgressBar>
#include <QSettings>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>

using namespace history;
using refdialer::PastPeriodsDialog;
using refdialer::PlanDialog;
using refdialer::PlanEditor;
using refdialer::PlanLine;
using refdialer::PlanMenu;
using refdialer::PlanWatch;

namespace
{

const char *const noonOfThe19th = "2026-11-19T12:00:00Z";

DataPlan unlimited(const PeriodRule &rule)
{
    DataPlan plan = planOf(rule);
    plan.amount.reset();
    return plan;
}

/// What the line shows, its parts joined with "|", several plans in a line each.
QString shownText(const PlanLine &line)
{
    QStringList parts;
    for (const QWidget *const part : line.findChildren<QWidget *>()) {
        const bool isText = part->children().isEmpty() && !qobject_cast<const QProgressBar *>(part);
        if (part->isVisibleTo(&line) && isText)
            parts.append(part->property("text").toString());
    }
    return parts.join('|');
}

/// 3 MB in the last hour of October, 5 MB in November's first.
void addPast(Store &store)
{
    QVERIFY(store.add(movedIn("2026-09-10T10:00:00Z", 12 * megabyte)));
    QVERIFY(store.add(movedIn("2026-10-31T22:00:00Z", 3 * megabyte)));
    QVERIFY(store.add(movedIn("2026-10-31T23:00:00Z", 5 * megabyte)));
}

QStringList rowsOf(const QTableWidget &table)
{
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells{table.verticalHeaderItem(row)->text()};
        for (int column = 0; column < table.columnCount(); ++column)
            cells.append(table.item(row, column)->text());
        rows.append(cells.join('|'));
    }
    return rows;
}

} // namespace

Q_DECLARE_METATYPE(DataPlan)

class TestPlanLine : public PlanTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void tellsHowAPlanStands_data();
    void tellsHowAPlanStands();
    void marksHowMuchIsUsedWithTheBar();
    void tellsNoPaceOfLessThanNothing();
    void framesTheBarInEveryPalette();
    void tellsTheSameInTheDialogByTheKeyboard();
    void takesNoRoomWithoutAHistory();
    void offersAPlan();
    void showsTheWorstOfManyPlans();
    void followsTheRunningConnection();
    void followsOtherProgramsByItself();
    void followsTheDay();
    void followsTheZone();
    void waitsForALockedHistory();
    void saysWhyPlansCannotBeRead();
    void speaksTheLanguageOfTheProgram();

    void showsThePeriodsBefore();
    void copiesPeriods();
    void opensItsDialogsFromTheMenu();

private:
    QString shown();

    std::unique_ptr<PlanLine> m_line;
};

void TestPlanLine::init()
{
    PlanTest::init();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
    m_line = std::make_unique<PlanLine>(*m_watch);
    m_line->setLocale(QLocale("en_GB"));
}

void TestPlanLine::cleanup()
{
    m_line.reset();
    PlanTest::cleanup();
}

QString TestPlanLine::shown()
{
    readPlans();
    return shownText(*m_line);
}

void TestPlanLine::tellsHowAPlanStands_data()
{
    QTest::addColumn<DataPlan>("plan");
    QTest::addColumn<qint64>("used");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const DataPlan &plan, qint64 used, const char *now,
                        const char *text) {
        QTest::newRow(name) << plan << used << QString(now) << QString(text);
    };
    const DataPlan tenGigabytes = planOf(MonthlyFrom{1}, 10 * gigabyte);
    const char *const lastDay = "2026-11-30T12:00:00Z";

    // 6963 MB of 12 days.
    row("within", tenGigabytes, 3277 * megabyte, noonOfThe19th,
        "plan|32 %|3.2 GB of 10 GB used, 12 days left, 580 MB a day");
    row("within, on the last day", tenGigabytes, 3277 * megabyte, lastDay,
        "plan|32 %|3.2 GB of 10 GB used, 6.79 GB left, today is the last day");
    // 445 of 720 hours have gone.
    row("at a pace that is too much", tenGigabytes, 7 * gigabyte, noonOfThe19th,
        "plan|70 %|Heading for 11.3 GB|7 GB of 10 GB used, 12 days left, 256 MB a day");
    row("warned", tenGigabytes, 8 * gigabyte, noonOfThe19th,
        "plan|80 %|80 % reached|8 GB of 10 GB used, 12 days left, 170 MB a day");
    row("nearly spent", tenGigabytes, 10 * gigabyte - megabyte, noonOfThe19th,
        "plan|99 %|80 % reached|9.99 GB of 10 GB used, 12 days left, 85.3 KB a day");
    row("spent to the byte", tenGigabytes, 10 * gigabyte, noonOfThe19th,
        "plan|100 %|Used up|10 GB of 10 GB used, 12 days left, 0 KB a day");
    row("spent", tenGigabytes, 10752 * megabyte, noonOfThe19th,
        "plan|105 %|Used up|10.5 GB of 10 GB used, 512 MB over, 12 days left");
    row("spent, on the last day", tenGigabytes, 10752 * megabyte, lastDay,
        "plan|105 %|Used up|10.5 GB of 10 GB used, 512 MB over, today is the last day");
    row("of nothing", planOf(MonthlyFrom{1}, 0), 0, noonOfThe19th,
        "plan|100 %|Used up|0 KB of 0 KB used, 12 days left, 0 KB a day");
    row("without an amount", unlimited(MonthlyFrom{1}), 1536 * 1024, noonOfThe19th,
        "plan|1.5 MB used, 12 days left");
    row("without an amount, a byte below", unlimited(MonthlyFrom{1}), gigabyte - 1, noonOfThe19th,
        "plan|1023 MB used, 12 days left");
    row("without an amount, on the last day", unlimited(MonthlyFrom{1}), 1536 * 1024, lastDay,
        "plan|1.5 MB used, today is the last day");

    DataPlan corrected = tenGigabytes;
    corrected.usedElsewhere = UsedElsewhere{-gigabyte, dayNumber("2026-11-02")};
    row("less than nothing", corrected, 0, noonOfThe19th,
        "plan|0 %|-1 GB of 10 GB used, 12 days left, 938 MB a day");
    DataPlan abroadOnly = tenGigabytes;
    abroadOnly.network = DataPlan::Network::Roaming;
    row("roaming only", abroadOnly, 8 * gigabyte, noonOfThe19th,
        "plan|10 %|1 GB of 10 GB used, 12 days left, 768 MB a day");

    const DataPlan prepaid =
        planOf(OnceBetween{dayNumber("2026-11-10"), dayNumber("2026-11-18")}, gigabyte);
    row("prepaid, in time", prepaid, 512 * megabyte, "2026-11-17T12:00:00Z",
        "plan|50 %|512 MB of 1 GB used, 2 days left, 256 MB a day");
    row("prepaid, over", prepaid, 512 * megabyte, noonOfThe19th, "plan|ended on 18/11/2026");
    row("prepaid, not begun", prepaid, 0, "2026-11-09T12:00:00Z", "plan|begins on 10/11/2026");
    row("cycles that have not begun", planOf(EveryDays{28, dayNumber("2026-12-24")}), 0,
        noonOfThe19th, "plan|begins on 24/12/2026");
}

void TestPlanLine::tellsHowAPlanStands()
{
    QFETCH(DataPlan, plan);
    QFETCH(qint64, used);
    QFETCH(QString, now);
    m_clock->utc = utcOf(now);
    QVERIFY(m_store->setPlan(plan));
    QVERIFY(m_store->add(movedIn("2026-11-16T10:00:00Z", used)));
    if (plan.network == DataPlan::Network::Roaming)
        QVERIFY(m_store->add(movedIn("2026-11-16T11:00:00Z", gigabyte, true)));
    QTEST(shown(), "text");
    QVERIFY(!m_line->isHidden());
}

void TestPlanLine::marksHowMuchIsUsedWithTheBar()
{
    DataPlan plan = planCalled("home", 10 * gigabyte);
    plan.key = m_store->setPlan(plan).value();
    QVERIFY(m_store->add(movedIn("2026-11-16T10:00:00Z", 4 * gigabyte)));
    readPlans();
    const auto *const bar = m_line->findChild<QProgressBar *>();
    QCOMPARE(bar->value(), 40);
    QCOMPARE(bar->accessibleName(), QString("Used of the data plan \"home\""));
    QCOMPARE(bar->accessibleDescription(),
             QString("The period is from 01/11/2026 to 30/11/2026. 6.00 GB left. At this pace it "
                     "will be 6.47 GB in the end."));
    QCOMPARE(bar->toolTip(), bar->accessibleDescription());
    plan.amount = 2 * gigabyte;
    QVERIFY(m_store->setPlan(plan));
    readPlans();
    QCOMPARE(bar->value(), bar->maximum());
    QVERIFY(shownText(*m_line).contains("|200 %|"));
    QVERIFY2(bar->toolTip().contains(" 2.00 GB over. "), qPrintable(bar->toolTip()));
}

void TestPlanLine::tellsNoPaceOfLessThanNothing()
{
    DataPlan corrected = planCalled("home", 10 * gigabyte);
    corrected.usedElsewhere = UsedElsewhere{-gigabyte, dayNumber("2026-11-02")};
    QVERIFY(m_store->setPlan(corrected));
    readPlans();
    QCOMPARE(m_line->findChild<QProgressBar *>()->toolTip(),
             QString("The period is from 01/11/2026 to 30/11/2026. 11.00 GB left."));
}

void TestPlanLine::framesTheBarInEveryPalette()
{
    QVERIFY(m_store->setPlan(planCalled("home", 10 * gigabyte)));
    readPlans();
    auto &bar = *m_line->findChild<QProgressBar *>();
    QPalette palette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    bar.setPalette(palette);
    const QImage picture = bar.grab().toImage();
    const QRect whole = picture.rect();
    const QPoint centre = whole.center();
    QCOMPARE(picture.pixelColor(centre), QColor(Qt::black));
    for (const QPoint &edge : {QPoint(whole.left(), centre.y()), QPoint(whole.right(), centre.y()),
                               QPoint(centre.x(), whole.top()), QPoint(centre.x(), whole.bottom())})
        QCOMPARE(picture.pixelColor(edge), QColor(Qt::white));
}

void TestPlanLine::tellsTheSameInTheDialogByTheKeyboard()
{
    QVERIFY(m_store->setPlan(planCalled("home", 10 * gigabyte)));
    QVERIFY(m_store->setPlan(planCalled("of no amount")));
    QVERIFY(m_store->add(movedIn("2026-11-16T10:00:00Z", 7 * gigabyte)));
    readPlans();
    PlanDialog dialog(*m_watch, m_line.get());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto &list = *dialog.findChild<QTreeWidget *>();
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Tab);
    const auto *const standing = qobject_cast<QLabel *>(dialog.focusWidget());
    QVERIFY(standing);
    QCOMPARE(standing->accessibleName(), QString("How the plan stands"));
    QCOMPARE(standing->text(),
             QString("7 GB of 10 GB used, 12 days left, 256 MB a day\nThe period is from "
                     "01/11/2026 to 30/11/2026. 3.00 GB left. At this pace it will be 11.32 GB in "
                     "the end."));
    QCOMPARE(standing->accessibleDescription(), standing->text());
    QTest::keyClick(&list, Qt::Key_Down);
    QVERIFY(standing->text().startsWith("7 GB used, 12 days left\nThe period is from"));
}

void TestPlanLine::takesNoRoomWithoutAHistory()
{
    QVERIFY(m_line->isHidden());
    m_store.reset();
    QVERIFY(QFile::remove(QString::fromStdString(m_path)));
    QCOMPARE(shown(), QString());
    QVERIFY(m_line->isHidden());
}

void TestPlanLine::offersAPlan()
{
    const QString offer = "See here how much of a data plan is left.|Set up a data "
                          "plan…|Do not offer";
    QCOMPARE(shown(), offer);
    QVERIFY(!m_line->isHidden());
    QSignalSpy wanted(m_line.get(), &PlanLine::planWanted);
    press(*m_line, "Set up a data plan…");
    QCOMPARE(wanted.size(), 1);
    QVERIFY(m_store->setPlan(planCalled("home", gigabyte)));
    QVERIFY(shown().startsWith("home|0 %"));
    QVERIFY(m_store->removePlan("home").value());
    QCOMPARE(shown(), offer);

    press(*m_line, "Do not offer");
    QVERIFY(m_line->isHidden());
    const PlanLine later(*m_watch);
    QVERIFY(later.isHidden());
    QVERIFY(m_store->setPlan(planCalled("home", gigabyte)));
    readPlans();
    QVERIFY(!later.isHidden());
}

void TestPlanLine::showsTheWorstOfManyPlans()
{
    QVERIFY(m_store->add(movedIn("2026-11-16T10:00:00Z", 8 * megabyte)));
    for (const auto &[name, amount] : std::vector<std::pair<const char *, std::int64_t>>{
             {"a", 100 * megabyte}, {"b", 9 * megabyte}, {"c", 80 * megabyte}, {"d", megabyte}})
        QVERIFY(m_store->setPlan(planCalled(name, amount)));
    QCOMPARE(shown(),
             QString("All data plans…|d|800 %|Used up|8 MB of 1 MB used, 7 MB over, 12 days left|"
                     "b|88 %|80 % reached|8 MB of 9 MB used, 12 days left, 85.3 KB a day|"
                     "a|8 %|8 MB of 100 MB used, 12 days left, 7.66 MB a day"));
    QSignalSpy wanted(m_line.get(), &PlanLine::plansWanted);
    press(*m_line, "All data plans…");
    QCOMPARE(wanted.size(), 1);
    for (const char *const name : {"a", "b", "c"})
        QVERIFY(m_store->removePlan(name));
    for (const char *const name : {"e", "f", "g"})
        QVERIFY(m_store->setPlan(planCalled(name, megabyte)));
    QCOMPARE(shown().count("|Used up|"), 4);
}

void TestPlanLine::followsTheRunningConnection()
{
    QVERIFY(m_store->setPlan(planCalled("home", 10 * megabyte)));
    OpenConnection open;
    open.bootId = "boot";
    open.startUtc = m_clock->utc - 600;
    open.updatedUtc = m_clock->utc;
    open = m_store->begin(open).value();
    QVERIFY(shown().startsWith("home|0 %|0 KB of"));
    open.uploadedBytes = 5 * megabyte;
    open.hours = {{startOfHour(m_clock->utc), false, 5 * megabyte, 0}};
    QVERIFY(m_store->checkpoint(open));
    QVERIFY2(shown().startsWith("home|50 %|5 MB of 10 MB used"), qPrintable(shown()));
}

/// Within a second, without being told to look.
void TestPlanLine::followsOtherProgramsByItself()
{
    readPlans();
    QVERIFY(m_store->setPlan(planCalled("home", 10 * megabyte)));
    QTRY_VERIFY(shownText(*m_line).startsWith("home|0 %"));
}

void TestPlanLine::followsTheDay()
{
    QVERIFY(m_store->setPlan(planCalled("home", 10 * gigabyte)));
    QVERIFY(m_store->add(movedIn("2026-11-16T10:00:00Z", gigabyte)));
    m_clock->utc = utcOf("2026-11-29T22:59:59Z");
    QCOMPARE(shown(), QString("home|10 %|1 GB of 10 GB used, 2 days left, 4.5 GB a day"));
    m_clock->utc += 1;
    QCOMPARE(shown(), QString("home|10 %|1 GB of 10 GB used, 9 GB left, today is the last day"));
    m_clock->utc = utcOf("2026-11-30T23:00:00Z");
    QCOMPARE(shown(), QString("home|0 %|0 KB of 10 GB used, 31 days left, 330 MB a day"));
}

void TestPlanLine::followsTheZone()
{
    QVERIFY(m_store->setPlan(planCalled("home", 10 * gigabyte)));
    m_clock->utc = utcOf("2026-11-30T23:00:00Z");
    QVERIFY(shown().contains("31 days left"));
    const LocalZone local("America/New_York");
    QCOMPARE(shown(), QString("home|0 %|0 KB of 10 GB used, 10 GB left, today is the last day"));
}

/// A history that somebody keeps for himself is soon free again.
void TestPlanLine::waitsForALockedHistory()
{
    QVERIFY(m_store->setPlan(planCalled("home", gigabyte)));
    m_line.reset();
    m_watch.reset();
    m_store.reset();
    auto other = std::make_unique<SQLite::Database>(m_path, SQLite::OPEN_READWRITE);
    other->exec("PRAGMA locking_mode = EXCLUSIVE");
    other->exec("UPDATE plan SET name = 'away'");
    m_watch = std::make_unique<PlanWatch>(QString::fromStdString(m_path));
    m_line = std::make_unique<PlanLine>(*m_watch);
    QCOMPARE(shown(), QString());
    QVERIFY(m_watch->problem().isEmpty());
    other.reset();
    QVERIFY(shown().startsWith("away|0 %"));
}

void TestPlanLine::saysWhyPlansCannotBeRead()
{
    QVERIFY(m_store->setPlan(planCalled("home", gigabyte)));
    runSql(m_path, "UPDATE plan SET network = 'moon'");
    QVERIFY2(shown().startsWith("The network of the plan \"home\", \"moon\", is none of home"),
             qPrintable(shown()));
    runSql(m_path, "UPDATE plan SET network = 'home'");
    QVERIFY(shown().startsWith("home|0 %"));
}

void TestPlanLine::speaksTheLanguageOfTheProgram()
{
    QVERIFY(m_store->setPlan(planCalled("home", 10 * gigabyte)));
    QVERIFY(m_store->add(movedIn("2026-11-16T10:00:00Z", 8 * gigabyte)));
    readPlans();
    QVERIFY(refhost::setLanguage("de"));
    QTRY_COMPARE(
        shownText(*m_line),
        QString("home|80 %|80 % erreicht|8 GB von 10 GB verbraucht, noch 12 Tage, 170 MB am Tag"));
}

void TestPlanLine::showsThePeriodsBefore()
{
    addPast(*m_store);
    DataPlan plan = planOf(MonthlyFrom{1}, 10 * megabyte);
    plan.usedElsewhere = UsedElsewhere{megabyte, dayNumber("2026-11-05")};
    QVERIFY(m_store->setPlan(plan));
    DataPlan over = planCalled("over");
    over.period = OnceBetween{dayNumber("2026-10-01"), dayNumber("2026-10-31")};
    over.key = m_store->setPlan(over).value();
    readPlans();
    PastPeriodsDialog dialog(*m_watch, over.key, m_line.get());
    m_watch->finish();
    const auto &table = *dialog.findChild<QTableWidget *>();
    QCOMPARE(rowsOf(table), QStringList("|01/10/2026|31/10/2026|3.00 MB|"));
    choose(dialog, "Plan", "plan");
    m_watch->finish();
    QCOMPARE(rowsOf(table), (QStringList{"Present|01/11/2026|30/11/2026|6.00 MB|4.00 MB",
                                         "|01/10/2026|31/10/2026|3.00 MB|7.00 MB",
                                         "|01/09/2026|30/09/2026|12.00 MB|-2.00 MB"}));
    QCOMPARE(messagesIn(dialog), QStringList());
}

void TestPlanLine::copiesPeriods()
{
    addPast(*m_store);
    QVERIFY(m_store->setPlan(planOf(MonthlyFrom{1}, 10 * megabyte)));
    readPlans();
    PastPeriodsDialog dialog(*m_watch, 0, m_line.get());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    m_watch->finish();
    auto &table = *dialog.findChild<QTableWidget *>();
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             QString("First day\tLast day\tUsed\tLeft\n"
                     "01/11/2026\t30/11/2026\t5.00 MB\t5.00 MB\n"
                     "01/10/2026\t31/10/2026\t3.00 MB\t7.00 MB\n"));
    table.clearSelection();
    press(dialog, "Copy");
    QCOMPARE(QApplication::clipboard()->text().count('\n'), 4);
}

void TestPlanLine::opensItsDialogsFromTheMenu()
{
    PlanMenu menu(*m_watch, m_line.get());
    QAction *const plans = menu.actions().at(0);
    QAction *const periods = menu.actions().at(1);
    QVERIFY(!periods->isEnabled());
    plans->trigger();
    QVERIFY(m_line->findChild<PlanDialog *>());
    QVERIFY(m_store->setPlan(planCalled("home")));
    readPlans();
    periods->trigger();
    QVERIFY(m_line->findChild<PastPeriodsDialog *>());
    menu.addPlan();
    QVERIFY(m_line->findChild<PlanEditor *>());
}

QTEST_MAIN(TestPlanLine)

#include "tst_planline.moc"
