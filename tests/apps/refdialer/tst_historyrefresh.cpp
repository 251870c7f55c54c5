// SPDX-License-Identifier: MIT
#include "BoxInput.h"
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "StorePeer.h"
#include "apps/refdialer/HistoryWatch.h"
#include "apps/refdialer/SummaryChoice.h"

#include "ExtendDialog.h"

#include <SQLiteCpp/Database.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QProcess>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>

using history::Connection;

/// What others write to the store while the window shows it.
class TestHistoryRefresh : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_history.reset(); }

    void looksAtTheStoreEverySecond();
    void showsWhatAnotherProgramDoes();
    void showsNoSummaryForWhatOthersRecord();
    void stillSumsUpAConnectionThatLastedMeanwhile();
    void showsARecordThatWasReplaced();
    void showsAHistoryThatAppearsAndOneThatGoes();
    void loadsAtOnceWhenAsked();
    void keepsSelectionOrderAndPlace();
    void showsTheNewestAtTheBeginning();
    void loadsNothingAgainForItsOwnDeletions();
    void loadsNothingAgainForOpenConnections();
    void deletesWhatWasAskedAbout();
    void sparesWhatEndsDuringTheQuestion();
    void leavesTheRowsAloneUnderAMenu();
    void showsAgainWhatTheStoreKeeps();
    void doesNotRepeatWhatDoesNotHelp();
    void endsWhileOthersWaitForALockedStore();

private:
    bool open(bool hasDialupService = true);
    QTimer &watchTimer() const;
    void connrecord(const QStringList &arguments);
    refdialer::HistoryWatch &watch() const;
    bool hasLooked(int times = 2) const;
    bool hasPaused() const;
    QStringList selectedProfiles() const;
    void pressDelete(const std::function<void()> &whileAsked, const char *button);
    void begin();

    std::unique_ptr<HistoryWindow> m_history;
};

namespace
{

bool isSummaryShown()
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        if (dynamic_cast<ExtendDialog *>(widget))
            return true;
    }
    return false;
}

/// How often the plug-in has missed the dial-up service.
int missingServices = 0;

void countMissingService(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (message.endsWith("onConnectionReceived 348"))
        ++missingServices;
}

/// How often this process has the file open.
int descriptorsOf(const QString &path)
{
    int count = 0;
    const QDir descriptors("/proc/self/fd");
    for (const QString &name : descriptors.entryList(QDir::Files | QDir::System))
        count += QFile::symLinkTarget(descriptors.filePath(name)) == path ? 1 : 0;
    return count;
}

std::vector<Connection> numbered(int count)
{
    std::vector<Connection> connections;
    for (int day = 0; day < count; ++day)
        connections.push_back(connection("day" + std::to_string(day), day));
    return connections;
}

} // namespace

void TestHistoryRefresh::init()
{
    m_history = std::make_unique<HistoryWindow>();
    QVERIFY(refdialer::storeSummaryChoice(true));
}

/// In a window that looks at the store more often than it would.
bool TestHistoryRefresh::open(bool hasDialupService)
{
    const bool isOpen = m_history->open(hasDialupService);
    watchTimer().setInterval(10);
    return isOpen;
}

QTimer &TestHistoryRefresh::watchTimer() const
{
    const auto timers = watch().parent()->findChildren<QTimer *>();
    return **std::find_if(timers.begin(), timers.end(),
                          [](const QTimer *timer) { return !timer->isSingleShot(); });
}

void TestHistoryRefresh::connrecord(const QStringList &arguments)
{
    QProcess process;
    process.start(CONNRECORD, arguments);
    QVERIFY(process.waitForFinished());
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
}

refdialer::HistoryWatch &TestHistoryRefresh::watch() const
{
    return *m_history->window().findChild<refdialer::HistoryWatch *>();
}

/// Lets the window look at the store; twice, as the first may have begun before.
bool TestHistoryRefresh::hasLooked(int times) const
{
    QSignalSpy seen(&watch(), &refdialer::HistoryWatch::seen);
    return QTest::qWaitFor([&seen, times] { return seen.size() >= times; });
}

