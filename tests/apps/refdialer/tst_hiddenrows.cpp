// SPDX-License-Identifier: MIT
#include "BoxInput.h"
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "apps/refdialer/HistorySearch.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSet>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <memory>

Q_DECLARE_METATYPE(std::function<void()>)

/// What a search hides is neither selected nor deleted, whatever the user does with keys and
/// mouse. The profiles are "a0", "b1", "a2", "b3" ... by day, the newest on top.
class TestHiddenRows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_history.reset(); }

    void deletesWhatIsSeenOnly_data();
    void deletesWhatIsSeenOnly();
    void offersNoDeletionOfAllWhileRowsAreHidden_data();
    void offersNoDeletionOfAllWhileRowsAreHidden();
    void offersTheDeletionOfAllOnceAllIsSeen();
    void selectsNothingThatAppearsAgain();
    void keepsRowsHiddenWhenTheyAreLoadedAnew();
    void deletesWhatIsSeenOnlyInAnyOrderOfSteps();

private:
    using Step = std::function<void()>;
    void search(const QString &text);
    void takeFocus();
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void click(const QString &profile, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void drag(const QString &from, const QString &to);
    bool openMenu(const Step &step);
    void deleteAndConfirm();
    void takeRandomStep(QRandomGenerator &random);
    int rowOf(const QString &profile) const;
    QStringList seenProfiles() const;
    QStringList selectedProfiles() const;
    QString hiddenSelection() const;

    std::unique_ptr<HistoryWindow> m_history;
    int m_questions = 0;
};

namespace
{

constexpr int rowCount = 12;

QString profile(int day)
{
    return QString(day % 2 == 0 ? "a%1" : "b%1").arg(day);
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

QMenu *contextMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

} // namespace

void TestHiddenRows::init()
{
    m_questions = 0;
    m_history = std::make_unique<HistoryWindow>();
    std::vector<history::Connection> connections;
    for (int day = 0; day < rowCount; ++day)
        connections.push_back(connection(profile(day).toStdString(), day));
    QVERIFY(m_history->store(connections));
    QVERIFY(m_history->open());
    QCOMPARE(m_history->shownProfiles().first(), QString("b11"));
}

void TestHiddenRows::takeFocus()
{
    // Nobody but a window manager does that after a question.
    m_history->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_history->window()));
    m_history->table().setFocus();
}

/// Types it, instead of what was there.
void TestHiddenRows::search(const QString &text)
{
    takeFocus();
    m_history->pressKey(Qt::Key_F, Qt::ControlModifier);
    m_history->pressKey(Qt::Key_Delete);
    QTest::keyClicks(QApplication::focusWidget(), text);
    takeFocus();
}

void TestHiddenRows::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    takeFocus();
    m_history->pressKey(key, modifiers);
}

void TestHiddenRows::click(const QString &profile, Qt::KeyboardModifiers modifiers)
{
    takeFocus();
    QTableWidget &table = m_history->table();
    table.scrollToItem(table.item(rowOf(profile), 0));
    m_history->clickRow(rowOf(profile), modifiers);
}

