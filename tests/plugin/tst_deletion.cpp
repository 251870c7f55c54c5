// SPDX-License-Identifier: MIT
#include "DeletionTest.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using scripted::Host;

/// What a deletion asks, and what it removes in which order.
class tst_Deletion : public DeletionTest
{
    Q_OBJECT

private Q_SLOTS:
    void asksWithTheseArguments();
    void asksWithTheseArgumentsForAll();
    void changesNothingWhenDeclined_data();
    void changesNothingWhenDeclined();
    void deletesTheSelectedRows();
    void removesTheHigherRowFirst();
    void removesTheHigherIdentifierFirst();
    void removesTheRowEvenWhereTheSdkKeepsIt();
    void deletesAgainWithoutAReload();
    void deletesAll();
    void asksForAllOfAnEmptyTable();
    void deletesWithTheDeleteKey();
    void findsTheRowsAgainAfterASort();
    void deletesNothingWhenTheTableWasFilledMeanwhile();
    void deletesWhatIsLeftOfRowsThatTheHostRemovedMeanwhile();
    void survivesTheEndDuringTheQuestion_data();
    void survivesTheEndDuringTheQuestion();
    void deletesThousandsOfRows();
    void logsItsOperations();
};

void tst_Deletion::asksWithTheseArguments()
{
    Host::instance().textPrefix = QStringLiteral("t:");
    start(3);
    selectRows({1});
    Host::instance().translated.clear();
    trigger("onDelete");
    QCOMPARE(Host::instance().messageBoxes.size(), 1);
    const scripted::MessageBox &box = Host::instance().messageBoxes.first();
    QCOMPARE(int(box.icon), 4);
    QCOMPARE(box.parent.data(), m_plugin->container());
    QCOMPARE(box.title, QStringLiteral("t:IDS_PROMPT_CAPTION"));
    QCOMPARE(box.text, QStringLiteral("t:IDS_STR_DELETE"));
    QCOMPARE(box.buttons[0], QStringLiteral("IDS_OK"));
    QCOMPARE(box.buttons[1], QStringLiteral("IDS_CANCEL"));
    QVERIFY(box.buttons[2].isEmpty() && !box.buttons[2].isNull());
    QVERIFY(box.flag1);
    QCOMPARE(box.windowFlags, 0x08000000);
    QVERIFY(!box.hasDialogPointer);
    QVERIFY(box.extraText.isNull());
    QVERIFY(box.flag2);
    QCOMPARE(Host::instance().translated, (QStringList{"IDS_PROMPT_CAPTION/NetInfoRecordUIPlugin",
                                                       "IDS_STR_DELETE/NetInfoRecordUIPlugin"}));
}

void tst_Deletion::asksWithTheseArgumentsForAll()
{
    start(1);
    trigger("onDeleteAll");
    const scripted::MessageBox &box = Host::instance().messageBoxes.first();
    QCOMPARE(int(box.icon), 4);
    QCOMPARE(box.parent.data(), m_plugin->container());
    QCOMPARE(box.title, QStringLiteral("IDS_PROMPT_CAPTION"));
    QCOMPARE(box.text, QStringLiteral("IDS_STR_CLEARALL"));
    QCOMPARE(box.buttons[0], QStringLiteral("IDS_OK"));
    QCOMPARE(box.buttons[1], QStringLiteral("IDS_CANCEL"));
    QVERIFY(box.buttons[2].isEmpty() && !box.buttons[2].isNull());
    QVERIFY(box.flag1 && box.flag2);
    QCOMPARE(box.windowFlags, 0x08000000);
    QVERIFY(box.extraText.isNull());
}

void tst_Deletion::changesNothingWhenDeclined_data()
{
    QTest::addColumn<int>("answer");
    for (int answer : {0, 1, -1, 1023, 1025, 0x00400000})
        QTest::addRow("answer %d", answer) << answer;
}

void tst_Deletion::changesNothingWhenDeclined()
{
    QFETCH(int, answer);
    Host::instance().answer = [answer](const scripted::MessageBox &) { return answer; };
    start(4);
    const QStringList before = profiles();
    selectRows({0, 2});
    trigger("onDelete");
    trigger("onDeleteAll");
    QCOMPARE(Host::instance().messageBoxes.size(), 2);
    QVERIFY(removals().isEmpty());
    QCOMPARE(profiles(), before);
    QCOMPARE(m_plugin->table()->selectedItems().size(), 12);
}