/// Lets the times pass at which the window would look at the store.
bool TestHistoryRefresh::hasPaused() const
{
    QSignalSpy timeouts(&watchTimer(), &QTimer::timeout);
    return QTest::qWaitFor([&timeouts] { return timeouts.size() >= 2; });
}

QStringList TestHistoryRefresh::selectedProfiles() const
{
    QStringList profiles;
    for (const QModelIndex &index : m_history->table().selectionModel()->selectedRows())
        profiles.append(index.data().toString());
    return profiles;
}

void TestHistoryRefresh::begin()
{
    recorder::ConnectionState state;
    state.id = 1;
    m_history->state().begin(state);
}

void TestHistoryRefresh::looksAtTheStoreEverySecond()
{
    QVERIFY(m_history->open());
    QVERIFY(watchTimer().isActive());
    QCOMPARE(watchTimer().interval(), 1000);
}

void TestHistoryRefresh::showsWhatAnotherProgramDoes()
{
    QVERIFY(open());
    const QString store = QString::fromStdString(m_history->storePath());
    connrecord({"add", "--store", store, "--profile", "added", "--start", "2026-09-01T10:00:00",
                "--end", "2026-09-01T11:00:00", "--up", "1", "--down", "2"});
    QTRY_COMPARE(m_history->shownProfiles(), QStringList("added"));
    QVERIFY(m_history->table().updatesEnabled());
    const std::int64_t key = m_history->storedKeys().at(0);
    connrecord({"remove", "--store", store, QString::number(key)});
    QTRY_COMPARE(m_history->shownProfiles(), QStringList());
}

void TestHistoryRefresh::showsNoSummaryForWhatOthersRecord()
{
    QVERIFY(open());
    QVERIFY(m_history->store({connection("other", 0)}));
    QTRY_COMPARE(m_history->shownProfiles(), QStringList("other"));
    QVERIFY(!isSummaryShown());
}

void TestHistoryRefresh::stillSumsUpAConnectionThatLastedMeanwhile()
{
    QVERIFY(open());
    begin();
    QVERIFY(m_history->store({connection("other", 0)}));
    QTRY_COMPARE(m_history->shownProfiles(), QStringList("other"));
    QVERIFY(!isSummaryShown());
    QVERIFY(m_history->store({connection("own", 1)}));
    m_history->plugin().tellDisconnected();
    QVERIFY(isSummaryShown());
}

void TestHistoryRefresh::showsARecordThatWasReplaced()
{
    QVERIFY(m_history->store({connection("day0", 0)}));
    QVERIFY(open());
    QVERIFY(m_history->runSql("UPDATE connection SET profile = 'renamed'"));
    QTRY_COMPARE(m_history->shownProfiles(), QStringList("renamed"));
    QVERIFY(m_history->runSql("UPDATE connection SET uploaded_bytes = 3072"));
    QTRY_COMPARE(m_history->column(4), QStringList("3.00 KB"));
}

void TestHistoryRefresh::showsAHistoryThatAppearsAndOneThatGoes()
{
    QVERIFY(open());
    QVERIFY(m_history->store({connection("new", 0)}));
    QTRY_COMPARE(m_history->shownProfiles(), QStringList("new"));
    QVERIFY(QFile::remove(QString::fromStdString(m_history->storePath())));
    QTRY_COMPARE(m_history->shownProfiles(), QStringList());
}

void TestHistoryRefresh::loadsAtOnceWhenAsked()
{
    QVERIFY(m_history->open());
    watchTimer().stop();
    QVERIFY(m_history->store({connection("day0", 0)}));
    m_history->pressKey(Qt::Key_F5);
    QCOMPARE(m_history->shownProfiles(), QStringList("day0"));
    QVERIFY(m_history->store({connection("day1", 1)}));
    menuEntry(m_history->window(), {"View", "Refresh"})->trigger();
    QCOMPARE(m_history->shownProfiles(), QStringList({"day1", "day0"}));
    QVERIFY(!isSummaryShown());
}

