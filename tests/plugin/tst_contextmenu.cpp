// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QRegularExpression>
#include <QShortcut>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

using scripted::Host;

class tst_ContextMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_plugin.reset(); }

    void opensOnACellWithItsTwoEntries();
    void bindsDeleteDAndAToTheOpenMenu();
    void staysAwayOutsideTheCells_data();
    void staysAwayOutsideTheCells();
    void opensDownToTheTablesHeight();
    void actsOnItsEntries_data();
    void actsOnItsEntries();
    void actsOnItsKeys_data();
    void actsOnItsKeys();
    void ignoresItsKeysWhileItIsClosed();
    void buildsAFreshMenuEachTime();
    void survivesTheEndWhileItIsOpen();
    void outlivesTheTableDuringTheQuestionOfItsEntry_data();
    void outlivesTheTableDuringTheQuestionOfItsEntry();
    void logsItsOperations();

private:
    /// Asks for the menu at this place and runs `whileOpen` once it is open;
    /// returns whether it has opened.
    bool request(const QPoint &point, const std::function<void(QMenu *)> &whileOpen);
    /// Opens the menu where the pointer stands and clicks on its entry; returns
    /// whether it has opened.
    bool clickOn(int entry);
    QPoint cell(int row) const;

    std::unique_ptr<LoadedPlugin> m_plugin;
};

void tst_ContextMenu::init()
{
    Host::instance().reset();
    Host::instance().textPrefix = QStringLiteral("t:");
    Host::instance().records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 3);
    m_plugin = std::make_unique<LoadedPlugin>();
    m_plugin->show();
    m_plugin->area()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_plugin->area()));
}

QPoint tst_ContextMenu::cell(int row) const
{
    return m_plugin->table()->visualItemRect(m_plugin->table()->item(row, 1)).center();
}

bool tst_ContextMenu::request(const QPoint &point, const std::function<void(QMenu *)> &whileOpen)
{
    bool hasOpened = false;
    QTimer::singleShot(0, this, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        hasOpened = menu;
        if (!menu)
            return;
        whileOpen(menu);
        if (QWidget *stillOpen = QApplication::activePopupWidget())
            stillOpen->close();
    });
    QMetaObject::invokeMethod(m_plugin->table(), "customContextMenuRequested",
                              Q_ARG(QPoint, point));
    QCoreApplication::processEvents(); // runs the timer where no menu has opened
    return hasOpened;
}

bool tst_ContextMenu::clickOn(int entry)
{
    // Newer Qt ignores clicks until the pointer has left the place where it opened the menu.
    QTest::mouseMove(m_plugin->table()->viewport(), cell(1));
    return request(cell(1), [entry](QMenu *menu) {
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(menu->actions().at(entry)).center());
    });
}

void tst_ContextMenu::opensOnACellWithItsTwoEntries()
{
    QStringList texts;
    QPoint place;
    QVERIFY(request(cell(1), [&](QMenu *menu) {
        place = menu->pos();
        QCOMPARE(menu->parentWidget(), m_plugin->table());
        QVERIFY(!menu->activeAction());
        for (const QAction *action : menu->actions()) {
            texts.append(action->text());
            QVERIFY(action->shortcuts().isEmpty());
            QCOMPARE(action->parent(), m_plugin->historyWindow());
        }
    }));
    QCOMPARE(texts, (QStringList{"t:IDS_MENU_DELETE", "t:IDS_MENU_DELETEALL"}));
    QCOMPARE(place, m_plugin->table()->viewport()->mapToGlobal(cell(1)));
}

void tst_ContextMenu::bindsDeleteDAndAToTheOpenMenu()
{
    QList<QKeySequence> keys;
    QVERIFY(request(cell(0), [&](QMenu *menu) {
        for (const QShortcut *shortcut : menu->findChildren<QShortcut *>()) {
            keys.append(shortcut->key());
            QCOMPARE(shortcut->context(), Qt::WindowShortcut);
        }
    }));
    QCOMPARE(keys, (QList<QKeySequence>{QKeySequence(Qt::Key_Delete), QKeySequence(Qt::Key_D),
                                        QKeySequence(Qt::Key_A)}));
}

void tst_ContextMenu::staysAwayOutsideTheCells_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::newRow("below the last row") << QPoint(20, 3 * 14 + 5);
    QTest::newRow("beside the last column") << QPoint(735, 5);
    QTest::newRow("above the table") << QPoint(20, -1);
    QTest::newRow("below the table") << QPoint(20, 5000);
    QTest::newRow("left of the table") << QPoint(-5, 5);
}

void tst_ContextMenu::staysAwayOutsideTheCells()
{
    QFETCH(QPoint, point);
    QVERIFY(!request(point, [](QMenu *) {}));
    QVERIFY(m_plugin->table()->findChildren<QMenu *>().isEmpty());
}

void tst_ContextMenu::opensDownToTheTablesHeight()
{
    // The header takes room from the cells, so a row stands there, out of sight.
    Host::instance().records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 100);
    m_plugin->ui()->Init();
    const int height = m_plugin->table()->height();
    QVERIFY(m_plugin->table()->indexAt(QPoint(20, height + 1)).isValid());
    QVERIFY(request(QPoint(20, height), [](QMenu *) {}));
    QVERIFY(!request(QPoint(20, height + 1), [](QMenu *) {}));
}