void tst_Deletion::deletesTheSelectedRows()
{
    start(6);
    QStringList expected = profiles();
    const QString third = expected.at(2);
    const QString fifth = expected.at(4);
    selectRows({2, 4});
    trigger("onDelete");
    expected.removeAt(4);
    expected.removeAt(2);
    QCOMPARE(profiles(), expected);
    QStringList removed = {QStringLiteral("RemoveRecord(%1)").arg(third),
                           QStringLiteral("RemoveRecord(%1)").arg(fifth)};
    QStringList asked = removals();
    removed.sort();
    asked.sort();
    QCOMPARE(asked, removed);
    QCOMPARE(Host::instance().calls.filter("GetAll").size(), 0); // no reload
}

void tst_Deletion::removesTheHigherRowFirst()
{
    start(7);
    selectRows({2, 5});
    QSignalSpy removed(m_plugin->table()->model(), &QAbstractItemModel::rowsRemoved);
    trigger("onDelete");
    QCOMPARE(removed.size(), 2);
    QCOMPARE(removed.at(0).at(1).toInt(), 5);
    QCOMPARE(removed.at(1).at(1).toInt(), 2);
}

void tst_Deletion::removesTheHigherIdentifierFirst()
{
    start(20);
    m_plugin->table()->selectAll();
    QSignalSpy removed(m_plugin->table()->model(), &QAbstractItemModel::rowsRemoved);
    bool areRowsGone = false;
    Host::instance().removeStatus = [&](int) {
        areRowsGone = removed.size() == 20;
        return 0;
    };
    trigger("onDelete");
    QStringList expected;
    for (int id = 19; id >= 0; --id)
        expected.append(QStringLiteral("RemoveRecord(%1)").arg(id));
    QCOMPARE(removals(), expected);
    QVERIFY(areRowsGone); // all rows go before the first record
    QCOMPARE(m_plugin->table()->rowCount(), 0);
}

void tst_Deletion::removesTheRowEvenWhereTheSdkKeepsIt()
{
    Host::instance().removeStatus = [](int) { return 5; };
    start(3);
    selectRows({0});
    trigger("onDelete");
    QCOMPARE(m_plugin->table()->rowCount(), 2);
    QCOMPARE(removals().size(), 1);
}

void tst_Deletion::deletesAgainWithoutAReload()
{
    start(10);
    for (int left = 9; left >= 0; --left) {
        const QString chosen = profiles().at(left / 2);
        Host::instance().calls.clear();
        selectRows({left / 2});
        trigger("onDelete");
        QCOMPARE(removals(), QStringList{QStringLiteral("RemoveRecord(%1)").arg(chosen)});
        QCOMPARE(m_plugin->table()->rowCount(), left);
        QVERIFY(!profiles().contains(chosen));
    }
    trigger("onDeleteAll"); // the map is empty: the question comes, no removal
    QCOMPARE(removals().size(), 1);
}

void tst_Deletion::deletesAll()
{
    start(5);
    selectRows({1});
    trigger("onDelete");
    Host::instance().calls.clear();
    trigger("onDeleteAll");
    QCOMPARE(removals(), (QStringList{"RemoveRecord(0)", "RemoveRecord(0)", "RemoveRecord(0)",
                                      "RemoveRecord(0)"}));
    QCOMPARE(m_plugin->table()->rowCount(), 0);
    QCOMPARE(m_plugin->table()->columnCount(), 6);
    QVERIFY(m_plugin->table()->horizontalHeaderItem(0));
}

void tst_Deletion::asksForAllOfAnEmptyTable()
{
    start(0);
    trigger("onDeleteAll");
    QCOMPARE(Host::instance().messageBoxes.size(), 1);
    QVERIFY(removals().isEmpty());
}

void tst_Deletion::deletesWithTheDeleteKey()
{
    start(3);
    m_plugin->area()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_plugin->area()));
    m_plugin->table()->setFocus();
    QTest::mouseClick(m_plugin->table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      m_plugin->table()->visualItemRect(m_plugin->table()->item(1, 2)).center());
    const QString chosen = profiles().at(1);
    QTest::keyClick(m_plugin->table(), Qt::Key_Delete);
    QCOMPARE(removals(), QStringList{QStringLiteral("RemoveRecord(%1)").arg(chosen)});
    QCOMPARE(m_plugin->table()->rowCount(), 2);
}

