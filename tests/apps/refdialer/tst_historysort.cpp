// SPDX-License-Identifier: MIT
#include "apps/refdialer/HistorySort.h"
#include "apps/refdialer/ShownConnections.h"
#include "apps/refdialer/TableViewState.h"
#include "apps/refdialer/TrueValues.h"

#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using history::Connection;
using refdialer::HistoryColumn;
using refdialer::TrueValues;

/// The order of a table like the plug-in's.
class TestHistorySort : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void sortsByWhatTheRowsShow_data();
    void sortsByWhatTheRowsShow();
    void sortsByTheTrueVolume_data();
    void sortsByTheTrueVolume();
    void sortsTheHourThatTheClockShowsTwice();
    void tellsRowsApartThatShowTheSame();
    void putsEqualRowsNewestFirst();
    void putsProfilesOfOneNameTogether();
    void movesCellsUnchanged();
    void movesSelectionAndCurrentCell();
    void leavesTheTablesOwnSortingOff();
    void sortsRowsWithMissingCells();
    void readsWhatTheStoreHas();
    void keepsEqualRowsInOneOrder();
    void saysWhatTheRowsShow();

    void restoresTheSelectionAfterANewLoad();
    void selectsNothingThatIsGone();

private:
    void addRow(const Connection &connection, const QStringList &texts);
    refdialer::ShownConnections sort(HistoryColumn column, Qt::SortOrder direction,
                                     const std::vector<Connection> &stored = {});
    refdialer::ShownConnections load(const std::vector<Connection> &connections);
    QString profiles() const;
    QString selectedProfiles() const;

    std::unique_ptr<QTableWidget> m_table;
};

namespace
{

/// 2026-09-01 00:00 UTC
constexpr std::int64_t firstDay = 1788220800;

Connection connection(const std::string &profile, std::int64_t start, std::int64_t duration,
                      std::int64_t uploaded = 0, std::int64_t downloaded = 0)
{
    Connection made;
    made.profile = profile;
    made.startUtc = start;
    made.endUtc = start + duration;
    made.connectedSeconds = duration;
    made.uploadedBytes = uploaded;
    made.downloadedBytes = downloaded;
    return made;
}

/// As the plug-in makes it, whose times carry no time zone.
QDateTime shownTime(std::int64_t utc)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(utc);
    return {time.date(), time.time()};
}

} // namespace

void TestHistorySort::init()
{
    m_table = std::make_unique<QTableWidget>(0, 6);
    m_table->setSelectionBehavior(QTableWidget::SelectRows);
    m_table->setLocale(QLocale("en_GB"));
}

/// A row as the plug-in fills it; the texts are duration and volumes.
void TestHistorySort::addRow(const Connection &connection, const QStringList &texts)
{
    const int row = m_table->rowCount();
    m_table->setRowCount(row + 1);
    const QVariant cells[] = {QString::fromStdString(connection.profile),
                              shownTime(connection.startUtc),
                              shownTime(connection.endUtc),
                              texts.at(0),
                              texts.at(1),
                              texts.at(2)};
    for (int column = 0; column < 6; ++column) {
        auto *const item = new QTableWidgetItem;
        item->setData(Qt::DisplayRole, cells[column]);
        item->setData(Qt::UserRole, column == 0 ? 1000 + row : 0);
        m_table->setItem(row, column, item);
    }
}

/// Returns what the rows show then.
refdialer::ShownConnections TestHistorySort::sort(HistoryColumn column, Qt::SortOrder direction,
                                                  const std::vector<Connection> &stored)
{
    refdialer::ShownConnections shown = refdialer::shownIn(*m_table, TrueValues(stored));
    refdialer::sortRows(*m_table, {column, direction}, shown);
    return shown;
}

QString TestHistorySort::profiles() const
{
    QStringList texts;
    for (int row = 0; row < m_table->rowCount(); ++row)
        texts.append(m_table->item(row, 0) ? m_table->item(row, 0)->text() : QString("-"));
    return texts.join(' ');
}

QString TestHistorySort::selectedProfiles() const
{
    QStringList texts;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows())
        texts.append(index.data().toString());
    texts.sort();
    return texts.join(' ');
}

Q_DECLARE_METATYPE(refdialer::HistoryColumn)

