// SPDX-License-Identifier: MIT
#include "Campaign.h"
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

int countOfThose(const QVector<Witness> &witnesses)
{
    return static_cast<int>(
        std::count_if(witnesses.begin(), witnesses.end(),
                      [](const Witness &record) { return record.isRecordThere(); }));
}

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
    void freesItsOwnOnlyWhateverTheHostDoes();

private:
    static ConnectionHistoryDlg &window() { return *ConnectionHistoryDlg::Instance(); }
    static QHash<int, ConnectionRecord *> &map()
    {
        return NetInfoRecordLogic::Instance()->m_records;
    }
    QVector<Witness> witnesses() const;
    void hostActs(campaign::Random &random);
    void windowActs(campaign::Random &random);

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
    QCOMPARE(countOfThose(all), 4);
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

/// To the table, none of which frees a record.
void tst_RecordOwnership::hostActs(campaign::Random &random)
{
    if (!m_table || m_table->rowCount() == 0)
        return;
    const int row = random.below(m_table->rowCount());
    const Action actions[] = {
        [row](QTableWidget *table) { table->removeRow(row); },
        [row](QTableWidget *table) { delete table->item(row, 0); },
        [row](QTableWidget *table) { table->insertRow(row); },
        [](QTableWidget *table) { table->sortItems(0, Qt::DescendingOrder); },
        [](QTableWidget *table) { table->setRowCount(0); },
    };
    if (random.once(20))
        delete m_table;
    else
        random.oneOf(actions)(m_table);
}

/// Until it has freed and fetched everything anew.
void tst_RecordOwnership::windowActs(campaign::Random &random)
{
    switch (random.below(4)) {
    case 0:
        window().reload();
        break;
    case 1:
        window().onDeleteAll();
        window().reload();
        break;
    case 2:
        window().Init();
        window().reload();
        break;
    default:
        cleanup();
        init();
    }
}

void tst_RecordOwnership::freesItsOwnOnlyWhateverTheHostDoes()
{
    campaign::Random random(campaign::seed(20261122));
    for (int rounds = campaign::count(500); rounds > 0; --rounds) {
        const QVector<Witness> own = witnesses();
        QCOMPARE(countOfThose(own), 5);
        const auto foreign = std::make_unique<ConnectionRecord>();
        const Witness foreignWitness(*foreign);
        map().insert(99, foreign.get());

        for (int times = random.below(4); times > 0; --times)
            hostActs(random);
        QCOMPARE(countOfThose(own), 5);
        const int rows = m_table ? m_table->rowCount() : 0;
        if (m_table && random.once(2)) {
            m_table->selectRow(random.below(std::max(rows, 1)));
            window().onDelete();
        }
        QCOMPARE(5 - countOfThose(own), m_table ? rows - m_table->rowCount() : 0);

        windowActs(random);
        QCOMPARE(countOfThose(own), 0);
        QVERIFY(foreignWitness.isRecordThere());
    }
}

QTEST_MAIN(tst_RecordOwnership)
#include "tst_recordownership.moc"
