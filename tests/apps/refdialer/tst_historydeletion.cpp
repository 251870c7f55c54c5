// SPDX-License-Identifier: MIT
#include "BoxInput.h"
#include "HistoryWindow.h"
#include "MenuEntry.h"

#include <SQLiteCpp/Database.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <memory>

/// Deletion as the user does it, with keys and mouse, down to the real store.
class TestHistoryDeletion : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void deletesExactlyWhatWasChosen_data();
    void deletesExactlyWhatWasChosen();
    void deletesTheRowsThatItShowsInAnotherOrder();
    void deletesTheRightOnesAfterEarlierDeletions();
    void sparesAConnectionThatWasStoredMeanwhile();
    void takesARowFromTheWindowThatTheStoreKeeps();

private:
    using Step = std::function<void()>;
    using Answer = std::function<void(QMessageBox &)>;
    void answerWhenAsked(const Answer &answer);
    void deleteByKey(const QList<int> &rows, const Answer &answer);
    void deleteByMenu(const QList<int> &rows, const Step &choose, const Answer &answer);
    void chooseRows(const QList<int> &rows);

    std::unique_ptr<HistoryWindow> m_history;
    int m_questions = 0;
};

namespace
{

QMenu *contextMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

void clickEntry(int place)
{
    QMenu &menu = *contextMenu();
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(menu.actions().at(place)).center());
}

void pressInMenu(Qt::Key key)
{
    QTest::keyClick(contextMenu()->windowHandle(), key);
}

void ok(QMessageBox &box)
{
    clickOn(box, "OK");
}

} // namespace

void TestHistoryDeletion::init()
{
    m_questions = 0;
    m_history = std::make_unique<HistoryWindow>();
    std::vector<history::Connection> connections;
    for (int day = 0; day < 8; ++day)
        connections.push_back(connection("day" + std::to_string(day), day));
    QVERIFY(m_history->store(connections));
    QVERIFY(m_history->open());
    // The newest is on top.
    QCOMPARE(m_history->shownProfiles().first(), QString("day7"));
}

void TestHistoryDeletion::cleanup()
{
    m_history.reset();
}

void TestHistoryDeletion::chooseRows(const QList<int> &rows)
{
    // Nobody but a window manager does that after a question.
    m_history->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_history->window()));
    m_history->table().setFocus();
    m_history->table().clearSelection();
    for (const int row : rows)
        m_history->clickRow(row, Qt::ControlModifier);
}

/// Answers the question that is about to be asked, and closes it if that did not.
void TestHistoryDeletion::answerWhenAsked(const Answer &answer)
{
    QTimer::singleShot(0, this, [this, answer] {
        const QPointer<QMessageBox> box = openBox();
        if (!box)
            return;
        ++m_questions;
        answer(*box);
        if (box)
            box->close();
    });
}

/// Presses Delete and answers the question, if one comes.
void TestHistoryDeletion::deleteByKey(const QList<int> &rows, const Answer &answer)
{
    chooseRows(rows);
    answerWhenAsked(answer);
    m_history->pressKey(Qt::Key_Delete);
    // Without a question the step above is still to come.
    QCoreApplication::processEvents();
}