void TestHistorySort::sortsByWhatTheRowsShow_data()
{
    QTest::addColumn<HistoryColumn>("column");
    QTest::addColumn<Qt::SortOrder>("direction");
    QTest::addColumn<QString>("sorted");
    const auto up = Qt::AscendingOrder;
    const auto down = Qt::DescendingOrder;
    QTest::newRow("start, oldest first") << HistoryColumn::Start << up << "b C a";
    QTest::newRow("start, newest first") << HistoryColumn::Start << down << "a C b";
    QTest::newRow("end, oldest first") << HistoryColumn::End << up << "C a b";
    QTest::newRow("end, newest first") << HistoryColumn::End << down << "b a C";
    QTest::newRow("profile, case aside") << HistoryColumn::Profile << up << "a b C";
    QTest::newRow("profile, backwards") << HistoryColumn::Profile << down << "C b a";
    QTest::newRow("duration, shortest first") << HistoryColumn::ConnectedTime << up << "C a b";
    QTest::newRow("duration, longest first") << HistoryColumn::ConnectedTime << down << "b a C";
    QTest::newRow("sent, least first") << HistoryColumn::Uploaded << up << "b C a";
    QTest::newRow("sent, most first") << HistoryColumn::Uploaded << down << "a C b";
    QTest::newRow("received, least first") << HistoryColumn::Downloaded << up << "C b a";
    QTest::newRow("received, most first") << HistoryColumn::Downloaded << down << "a b C";
}

// As texts, "100:00:00" and "1.00 GB" would come before "25:01:01" and "9.00 KB".
void TestHistorySort::sortsByWhatTheRowsShow()
{
    QFETCH(HistoryColumn, column);
    QFETCH(Qt::SortOrder, direction);
    QFETCH(QString, sorted);
    addRow(connection("b", firstDay, 360000), {"100:00:00", "9.00 KB", "900.00 KB"});
    addRow(connection("a", firstDay + 200, 90061), {"25:01:01", "1.00 GB", "1.50 MB"});
    addRow(connection("C", firstDay + 100, 9), {"00:00:09", "200.00 MB", "1023.99 KB"});
    m_table->item(2, 5)->setText("10.00 KB");
    sort(column, direction);
    QCOMPARE(profiles(), sorted);
}

void TestHistorySort::sortsByTheTrueVolume_data()
{
    QTest::addColumn<HistoryColumn>("column");
    QTest::addColumn<QString>("sorted");
    QTest::newRow("sent") << HistoryColumn::Uploaded << "b c a";
    QTest::newRow("received") << HistoryColumn::Downloaded << "a c b";
}

void TestHistorySort::sortsByTheTrueVolume()
{
    QFETCH(HistoryColumn, column);
    QFETCH(QString, sorted);
    const std::vector<Connection> stored = {connection("a", firstDay, 60, 1572866, 1572864),
                                            connection("b", firstDay + 100, 60, 1572864, 1572866),
                                            connection("c", firstDay + 200, 60, 1572865, 1572865)};
    for (const Connection &shown : stored)
        addRow(shown, {"00:01:00", "1.50 MB", "1.50 MB"});
    sort(column, Qt::AscendingOrder, stored);
    QCOMPARE(profiles(), sorted);
}

void TestHistorySort::sortsTheHourThatTheClockShowsTwice()
{
    // 2026-10-25 02:30 in summer time, and again an hour later.
    constexpr std::int64_t summer = 1792888200;
    const std::vector<Connection> stored = {connection("summer", summer, 60),
                                            connection("winter", summer + 3600, 60),
                                            connection("between", summer + 1800, 60)};
    QCOMPARE(shownTime(stored[0].startUtc).time(), shownTime(stored[1].startUtc).time());
    for (const Connection &shown : stored)
        addRow(shown, {"00:01:00", "0.00 KB", "0.00 KB"});
    sort(HistoryColumn::Start, Qt::AscendingOrder, stored);
    QCOMPARE(profiles(), QString("summer between winter"));
}

void TestHistorySort::tellsRowsApartThatShowTheSame()
{
    const std::vector<Connection> stored = {connection("same", firstDay, 60, 3 << 20),
                                            connection("same", firstDay, 60, 1 << 20),
                                            connection("other", firstDay, 60, 2 << 20)};
    addRow(stored[0], {"00:01:00", "3.00 MB", "0.00 KB"});
    addRow(stored[1], {"00:01:00", "1.00 MB", "0.00 KB"});
    addRow(stored[2], {"00:01:00", "2.00 MB", "0.00 KB"});
    sort(HistoryColumn::Uploaded, Qt::AscendingOrder, stored);
    QCOMPARE(profiles(), QString("same other same"));
    QCOMPARE(m_table->item(0, 4)->text(), QString("1.00 MB"));
}