void TestHistoryRefresh::keepsSelectionOrderAndPlace()
{
    QVERIFY(m_history->store(numbered(200)));
    QVERIFY(open());
    menuEntry(m_history->window(), {"View", "Sort by", "Ascending"})->trigger();
    QTableWidget &table = m_history->table();
    table.setCurrentCell(120, 2);
    for (const int row : {100, 110}) // 120 is selected already
        table.selectionModel()->select(table.model()->index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    table.scrollTo(table.model()->index(115, 0), QAbstractItemView::PositionAtTop);
    QCOMPARE(table.item(table.rowAt(0), 0)->text(), QString("day115"));
    // Of the rows above, one goes and two come; of the selected ones, one goes.
    QVERIFY(m_history->store({connection("before", -1), connection("before", -2)}));
    QVERIFY(m_history->runSql("DELETE FROM connection WHERE profile IN ('day3', 'day110')"));
    QTRY_COMPARE(table.item(0, 0)->text(), QString("before"));
    QTRY_COMPARE(table.rowCount(), 200);
    QCOMPARE(selectedProfiles(), QStringList({"day100", "day120"}));
    QCOMPARE(table.currentItem()->text(), table.item(120, 2)->text());
    QCOMPARE(table.item(table.currentRow(), 0)->text(), QString("day120"));
    QCOMPARE(table.currentColumn(), 2);
    QCOMPARE(table.item(table.rowAt(0), 0)->text(), QString("day115"));
    // Where that one goes, the next one is in its place.
    QVERIFY(m_history->runSql("DELETE FROM connection WHERE profile = 'day115'"));
    QTRY_COMPARE(table.rowCount(), 199);
    QCOMPARE(table.item(table.rowAt(0), 0)->text(), QString("day116"));
}

void TestHistoryRefresh::showsTheNewestAtTheBeginning()
{
    QVERIFY(m_history->store(numbered(200)));
    QVERIFY(open());
    m_history->table().setCurrentCell(0, 0);
    QVERIFY(m_history->store({connection("newest", 300)}));
    QTRY_COMPARE(m_history->table().rowCount(), 201);
    QCOMPARE(m_history->table().item(m_history->table().rowAt(0), 0)->text(), QString("newest"));
    QCOMPARE(selectedProfiles(), QStringList("day199"));
}

/// Presses Delete, does the step while the question is open and answers it.
void TestHistoryRefresh::pressDelete(const std::function<void()> &whileAsked, const char *button)
{
    m_history->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_history->window()));
    m_history->table().setFocus();
    bool wasAsked = false;
    // Not before the wait above, which would look for the question too early.
    QTimer::singleShot(0, this, [&] {
        QMessageBox *const box = openBox();
        QVERIFY(box);
        wasAsked = true;
        whileAsked();
        clickOn(*box, button);
    });
    m_history->pressKey(Qt::Key_Delete);
    QVERIFY(wasAsked);
}

void TestHistoryRefresh::loadsNothingAgainForItsOwnDeletions()
{
    QVERIFY(m_history->store(numbered(5)));
    QVERIFY(open());
    m_history->clickRow(2);
    const QSignalSpy changes(m_history->table().model(), &QAbstractItemModel::dataChanged);
    pressDelete([] {}, "OK");
    QVERIFY(hasLooked());
    QCOMPARE(m_history->shownProfiles(), QStringList({"day4", "day3", "day1", "day0"}));
    QCOMPARE(changes.size(), 0);
}

void TestHistoryRefresh::loadsNothingAgainForOpenConnections()
{
    QVERIFY(m_history->store(numbered(5)));
    QVERIFY(open());
    const QSignalSpy changes(m_history->table().model(), &QAbstractItemModel::dataChanged);
    auto store = history::Store::openForRecording(m_history->storePath());
    history::OpenConnection open;
    open.bootId = "boot";
    const auto begun = store.value().begin(open);
    QVERIFY(begun);
    QVERIFY(hasLooked());
    QVERIFY(store.value().checkpoint(begun.value()));
    QVERIFY(hasLooked());
    QCOMPARE(changes.size(), 0);
}