/// Opens the context menu on the first row, does the step there and answers the
/// question, if one comes.
void TestHistoryDeletion::deleteByMenu(const QList<int> &rows, const Step &choose,
                                       const Answer &answer)
{
    chooseRows(rows);
    QTableWidget &table = m_history->table();
    const QPoint place = table.visualItemRect(table.item(0, 0)).center();
    // Newer Qt ignores clicks until the pointer has left the place where it opened the menu.
    QTest::mouseMove(table.viewport(), place);
    QTimer::singleShot(0, this, [this, choose, answer] {
        QVERIFY(contextMenu());
        answerWhenAsked(answer);
        choose();
        if (QMenu *const menu = contextMenu())
            menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, table.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(table.viewport(), &event);
    QCoreApplication::processEvents();
}

void TestHistoryDeletion::deletesExactlyWhatWasChosen_data()
{
    const QList<int> none;
    const QList<int> one{2};
    const QList<int> several{6, 0, 3};
    const QStringList all{"day0", "day1", "day2", "day3", "day4", "day5", "day6", "day7"};
    const QStringList withoutOne{"day0", "day1", "day2", "day3", "day4", "day6", "day7"};
    const QStringList withoutSeveral{"day0", "day2", "day3", "day5", "day6"};
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<Step>("step"); // in the context menu; none for the Delete key
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("questions");
    QTest::addColumn<QStringList>("remaining");
    const Answer cancel = [](QMessageBox &box) { clickOn(box, "Cancel"); };
    const Answer tabEnter = [](QMessageBox &box) { pressKeys(box, {Qt::Key_Tab, Qt::Key_Return}); };
    const Answer enter = [](QMessageBox &box) { pressKeys(box, {Qt::Key_Return}); };
    const Answer escape = [](QMessageBox &box) { pressKeys(box, {Qt::Key_Escape}); };
    const auto click = [](int place) { return Step([place] { clickEntry(place); }); };
    const auto press = [](Qt::Key key) { return Step([key] { pressInMenu(key); }); };
    const QStringList gone;
    QTest::newRow("Delete, one, click on OK") << one << Step() << Answer(ok) << 1 << withoutOne;
    QTest::newRow("Delete, one, Tab and Enter") << one << Step() << tabEnter << 1 << withoutOne;
    QTest::newRow("Delete, one, click on Cancel") << one << Step() << cancel << 1 << all;
    QTest::newRow("Delete, one, Enter") << one << Step() << enter << 1 << all;
    QTest::newRow("Delete, one, Escape") << one << Step() << escape << 1 << all;
    QTest::newRow("Delete, several") << several << Step() << Answer(ok) << 1 << withoutSeveral;
    QTest::newRow("Delete, several, Escape") << several << Step() << escape << 1 << all;
    QTest::newRow("Delete, none") << none << Step() << Answer(ok) << 0 << all;
    QTest::newRow("menu, click on Delete")
        << several << click(0) << Answer(ok) << 1 << withoutSeveral;
    QTest::newRow("menu, the key D") << one << press(Qt::Key_D) << Answer(ok) << 1 << withoutOne;
    QTest::newRow("menu, the Delete key")
        << one << press(Qt::Key_Delete) << Answer(ok) << 1 << withoutOne;
    QTest::newRow("menu, D, cancelled") << one << press(Qt::Key_D) << escape << 1 << all;
    QTest::newRow("menu, D, none") << none << press(Qt::Key_D) << Answer(ok) << 0 << all;
    QTest::newRow("menu, click on Delete all") << none << click(1) << Answer(ok) << 1 << gone;
    QTest::newRow("menu, the key A") << one << press(Qt::Key_A) << Answer(ok) << 1 << gone;
    QTest::newRow("menu, A, cancelled") << none << press(Qt::Key_A) << cancel << 1 << all;
    QTest::newRow("menu, closed") << one << press(Qt::Key_Escape) << Answer(ok) << 0 << all;
}

Q_DECLARE_METATYPE(std::function<void()>)
Q_DECLARE_METATYPE(std::function<void(QMessageBox &)>)

void TestHistoryDeletion::deletesExactlyWhatWasChosen()
{
    QFETCH(QList<int>, rows);
    QFETCH(Step, step);
    QFETCH(Answer, answer);
    QFETCH(int, questions);
    QFETCH(QStringList, remaining);
    if (step)
        deleteByMenu(rows, step, answer);
    else
        deleteByKey(rows, answer);
    QTRY_COMPARE(m_history->table().rowCount(), int(remaining.size()));
    QCOMPARE(m_questions, questions);
    QCOMPARE(m_history->storedProfiles(), remaining);
    QStringList shown = m_history->shownProfiles();
    std::sort(shown.begin(), shown.end());
    QCOMPARE(shown, remaining);
}

void TestHistoryDeletion::deletesTheRowsThatItShowsInAnotherOrder()
{
    menuEntry(m_history->window(), {"View", "Sort by", "Ascending"})->trigger();
    QCOMPARE(m_history->shownProfiles().first(), QString("day0"));
    deleteByKey({0, 1}, ok);
    QCOMPARE(m_history->storedProfiles(),
             QStringList({"day2", "day3", "day4", "day5", "day6", "day7"}));
}

void TestHistoryDeletion::deletesTheRightOnesAfterEarlierDeletions()
{
    deleteByKey({5}, ok);    // day2
    deleteByKey({0, 1}, ok); // day7, day6
    QCOMPARE(m_history->storedProfiles(), QStringList({"day0", "day1", "day3", "day4", "day5"}));
    deleteByKey({4, 1}, ok); // day0, day4
    QCOMPARE(m_history->shownProfiles(), QStringList({"day5", "day3", "day1"}));
    QCOMPARE(m_history->storedProfiles(), QStringList({"day1", "day3", "day5"}));
    deleteByMenu(
        {}, [] { pressInMenu(Qt::Key_A); }, ok);
    QCOMPARE(m_history->storedProfiles(), QStringList());
}

void TestHistoryDeletion::sparesAConnectionThatWasStoredMeanwhile()
{
    QVERIFY(m_history->store({connection("meanwhile", 3)}));
    deleteByKey({0, 4}, ok); // day7, day3
    deleteByMenu(
        {}, [] { pressInMenu(Qt::Key_A); }, ok);
    QCOMPARE(m_history->storedProfiles(), QStringList({"meanwhile"}));
}

void TestHistoryDeletion::takesARowFromTheWindowThatTheStoreKeeps()
{
    const int version = SQLite::Database(m_history->storePath()).execAndGet("PRAGMA user_version");
    // The store refuses what a newer program has made of it.
    QVERIFY(m_history->runSql("PRAGMA user_version = 1000"));
    deleteByKey({1, 2, 3}, ok);
    QVERIFY(m_history->runSql("PRAGMA user_version = " + std::to_string(version)));
    QCOMPARE(m_history->shownProfiles(), QStringList({"day7", "day3", "day2", "day1", "day0"}));
    QCOMPARE(m_history->storedProfiles().size(), 8);
    m_history->close();
    QVERIFY(m_history->open());
    QCOMPARE(m_history->shownProfiles().size(), 8);
}

QTEST_MAIN(TestHistoryDeletion)
#include "tst_historydeletion.moc"