void TestHistorySort::putsEqualRowsNewestFirst()
{
    addRow(connection("old", firstDay, 60), {"00:01:00", "1.00 MB", "0.00 KB"});
    addRow(connection("new", firstDay + 200, 60), {"00:01:00", "1.00 MB", "0.00 KB"});
    addRow(connection("mid", firstDay + 100, 60), {"00:01:00", "1.00 MB", "0.00 KB"});
    for (const Qt::SortOrder direction : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        sort(HistoryColumn::Uploaded, direction);
        QCOMPARE(profiles(), QString("new mid old"));
    }
}

void TestHistorySort::putsProfilesOfOneNameTogether()
{
    addRow(connection("b", firstDay, 60), {"00:01:00", "1.00 MB", "0.00 KB"});
    addRow(connection("a", firstDay + 100, 60), {"00:01:00", "1.00 MB", "0.00 KB"});
    addRow(connection("B", firstDay + 200, 60), {"00:01:00", "1.00 MB", "0.00 KB"});
    sort(HistoryColumn::Profile, Qt::AscendingOrder);
    QCOMPARE(profiles(), QString("a B b"));
    sort(HistoryColumn::Profile, Qt::DescendingOrder);
    QCOMPARE(profiles(), QString("B b a"));
}

void TestHistorySort::movesCellsUnchanged()
{
    addRow(connection("a", firstDay, 60), {"00:01:00", "1.00 MB", "2.00 KB"});
    addRow(connection("b", firstDay + 100, 70), {"00:01:10", "3.00 MB", "4.00 KB"});
    QList<const QTableWidgetItem *> cells;
    for (int column = 0; column < 6; ++column)
        cells.append(m_table->item(0, column));
    const QVariant start = m_table->item(0, 1)->data(Qt::DisplayRole);
    for (const auto column : {HistoryColumn::Start, HistoryColumn::Downloaded}) {
        sort(column, Qt::DescendingOrder);
        QCOMPARE(profiles(), QString("b a"));
        for (int i = 0; i < 6; ++i)
            QCOMPARE(m_table->item(1, i), cells.at(i));
    }
    QCOMPARE(m_table->item(1, 0)->data(Qt::UserRole).toInt(), 1000);
    QCOMPARE(m_table->item(1, 1)->data(Qt::DisplayRole), start);
}