void TestHistoryRefresh::deletesWhatWasAskedAbout()
{
    QVERIFY(m_history->store(numbered(5)));
    QVERIFY(open());
    m_history->clickRow(2);
    pressDelete(
        [this] {
            QVERIFY(m_history->store({connection("meanwhile", 10)}));
            QVERIFY(hasPaused());
            QCOMPARE(m_history->table().rowCount(), 5);
        },
        "OK");
    QCOMPARE(m_history->storedProfiles(),
             QStringList({"day0", "day1", "day3", "day4", "meanwhile"}));
    QTRY_COMPARE(m_history->shownProfiles(),
                 QStringList({"meanwhile", "day4", "day3", "day1", "day0"}));
}

void TestHistoryRefresh::sparesWhatEndsDuringTheQuestion()
{
    QVERIFY(m_history->store(numbered(3)));
    QVERIFY(open());
    begin();
    m_history->clickRow(1);
    pressDelete(
        [this] {
            QVERIFY(m_history->store({connection("own", 10)}));
            m_history->state().end(1);
        },
        "OK");
    // Asked about one row, the user has deleted that one.
    QCOMPARE(m_history->storedProfiles(), QStringList({"day0", "day2", "own"}));
    QTRY_VERIFY(isSummaryShown());
    QCOMPARE(m_history->shownProfiles(), QStringList({"own", "day2", "day0"}));
}

void TestHistoryRefresh::leavesTheRowsAloneUnderAMenu()
{
    QVERIFY(m_history->store(numbered(3)));
    QVERIFY(open());
    QMenu *const menu = menuEntry(m_history->window(), {"View"})->menu();
    menu->popup(m_history->window().mapToGlobal(QPoint(10, 10)));
    QVERIFY(m_history->store({connection("meanwhile", 10)}));
    QVERIFY(hasPaused());
    QCOMPARE(m_history->table().rowCount(), 3);
    menu->close();
    QTRY_COMPARE(m_history->table().rowCount(), 4);
}

void TestHistoryRefresh::showsAgainWhatTheStoreKeeps()
{
    QVERIFY(m_history->store(numbered(3)));
    QVERIFY(open());
    const int version = SQLite::Database(m_history->storePath()).execAndGet("PRAGMA user_version");
    m_history->clickRow(1);
    const QSignalSpy removals(m_history->table().model(), &QAbstractItemModel::rowsRemoved);
    // The store refuses what a newer program has made of it.
    pressDelete([this] { QVERIFY(m_history->runSql("PRAGMA user_version = 1000")); }, "OK");
    QCOMPARE(removals.size(), 1);
    QVERIFY(m_history->runSql("PRAGMA user_version = " + std::to_string(version)));
    QTRY_COMPARE(m_history->shownProfiles(), QStringList({"day2", "day1", "day0"}));
}

void TestHistoryRefresh::doesNotRepeatWhatDoesNotHelp()
{
    QVERIFY(open(false));
    QVERIFY(m_history->store({connection("day0", 0)}));
    const QtMessageHandler former = qInstallMessageHandler(countMissingService);
    const bool hasLookedOften = hasLooked(4);
    qInstallMessageHandler(former);
    QVERIFY(hasLookedOften);
    QCOMPARE(m_history->table().rowCount(), 0);
    // One beginning and one end.
    QCOMPARE(missingServices, 2);
}

void TestHistoryRefresh::endsWhileOthersWaitForALockedStore()
{
    QVERIFY(m_history->store(numbered(1)));
    const QString path =
        QFileInfo(QString::fromStdString(m_history->storePath())).canonicalFilePath();
    StorePeer locking;
    QCOMPARE(locking.tell("lock " + path), QString("ok"));
    StorePeer waiting;
    waiting.send("count " + path);
    // One that waited as long as that would be there until the other has given up.
    for (int i = 0; i < 2; ++i) {
        refdialer::HistoryWatch watch(path.toStdString());
        const auto isAtIt = [&watch, &path] {
            watch.look();
            return descriptorsOf(path) > 0;
        };
        QTRY_VERIFY(isAtIt());
    }
    QVERIFY(!waiting.hasAnswered());
    QVERIFY(waiting.answer().startsWith("failed"));
}

QTEST_MAIN(TestHistoryRefresh)
#include "tst_historyrefresh.moc"