void tst_ContextMenu::actsOnItsEntries_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("question");
    QTest::newRow("delete") << 0 << "t:IDS_STR_DELETE";
    QTest::newRow("delete all") << 1 << "t:IDS_STR_CLEARALL";
}

void tst_ContextMenu::actsOnItsEntries()
{
    QFETCH(int, entry);
    QFETCH(QString, question);
    m_plugin->table()->selectRow(1);
    QVERIFY(clickOn(entry));
    QCOMPARE(Host::instance().messageBoxes.size(), 1);
    QCOMPARE(Host::instance().messageBoxes.first().text, question);
}

void tst_ContextMenu::actsOnItsKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("question");
    QTest::newRow("Delete") << int(Qt::Key_Delete) << "t:IDS_STR_DELETE";
    QTest::newRow("D") << int(Qt::Key_D) << "t:IDS_STR_DELETE";
    QTest::newRow("A") << int(Qt::Key_A) << "t:IDS_STR_CLEARALL";
}

void tst_ContextMenu::actsOnItsKeys()
{
    QFETCH(int, key);
    QFETCH(QString, question);
    m_plugin->table()->selectRow(1);
    QVERIFY(request(cell(1), [key](QMenu *menu) { QTest::keyClick(menu, Qt::Key(key)); }));
    QCOMPARE(Host::instance().messageBoxes.size(), 1);
    QCOMPARE(Host::instance().messageBoxes.first().text, question);
}

void tst_ContextMenu::ignoresItsKeysWhileItIsClosed()
{
    m_plugin->table()->selectRow(1);
    QVERIFY(request(cell(1), [](QMenu *) {}));
    QTest::keyClick(m_plugin->table(), Qt::Key_D);
    QTest::keyClick(m_plugin->table(), Qt::Key_A);
    QVERIFY(Host::instance().messageBoxes.isEmpty());
}

void tst_ContextMenu::buildsAFreshMenuEachTime()
{
    QPointer<QMenu> first;
    QPointer<QMenu> second;
    QVERIFY(request(cell(1), [&](QMenu *menu) { first = menu; }));
    QVERIFY(request(cell(1), [&](QMenu *menu) { second = menu; }));
    QVERIFY(first && second && first != second);
    QCOMPARE(m_plugin->table()->findChildren<QMenu *>().size(), 2);
    QCOMPARE(m_plugin->historyWindow()->findChildren<QAction *>().size(), 4);
    QVERIFY(request(cell(1), [](QMenu *menu) { QTest::keyClick(menu, Qt::Key_A); }));
    QCOMPARE(Host::instance().messageBoxes.size(), 1); // only the newest menu acts
}

void tst_ContextMenu::survivesTheEndWhileItIsOpen()
{
    QVERIFY(request(cell(1), [this](QMenu *) { m_plugin->end(); }));
    QVERIFY(!m_plugin->table());
}

void tst_ContextMenu::outlivesTheTableDuringTheQuestionOfItsEntry_data()
{
    QTest::addColumn<bool>("isAreaFirst");
    QTest::newRow("the host ends the plug-in") << false;
    QTest::newRow("the host destroys its area") << true;
}

void tst_ContextMenu::outlivesTheTableDuringTheQuestionOfItsEntry()
{
    QFETCH(bool, isAreaFirst);
    QPointer<QMenu> asking;
    bool hasOutlived = false;
    Host::instance().answer = [&](const scripted::MessageBox &) {
        asking = m_plugin->table()->findChild<QMenu *>();
        if (isAreaFirst)
            m_plugin->destroyArea();
        else
            m_plugin->end();
        hasOutlived = asking; // its handling of the click is not done yet
        return 1024;
    };
    QVERIFY(clickOn(1));
    QVERIFY(hasOutlived);
    QTRY_VERIFY(!asking);
}

void tst_ContextMenu::logsItsOperations()
{
    const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg");
    const auto matches = [](const QStringList &lines, const QString &pattern) {
        return lines.filter(QRegularExpression(pattern)).size();
    };
    LogCapture log;
    QVERIFY(request(cell(1), [](QMenu *) {}));
    QStringList lines = log.takeAbout(path);
    QCOMPARE(matches(lines, "^Start: " + path + " showTableContextMenu: \\d+: <now>:$"), 1);
    QCOMPARE(matches(lines, "^End: " + path + " showTableContextMenu: \\d+: <now>:$"), 1);
    QCOMPARE(matches(lines, "^Enter: " + path + ": createTableRightClickAction: \\d+: <now>:$"), 1);
    QCOMPARE(matches(lines, "^Exit: " + path + ": createTableRightClickAction: \\d+: <now>:$"), 1);
    QVERIFY(!request(QPoint(20, 200), [](QMenu *) {}));
    lines = log.takeAbout(path);
    QCOMPARE(lines.size(), 1); // the entry alone
}

QTEST_MAIN(tst_ContextMenu)
#include "tst_contextmenu.moc"
