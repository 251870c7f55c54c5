// SPDX-License-Identifier: MIT
#include "DeletionTest.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QTest>

using scripted::Host;

/// Which selected cells count as rows to delete, and what stays selected.
class tst_DeletionSelection : public DeletionTest
{
    Q_OBJECT

private Q_SLOTS:
    void asksNothingWithoutASelectedRow();
    void asksNothingForLessThanARow();
    void keepsSelectedRowsThatAreHidden();
    void keepsRowsThatCannotBeSelected();
    void keepsTheSelectionOfRowsThatStay();
    void keepsTheSelectionWhereNothingIsDeleted();
    void asksNothingForARowThatLacksACell();
    void deletesRowsOfWhichOneLacksACell();
    void asksNothingForARowWhoseCellsSpanOthers();
};

void tst_DeletionSelection::asksNothingWithoutASelectedRow()
{
    start(3);
    LogCapture log;
    trigger("onDelete");
    QVERIFY(Host::instance().calls.isEmpty());
    QCOMPARE(m_plugin->table()->rowCount(), 3);
    QCOMPARE(log.take().size(), 1); // the entry; no question, no exit line
}

void tst_DeletionSelection::asksNothingForLessThanARow()
{
    start(3);
    m_plugin->table()->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_plugin->table()->setRangeSelected(QTableWidgetSelectionRange(1, 0, 1, 4), true);
    trigger("onDelete");
    QVERIFY(Host::instance().calls.isEmpty());
}

void tst_DeletionSelection::keepsSelectedRowsThatAreHidden()
{
    start(5);
    const QString hidden = profiles().at(2);
    m_plugin->table()->setRowHidden(2, true);
    m_plugin->table()->selectAll();
    trigger("onDelete");
    QCOMPARE(profiles(), QStringList{hidden});
    QCOMPARE(removals().size(), 4);
}

void tst_DeletionSelection::keepsRowsThatCannotBeSelected()
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

void tst_DeletionSelection::keepsTheSelectionOfRowsThatStay()
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

void tst_DeletionSelection::keepsTheSelectionWhereNothingIsDeleted()
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

void tst_DeletionSelection::asksNothingForARowThatLacksACell()
{
    start(3);
    delete m_plugin->table()->takeItem(1, 3);
    selectRows({1});
    trigger("onDelete");
    QVERIFY(Host::instance().calls.isEmpty());
    QCOMPARE(m_plugin->table()->rowCount(), 3);
}

void tst_DeletionSelection::deletesRowsOfWhichOneLacksACell()
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

void tst_DeletionSelection::asksNothingForARowWhoseCellsSpanOthers()
{
    start(3);
    m_plugin->table()->setSpan(1, 3, 1, 2);
    selectRows({1});
    QCOMPARE(m_plugin->table()->selectedItems().size(), 5);
    trigger("onDelete");
    QVERIFY(Host::instance().calls.isEmpty());
}

QTEST_MAIN(tst_DeletionSelection)
#include "tst_deletionselection.moc"
