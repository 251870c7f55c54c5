// SPDX-License-Identifier: MIT
#include "ConnectionHistoryDlg.h"
#include "NetInfoRecordLogic.h"
#include "ScriptedHost.h"

#include <QApplication>
#include <QPointer>
#include <QTableWidget>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

using scripted::Host;

namespace
{

/// Whether a record is still there, told by a text that it shares.
class Witness
{
public:
    explicit Witness(ConnectionRecord &record)
        : m_text(QString(5, QLatin1Char('x')))
    {
        record.m_strReserved = m_text;
    }
    bool isRecordThere() const { return !m_text.isDetached(); }

private:
    QString m_text;
};

/// What a host or the window does with the table.
using Action = std::function<void(QTableWidget *)>;

} // namespace
Q_DECLARE_METATYPE(Action)

/// Which records the window frees: those of its rows, and its own of rows that the host
/// has destroyed; never those of somebody else that no row has shown.
class tst_RecordOwnership : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void freesTheRecordOfEachRow();
    void freesWhatTheHostPutIntoARow();
    void freesTheRecordsOfDestroyedRows_data();
    void freesTheRecordsOfDestroyedRows();
    void freesWhatItFetchedWithoutATable();
    void freesADeletedRecordOnce();
    void keepsARecordThatNoRowHasShown_data();
    void keepsARecordThatNoRowHasShown();

private:
    static ConnectionHistoryDlg &window() { return *ConnectionHistoryDlg::Instance(); }
    static QHash<int, ConnectionRecord *> &map()
    {
        return NetInfoRecordLogic::Instance()->m_records;
    }
    QVector<Witness> witnesses() const;

    QPointer<QTableWidget> m_table;
};

void tst_RecordOwnership::init()
{
    Host::instance().reset();
    Host::instance().answer = [](const scripted::MessageBox &) { return 1024; };
    Host::instance().records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 5);
    window().Init();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (auto *table = qobject_cast<QTableWidget *>(widget))
            m_table = table;
    }
    QVERIFY(m_table);
    QCOMPARE(m_table->rowCount(), 5);
}

void tst_RecordOwnership::cleanup()
{
    ConnectionHistoryDlg::Destroy();
}

QVector<Witness> tst_RecordOwnership::witnesses() const
{
    QVector<Witness> result;
    for (ConnectionRecord *record : std::as_const(map()))
        result.append(Witness(*record));
    return result;
}

void tst_RecordOwnership::freesTheRecordOfEachRow()
{
    const QVector<Witness> all = witnesses();
    window().ReleaseTable();
    for (const Witness &record : all)
        QVERIFY(!record.isRecordThere());
    QCOMPARE(m_table->rowCount(), 5);
    map().clear();
    m_table->setRowCount(0);
}

void tst_RecordOwnership::freesWhatTheHostPutIntoARow()
{
    QVector<Witness> all;
    for (int row = 0; row < 5; ++row) {
        auto *record = new ConnectionRecord;
        all.append(Witness(*record));
        m_table->item(row, 0)->setData(
            Qt::UserRole, QVariant::fromValue<qulonglong>(reinterpret_cast<quintptr>(record)));
    }
    window().ReleaseTable();
    for (const Witness &record : all)
        QVERIFY(!record.isRecordThere());
    map().clear();
    m_table->setRowCount(0);
}

void tst_RecordOwnership::freesTheRecordsOfDestroyedRows_data()
{
    QTest::addColumn<Action>("destroy");
    QTest::newRow("a row") << Action([](QTableWidget *table) { table->removeRow(2); });
    QTest::newRow("a cell") << Action([](QTableWidget *table) { delete table->item(0, 0); });
    QTest::newRow("all rows") << Action([](QTableWidget *table) { table->setRowCount(0); });
    QTest::newRow("the table") << Action([](QTableWidget *table) { delete table; });
}

void tst_RecordOwnership::freesTheRecordsOfDestroyedRows()
{
    QFETCH(Action, destroy);
    const QVector<Witness> all = witnesses();
    destroy(m_table);
    window().reload();
    for (const Witness &record : all)
        QVERIFY(!record.isRecordThere());
}

void tst_RecordOwnership::freesWhatItFetchedWithoutATable()
{
    delete m_table;
    window().reload();
    const QVector<Witness> all = witnesses();
    QCOMPARE(all.size(), 5);
    ConnectionHistoryDlg::Destroy();
    for (const Witness &record : all)
        QVERIFY(!record.isRecordThere());
}

void tst_RecordOwnership::freesADeletedRecordOnce()
{
    const QVector<Witness> all = witnesses();
    m_table->selectRow(1);
    window().onDelete();
    QCOMPARE(m_table->rowCount(), 4);
    QCOMPARE(std::count_if(all.begin(), all.end(),
                           [](const Witness &record) { return record.isRecordThere(); }),
             4);
    window().reload();
}

void tst_RecordOwnership::keepsARecordThatNoRowHasShown_data()
{
    QTest::addColumn<Action>("operation");
    QTest::newRow("reload") << Action([](QTableWidget *) { window().reload(); });
    QTest::newRow("another Init") << Action([](QTableWidget *) { window().Init(); });
    QTest::newRow("delete all") << Action([](QTableWidget *) { window().onDeleteAll(); });
    QTest::newRow("the window's end")
        << Action([](QTableWidget *) { ConnectionHistoryDlg::Destroy(); });
    QTest::newRow("reload without a row") << Action([](QTableWidget *table) {
        table->removeRow(1);
        window().reload();
    });
    QTest::newRow("the window's end without a table") << Action([](QTableWidget *table) {
        delete table;
        ConnectionHistoryDlg::Destroy();
    });
}

void tst_RecordOwnership::keepsARecordThatNoRowHasShown()
{
    QFETCH(Action, operation);
    const auto foreign = std::make_unique<ConnectionRecord>();
    const Witness witness(*foreign);
    map().insert(99, foreign.get());
    operation(m_table);
    QVERIFY(witness.isRecordThere());
}

QTEST_MAIN(tst_RecordOwnership)
#include "tst_recordownership.moc"