void tst_Deletion::findsTheRowsAgainAfterASort()
{
    start(30);
    m_plugin->table()->sortItems(1, Qt::DescendingOrder);
    selectRows({0, 1});
    Host::instance().answer = [this](const scripted::MessageBox &) {
        m_plugin->table()->sortItems(1, Qt::AscendingOrder); // while the question is open
        return 1024;
    };
    trigger("onDelete");
    QCOMPARE(removals(), (QStringList{"RemoveRecord(29)", "RemoveRecord(28)"}));
    QVERIFY(!profiles().contains(QStringLiteral("29")));
    QVERIFY(!profiles().contains(QStringLiteral("28")));
    QCOMPARE(m_plugin->table()->rowCount(), 28);
}

void tst_Deletion::deletesNothingWhenTheTableWasFilledMeanwhile()
{
    start(5);
    selectRows({1, 2});
    Host::instance().answer = [this](const scripted::MessageBox &) {
        m_plugin->ui()->Init();
        return 1024;
    };
    trigger("onDelete");
    QVERIFY(removals().isEmpty());
    QCOMPARE(m_plugin->table()->rowCount(), 5);
}

void tst_Deletion::deletesWhatIsLeftOfRowsThatTheHostRemovedMeanwhile()
{
    start(5);
    const QString third = profiles().at(3);
    selectRows({1, 3});
    Host::instance().answer = [this](const scripted::MessageBox &) {
        m_plugin->table()->removeRow(1);
        return 1024;
    };
    trigger("onDelete");
    QCOMPARE(removals(), QStringList{QStringLiteral("RemoveRecord(%1)").arg(third)});
    QCOMPARE(m_plugin->table()->rowCount(), 3);
}

void tst_Deletion::survivesTheEndDuringTheQuestion_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<bool>("areaOnly");
    QTest::newRow("selected rows, plug-in ended") << QByteArray("onDelete") << false;
    QTest::newRow("all rows, plug-in ended") << QByteArray("onDeleteAll") << false;
    QTest::newRow("selected rows, area destroyed") << QByteArray("onDelete") << true;
    QTest::newRow("all rows, area destroyed") << QByteArray("onDeleteAll") << true;
}

void tst_Deletion::survivesTheEndDuringTheQuestion()
{
    QFETCH(QByteArray, slot);
    QFETCH(bool, areaOnly);
    start(5);
    selectRows({1, 2});
    Host::instance().answer = [this, areaOnly](const scripted::MessageBox &) {
        if (areaOnly)
            m_plugin->destroyArea();
        else
            m_plugin->end();
        return 1024;
    };
    QVERIFY(QMetaObject::invokeMethod(m_plugin->historyWindow(), slot.constData()));
    QVERIFY(!m_plugin->table());
}

void tst_Deletion::deletesThousandsOfRows()
{
    start(4000);
    QStringList kept;
    QItemSelection selection;
    for (int row = 0; row < 4000; ++row) {
        if (row % 2)
            kept.append(m_plugin->table()->item(row, 0)->text());
        else
            selection.select(m_plugin->table()->model()->index(row, 0),
                             m_plugin->table()->model()->index(row, 5));
    }
    m_plugin->table()->selectionModel()->select(selection, QItemSelectionModel::Select);
    trigger("onDelete");
    QCOMPARE(profiles(), kept);
    QCOMPARE(removals().size(), 2000);
}

void tst_Deletion::logsItsOperations()
{
    start(2);
    const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg");
    const auto matches = [](const QStringList &lines, const QString &pattern) {
        return lines.filter(QRegularExpression(pattern)).size();
    };
    LogCapture log;
    selectRows({0});
    trigger("onDelete");
    QStringList lines = log.takeAbout(path);
    QCOMPARE(matches(lines, "^Entered: " + path + ": onDelete: \\d+: <now>:$"), 1);
    QCOMPARE(matches(lines, "^Exit: " + path + ": onDelete: \\d+: <now>:$"), 1);
    trigger("onDeleteAll");
    lines = log.takeAbout(path);
    QCOMPARE(matches(lines, "^Entered: " + path + ": onDeleteAll: \\d+: <now>:$"), 1);
    QCOMPARE(matches(lines, "^Exit: " + path + ": onDeleteAll: \\d+: <now>:$"), 1);
    Host::instance().answer = {};
    trigger("onDeleteAll");
    lines = log.takeAbout(path);
    QCOMPARE(matches(lines, "^Exit: " + path + ": onDeleteAll: \\d+: <now>:$"), 1);
}

QTEST_MAIN(tst_Deletion)
#include "tst_deletion.moc"