void TestHistorySort::movesSelectionAndCurrentCell()
{
    // No two rows change places, so that a direction mixed up would show.
    for (int i = 0; i < 5; ++i)
        addRow(connection(std::string(1, char('a' + i)), firstDay + i * 3 % 5, 60),
               {"00:01:00", "1.00 MB", "2.00 KB"});
    m_table->selectRow(1);
    m_table->selectionModel()->select(m_table->model()->index(3, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_table->setCurrentItem(m_table->item(3, 2), QItemSelectionModel::NoUpdate);
    sort(HistoryColumn::Start, Qt::DescendingOrder);
    QCOMPARE(profiles(), QString("d b e c a"));
    QCOMPARE(selectedProfiles(), QString("b d"));
    QCOMPARE(m_table->selectedItems().size(), 12);
    QCOMPARE(m_table->currentItem(), m_table->item(0, 2));
}

void TestHistorySort::leavesTheTablesOwnSortingOff()
{
    addRow(connection("a", firstDay, 60), {"00:01:00", "1.00 MB", "2.00 KB"});
    sort(HistoryColumn::Start, Qt::DescendingOrder);
    QVERIFY(!m_table->isSortingEnabled());
    QVERIFY(m_table->updatesEnabled());
}

void TestHistorySort::sortsRowsWithMissingCells()
{
    addRow(connection("b", firstDay + 100, 60), {"00:01:00", "1.00 MB", "2.00 KB"});
    m_table->setRowCount(2);
    addRow(connection("c", firstDay + 200, 60), {"00:01:00", "1.00 MB", "2.00 KB"});
    sort(HistoryColumn::Start, Qt::DescendingOrder);
    QCOMPARE(profiles(), QString("c b -"));
    QCOMPARE(m_table->item(2, 1), nullptr);
}

void TestHistorySort::readsWhatTheStoreHas()
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath("connections.db").toStdString();
    auto store = history::Store::openOrCreate(path);
    QVERIFY(store);
    const Connection stored = connection("a", firstDay, 60, 1572866);
    QVERIFY(store.value().add(stored));
    refdialer::HistoryRow row{
        "a", shownTime(stored.startUtc), shownTime(stored.endUtc), 60, 1572864, 0};
    QCOMPARE(TrueValues::readFrom(path).take(row).values.uploadedBytes, std::int64_t(1572866));
    const std::string missing = folder.filePath("missing.db").toStdString();
    QCOMPARE(TrueValues::readFrom(missing).take(row).values.uploadedBytes, std::int64_t(1572864));
}

void TestHistorySort::keepsEqualRowsInOneOrder()
{
    Connection first = connection("first", firstDay, 60, 1024);
    first.key = 7;
    Connection second = connection("second", firstDay, 60, 1024);
    second.key = 8;
    const QStringList texts{"00:01:00", "1.00 KB", "0.00 KB"};
    addRow(first, texts);
    addRow(second, texts);
    sort(HistoryColumn::Uploaded, Qt::AscendingOrder, {first, second});
    QCOMPARE(profiles(), QString("second first"));
    m_table->setRowCount(0);
    addRow(second, texts);
    addRow(first, texts);
    sort(HistoryColumn::Uploaded, Qt::AscendingOrder, {first, second});
    QCOMPARE(profiles(), QString("second first"));
}

void TestHistorySort::saysWhatTheRowsShow()
{
    Connection stored = connection("stored", firstDay, 60, 1536 * 1024 + 2);
    stored.key = 7;
    Connection changed = connection("changed", firstDay, 60, 1024);
    changed.key = 8;
    addRow(changed, {"00:01:00", "1.50 MB", "0.00 KB"});
    addRow(stored, {"00:01:00", "1.50 MB", "0.00 KB"});
    const auto shown = sort(HistoryColumn::Profile, Qt::DescendingOrder, {changed, stored});
    QCOMPARE(shown.count(), 2);
    QCOMPARE(shown.rows().at(0).key, std::int64_t(7));
    QCOMPARE(shown.values(0).uploadedBytes, std::int64_t(1536 * 1024 + 2));
    // A row that does not show what the store has now shows another connection.
    QCOMPARE(shown.rows().at(1).key, std::int64_t(0));
    QCOMPARE(shown.values(1).uploadedBytes, std::int64_t(1536 * 1024));
}

/// Fills the table anew and returns what its rows show.
refdialer::ShownConnections TestHistorySort::load(const std::vector<Connection> &connections)
{
    m_table->setRowCount(0);
    for (const Connection &made : connections)
        addRow(made, {"00:01:00", "0.00 KB", "0.00 KB"});
    std::vector<refdialer::ShownConnection> rows;
    for (const Connection &made : connections)
        rows.emplace_back(made);
    return refdialer::ShownConnections(std::move(rows));
}

void TestHistorySort::restoresTheSelectionAfterANewLoad()
{
    std::vector<Connection> connections;
    for (const char *const profile : {"a", "b", "c", "b"}) {
        connections.push_back(connection(profile, firstDay, 60));
        connections.back().key = std::int64_t(connections.size());
    }
    const refdialer::ShownConnections before = load(connections);
    m_table->setCurrentCell(3, 2);
    m_table->selectRow(3);
    m_table->selectionModel()->select(m_table->model()->index(2, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const refdialer::TableViewState state(*m_table, before);
    const Connection added = connection("d", firstDay, 60);
    const refdialer::ShownConnections after =
        load({added, connections[2], connections[3], connections[0], connections[1]});
    m_table->selectAll();
    state.restore(*m_table, after);
    QCOMPARE(m_table->selectionModel()->selectedRows().size(), 2);
    // Of the two that show the same it is the one that was selected.
    QVERIFY(m_table->item(1, 0)->isSelected());
    QVERIFY(m_table->item(2, 0)->isSelected());
    QCOMPARE(m_table->currentRow(), 2);
}

void TestHistorySort::selectsNothingThatIsGone()
{
    Connection gone = connection("a", firstDay, 60);
    gone.key = 1;
    const refdialer::ShownConnections before = load({gone});
    m_table->selectRow(0);
    const refdialer::TableViewState state(*m_table, before);
    gone.key = 2;
    state.restore(*m_table, load({gone}));
    QCOMPARE(selectedProfiles(), QString());
    QCOMPARE(m_table->currentRow(), -1);
}

QTEST_MAIN(TestHistorySort)
#include "tst_historysort.moc"
