// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using scripted::Host;

class tst_Deletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void asksNothingWithoutASelectedRow();
    void asksNothingForLessThanARow();
    void asksWithTheseArguments();
    void asksWithTheseArgumentsForAll();
    void changesNothingWhenDeclined_data();
    void changesNothingWhenDeclined();
    void deletesTheSelectedRows();
    void keepsSelectedRowsThatAreHidden();
    void keepsRowsThatCannotBeSelected();
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
    void keepsTheSelectionOfRowsThatStay();
    void keepsTheSelectionWhereNothingIsDeleted();
    void asksNothingForARowThatLacksACell();
    void deletesRowsOfWhichOneLacksACell();
    void asksNothingForARowWhoseCellsSpanOthers();
    void survivesTheEndDuringTheQuestion_data();
    void survivesTheEndDuringTheQuestion();
    void deletesThousandsOfRows();
    void logsItsOperations();

private:
    void start(int records);
    void selectRows(const QList<int> &rows);
    void trigger(const char *slot);
    QStringList profiles() const;
    static QStringList removals() { return Host::instance().calls.filter("RemoveRecord"); }

    std::unique_ptr<LoadedPlugin> m_plugin;
};

void tst_Deletion::init()
{
    Host::instance().reset();
    Host::instance().answer = [](const scripted::MessageBox &) { return 1024; };
}

void tst_Deletion::cleanup()
{
    m_plugin.reset();
}

void tst_Deletion::start(int records)
{
    for (int i = 0; i < records; ++i)
        Host::instance().records.append(scripted::record(QString::number(i),
                                                         QByteArray::number(1600000000 + i * 60),
                                                         "1700000000", "60", "1", "2"));
    m_plugin = std::make_unique<LoadedPlugin>();
    m_plugin->show();
    Host::instance().calls.clear();
}

void tst_Deletion::selectRows(const QList<int> &rows)
{
    QItemSelection selection;
    for (int row : rows)
        selection.select(m_plugin->table()->model()->index(row, 0),
                         m_plugin->table()->model()->index(row, 5));
    m_plugin->table()->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void tst_Deletion::trigger(const char *slot)
{
    QVERIFY(QMetaObject::invokeMethod(m_plugin->historyWindow(), slot));
}

QStringList tst_Deletion::profiles() const
{
    QStringList result;
    for (int row = 0; row < m_plugin->table()->rowCount(); ++row)
        result.append(m_plugin->table()->item(row, 0)->text());
    return result;
}

void tst_Deletion::asksNothingWithoutASelectedRow()
{
    start(3);
    LogCapture log;
    trigger("onDelete");
    QVERIFY(Host::instance().calls.isEmpty());
    QCOMPARE(m_plugin->table()->rowCount(), 3);
    QCOMPARE(log.take().size(), 1); // the entry; no question, no exit line
}

void tst_Deletion::asksNothingForLessThanARow()
{
    start(3);
    m_plugin->table()->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_plugin->table()->setRangeSelected(QTableWidgetSelectionRange(1, 0, 1, 4), true);
    trigger("onDelete");
    QVERIFY(Host::instance().calls.isEmpty());
}

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

void tst_Deletion::keepsSelectedRowsThatAreHidden()
{
    start(5);
    const QString hidden = profiles().at(2);
    m_plugin->table()->setRowHidden(2, true);
    m_plugin->table()->selectAll();
    trigger("onDelete");
    QCOMPARE(profiles(), QStringList{hidden});
    QCOMPARE(removals().size(), 4);
}

void tst_Deletion::keepsRowsThatCannotBeSelected()
{
    start(5);
    const QString kept = profiles().at(3);
    for (int column = 0; column < 6; ++column)
        m_plugin->table()->item(3, column)->setFlags(Qt::ItemIsEnabled);
    m_plugin->table()->selectAll();
    trigger("onDelete");
    QCOMPARE(profiles(), QStringList{kept});
    QCOMPARE(removals().size(), 4);
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

void tst_Deletion::keepsTheSelectionOfRowsThatStay()
{
    start(5);
    m_plugin->table()->setRowHidden(3, true);
    selectRows({1, 3});
    trigger("onDelete");
    m_plugin->table()->setRowHidden(2, false); // one row higher now
    const QModelIndexList selected = m_plugin->table()->selectionModel()->selectedRows();
    QCOMPARE(int(selected.size()), 1);
    QCOMPARE(selected.first().row(), 2);
}

void tst_Deletion::keepsTheSelectionWhereNothingIsDeleted()
{
    start(6);
    m_plugin->table()->setSelectionBehavior(QAbstractItemView::SelectItems);
    QItemSelection column(m_plugin->table()->model()->index(0, 3),
                          m_plugin->table()->model()->index(5, 3));
    m_plugin->table()->selectionModel()->select(column, QItemSelectionModel::ClearAndSelect);
    trigger("onDelete");
    QCOMPARE(int(Host::instance().messageBoxes.size()), 1);
    QVERIFY(removals().isEmpty());
    QCOMPARE(m_plugin->table()->selectedItems().size(), 6);
}

void tst_Deletion::asksNothingForARowThatLacksACell()
{
    start(3);
    delete m_plugin->table()->takeItem(1, 3);
    selectRows({1});
    trigger("onDelete");
    QVERIFY(Host::instance().calls.isEmpty());
    QCOMPARE(m_plugin->table()->rowCount(), 3);
}

void tst_Deletion::deletesRowsOfWhichOneLacksACell()
{
    start(3);
    const QString kept = profiles().at(2);
    delete m_plugin->table()->takeItem(1, 3);
    selectRows({0, 1});
    LogCapture log;
    trigger("onDelete");
    QVERIFY(log.take().filter(QStringLiteral("Arg is NULL")).isEmpty());
    QCOMPARE(Host::instance().messageBoxes.size(), 1);
    QCOMPARE(removals().size(), 2);
    QCOMPARE(profiles(), QStringList{kept});
}

void tst_Deletion::asksNothingForARowWhoseCellsSpanOthers()
{
    start(3);
    m_plugin->table()->setSpan(1, 3, 1, 2);
    selectRows({1});
    QCOMPARE(m_plugin->table()->selectedItems().size(), 5);
    trigger("onDelete");
    QVERIFY(Host::instance().calls.isEmpty());
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