void TestHiddenRows::drag(const QString &from, const QString &to)
{
    takeFocus();
    QTableWidget &table = m_history->table();
    QWidget *const viewport = table.viewport();
    const QPoint start = table.visualItemRect(table.item(rowOf(from), 0)).center();
    const QPoint end = table.visualItemRect(table.item(rowOf(to), 0)).center();
    QTest::mousePress(viewport, Qt::LeftButton, {}, start);
    // A mouse that moves with a button down, which QTest has no call for.
    for (const QPoint &place : {(start + end) / 2, end}) {
        QMouseEvent move(QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, end);
}

/// At the first row in sight; false if there is none.
bool TestHiddenRows::openMenu(const Step &step)
{
    takeFocus();
    QTableWidget &table = m_history->table();
    const int row = table.rowAt(0);
    if (row < 0)
        return false;
    const QPoint place = table.visualItemRect(table.item(row, 0)).center();
    bool wasOpen = false;
    QTimer::singleShot(0, this, [&wasOpen, step] {
        wasOpen = contextMenu() != nullptr;
        step();
        if (QMenu *const menu = contextMenu())
            menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, table.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(table.viewport(), &event);
    return wasOpen;
}

/// Presses Delete, and OK if there is a question.
void TestHiddenRows::deleteAndConfirm()
{
    takeFocus();
    QTimer::singleShot(0, this, [this] {
        if (QMessageBox *const box = openBox()) {
            ++m_questions;
            clickOn(*box, "OK");
        }
    });
    m_history->pressKey(Qt::Key_Delete);
    // Without a question the step above is still to come.
    QCoreApplication::processEvents();
}

int TestHiddenRows::rowOf(const QString &profile) const
{
    return int(m_history->shownProfiles().indexOf(profile));
}

QStringList TestHiddenRows::seenProfiles() const
{
    QStringList profiles;
    for (int row = 0; row < m_history->table().rowCount(); ++row) {
        if (!m_history->table().isRowHidden(row))
            profiles.append(m_history->table().item(row, 0)->text());
    }
    return profiles;
}

QStringList TestHiddenRows::selectedProfiles() const
{
    QStringList profiles;
    for (const QModelIndex &index : m_history->table().selectionModel()->selectedRows())
        profiles.append(index.data().toString());
    return profiles;
}

/// The hidden rows that are selected, which are none.
QString TestHiddenRows::hiddenSelection() const
{
    QStringList profiles;
    for (const QString &profile : selectedProfiles()) {
        if (!seenProfiles().contains(profile))
            profiles.append(profile);
    }
    return profiles.join(' ');
}

void TestHiddenRows::deletesWhatIsSeenOnly_data()
{
    QTest::addColumn<Step>("select");
    QTest::addColumn<QStringList>("deleted");
    const QStringList allSeen{"a0", "a2", "a4", "a6", "a8", "a10"};
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    const auto row = [](const char *name, const Step &select, const QStringList &deleted) {
        QTest::newRow(name) << select << deleted;
    };
    row("nothing", [] {}, {});
    row(
        "all by key", [this] { search("a"), press(Qt::Key_A, Qt::ControlModifier); }, allSeen);
    row(
        "all before the search", [this] { press(Qt::Key_A, Qt::ControlModifier), search("a"); },
        allSeen);
    row(
        "all in another order",
        [this] {
            search("a"), press(Qt::Key_A, Qt::ControlModifier);
            menuEntry(m_history->window(), {"View", "Sort by", "Profile"})->trigger();
        },
        allSeen);
    row(
        "all, loaded anew",
        [this] {
            search("a"), press(Qt::Key_A, Qt::ControlModifier);
            press(Qt::Key_F5);
        },
        allSeen);
    row("a range by Shift and click",
        [this, shift] { search("a"), click("a8"), click("a4", shift); }, {"a4", "a6", "a8"});
    row("a range that is made smaller",
        [this, shift] { search("a"), click("a8"), click("a2", shift), click("a6", shift); },
        {"a6", "a8"});
    row("a range after single rows",
        [this, shift, ctrl] {
            search("a"), click("a0"), click("a8", ctrl), click("a4", shift), click("a6", shift);
        },
        {"a0", "a6", "a8"});
    row("a range by Shift and keys",
        [this, shift] {
            search("a"), click("a8");
            press(Qt::Key_Down, shift), press(Qt::Key_Down, shift), press(Qt::Key_Up, shift);
        },
        {"a6", "a8"});
    row("a range to the end",
        [this, shift] { search("a"), click("a4"), press(Qt::Key_PageDown, shift); },
        {"a0", "a2", "a4"});
    row("a range that the mouse draws", [this] { search("a"), drag("a8", "a2"); },
        {"a2", "a4", "a6", "a8"});
    row("a row that is searched away",
        [this, ctrl] { click("a8"), click("b3", ctrl), search("a"); }, {"a8"});
    row("only rows that are searched away", [this] { click("b3"), search("a"); }, {});
    row("none of the rows that are found again",
        [this] { search("a"), press(Qt::Key_A, Qt::ControlModifier), search("b"); }, {});
    row("the current row, which is searched away, by Space",
        [this] { click("b3"), search("a"), press(Qt::Key_Space); }, {});
}

void TestHiddenRows::deletesWhatIsSeenOnly()
{
    QFETCH(Step, select);
    QFETCH(QStringList, deleted);
    select();
    QCOMPARE(hiddenSelection(), QString());
    QCOMPARE(sorted(selectedProfiles()), sorted(deleted));
    deleteAndConfirm();
    QCOMPARE(m_questions, deleted.isEmpty() ? 0 : 1);
    QStringList remaining;
    for (int day = 0; day < rowCount; ++day) {
        if (!deleted.contains(profile(day)))
            remaining.append(profile(day));
    }
    QCOMPARE(m_history->storedProfiles(), remaining);
    QCOMPARE(sorted(m_history->shownProfiles()), sorted(remaining));
}

void TestHiddenRows::offersNoDeletionOfAllWhileRowsAreHidden_data()
{
    QTest::addColumn<Step>("step");
    QTest::newRow("the key A") << Step(
        [] { QTest::keyClick(contextMenu()->windowHandle(), Qt::Key_A); });
    QTest::newRow("a click") << Step([] {
        QMenu &menu = *contextMenu();
        QTest::mouseClick(&menu, Qt::LeftButton, {},
                          menu.actionGeometry(menu.actions().constLast()).center());
    });
}

void TestHiddenRows::offersNoDeletionOfAllWhileRowsAreHidden()
{
    QFETCH(Step, step);
    search("a");
    QVERIFY(openMenu([this, step] {
        QVERIFY(contextMenu()->actions().constFirst()->isEnabled());
        QVERIFY(!contextMenu()->actions().constLast()->isEnabled());
        QVERIFY(!contextMenu()->actions().constLast()->toolTip().isEmpty());
        QTimer::singleShot(0, this, [] {
            if (QMessageBox *const box = openBox())
                clickOn(*box, "OK");
        });
        step();
    }));
    QCoreApplication::processEvents();
    QCOMPARE(m_history->storedProfiles().size(), rowCount);
}

void TestHiddenRows::offersTheDeletionOfAllOnceAllIsSeen()
{
    search("a");
    search("");
    QVERIFY(openMenu([] { QVERIFY(contextMenu()->actions().constLast()->isEnabled()); }));
}

void TestHiddenRows::selectsNothingThatAppearsAgain()
{
    search("a");
    press(Qt::Key_A, Qt::ControlModifier);
    search("");
    QCOMPARE(seenProfiles().size(), rowCount);
    QCOMPARE(selectedProfiles().size(), rowCount / 2);
    QVERIFY(selectedProfiles().filter("b").isEmpty());
}

void TestHiddenRows::keepsRowsHiddenWhenTheyAreLoadedAnew()
{
    search("a");
    click("a4");
    QVERIFY(m_history->store({connection("a-new", 40), connection("b-new", 41)}));
    press(Qt::Key_F5);
    QCOMPARE(seenProfiles(), QStringList({"a-new", "a10", "a8", "a6", "a4", "a2", "a0"}));
    QCOMPARE(selectedProfiles(), QStringList("a4"));
}

void TestHiddenRows::takeRandomStep(QRandomGenerator &random)
{
    const QStringList seen = seenProfiles();
    const auto pick = [&random, &seen] { return seen.at(random.bounded(int(seen.size()))); };
    const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ShiftModifier,
                                               Qt::ControlModifier};
    switch (random.bounded(8)) {
    case 0:
        search(QStringList{"a", "b", "1", "", "nothing"}.at(random.bounded(5)));
        break;
    case 1:
        press(Qt::Key_A, Qt::ControlModifier);
        break;
    case 2:
        menuEntry(m_history->window(),
                  {"View", "Sort by", random.bounded(2) == 0 ? "Profile" : "Start"})
            ->trigger();
        break;
    case 3:
        press(Qt::Key_F5);
        break;
    case 4:
        press(random.bounded(2) == 0 ? Qt::Key_Down : Qt::Key_Up, modifiers[random.bounded(2)]);
        break;
    case 5:
        if (!seen.isEmpty())
            drag(pick(), pick());
        break;
    default:
        if (!seen.isEmpty())
            click(pick(), modifiers[random.bounded(3)]);
        break;
    }
}

void TestHiddenRows::deletesWhatIsSeenOnlyInAnyOrderOfSteps()
{
    QRandomGenerator random(20261122);
    m_history->window().resize(800, 600);
    for (int round = 0; round < 60; ++round) {
        for (int step = random.bounded(1, 8); step > 0; --step) {
            takeRandomStep(random);
            QCOMPARE(hiddenSelection(), QString());
        }
        QStringList remaining = m_history->storedProfiles();
        for (const QString &selected : selectedProfiles())
            remaining.removeOne(selected);
        deleteAndConfirm();
        QCOMPARE(sorted(m_history->storedProfiles()), sorted(remaining));
        QCOMPARE(sorted(m_history->shownProfiles()), sorted(remaining));
        if (remaining.size() >= rowCount / 2)
            continue;
        const std::string number = std::to_string(round);
        QVERIFY(m_history->store({connection("a-" + number, 20), connection("b-" + number, 21)}));
        press(Qt::Key_F5);
    }
    QVERIFY(m_questions > 10);
}

QTEST_MAIN(TestHiddenRows)
#include "tst_hiddenrows.moc"
