// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "HistoryWindow.h"
#include "LocalZone.h"
#include "apps/refdialer/HistorySearch.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <memory>

/// A search that works on while the window is used, and while time passes.
class TestLongSearch : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_history = std::make_unique<HistoryWindow>(); }
    void cleanup() { m_history.reset(); }

    void searchesALongHistoryInSeveralTurns();
    void deletesWhatIsFoundOnlyWhileItSearches();
    void offersNoDeletionOfAllWhileItSearches();
    void finishesASearchWhenRowsGo();
    void followsTheCalendar_data();
    void followsTheCalendar();
    void showsTheTimesOfAnotherZone();

private:
    void openLongHistory();
    void type(const QString &text);
    int seenRows() const;

    std::unique_ptr<HistoryWindow> m_history;
};

namespace
{

constexpr int longHistory = 6000; ///< rows, a third of them with each letter

QMenu *contextMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

} // namespace

void TestLongSearch::openLongHistory()
{
    std::vector<history::Connection> connections;
    for (int row = 0; row < longHistory; ++row) {
        connections.push_back(connection(std::string(1, "abc"[row % 3]), 0));
        connections.back().startUtc += row;
    }
    QVERIFY(m_history->store(connections));
    QVERIFY(m_history->open());
}

void TestLongSearch::type(const QString &text)
{
    m_history->window().findChild<refdialer::HistorySearch *>()->findChild<QLineEdit *>()->setText(
        text);
}

int TestLongSearch::seenRows() const
{
    int seen = 0;
    for (int row = 0; row < m_history->table().rowCount(); ++row)
        seen += m_history->table().isRowHidden(row) ? 0 : 1;
    return seen;
}

void TestLongSearch::searchesALongHistoryInSeveralTurns()
{
    openLongHistory();
    type("a");
    QVERIFY(seenRows() > longHistory / 3);
    QTRY_COMPARE(seenRows(), longHistory / 3);
    type("b");
    type("c"); // of several searches, only the last one counts
    QTRY_COMPARE(seenRows(), longHistory / 3);
    QVERIFY(!m_history->table().isRowHidden(0));
    type("");
    QVERIFY(seenRows() < longHistory);
    QTRY_COMPARE(seenRows(), longHistory);
}

void TestLongSearch::deletesWhatIsFoundOnlyWhileItSearches()
{
    openLongHistory();
    QTableWidget &table = m_history->table();
    table.selectAll();
    type("a");
    QVERIFY(seenRows() > longHistory / 3);
    QCOMPARE(int(table.selectionModel()->selectedRows().size()), longHistory / 3);
    table.selectAll();
    type("b"); // the first of which are hidden still
    QVERIFY(table.selectionModel()->selectedRows().isEmpty());
    table.selectAll();
    for (const QModelIndex &selected : table.selectionModel()->selectedRows()) {
        QVERIFY(!table.isRowHidden(selected.row()));
        QCOMPARE(selected.data().toString(), QString("b"));
    }
    QTRY_COMPARE(seenRows(), longHistory / 3);
}

void TestLongSearch::offersNoDeletionOfAllWhileItSearches()
{
    openLongHistory();
    const QRect cell = m_history->table().visualItemRect(m_history->table().item(0, 0));
    bool wasOffered = true;
    QTimer::singleShot(0, this, [&wasOffered] {
        QVERIFY(contextMenu());
        wasOffered = contextMenu()->actions().constLast()->isEnabled();
        contextMenu()->close();
    });
    type("abc"); // hides all
    type("");
    QContextMenuEvent event(QContextMenuEvent::Mouse, cell.center(),
                            m_history->table().viewport()->mapToGlobal(cell.center()));
    QCoreApplication::sendEvent(m_history->table().viewport(), &event);
    QVERIFY(!wasOffered);
}

void TestLongSearch::finishesASearchWhenRowsGo()
{
    openLongHistory();
    type("a");
    m_history->table().removeRow(0);
    QCOMPARE(seenRows(), longHistory / 3);
}

void TestLongSearch::followsTheCalendar_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("now");
    QTest::newRow("midnight") << QByteArray("UTC") << "2026-11-01T00:00:00Z";
    QTest::newRow("clock") << QByteArray("UTC") << "2026-11-19T12:00:00Z";
    QTest::newRow("time zone") << QByteArray("Asia/Tokyo") << "2026-10-31T23:59:59Z";
}

void TestLongSearch::followsTheCalendar()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, now);
    const auto utcOf = [](const QString &text) {
        return QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch();
    };
    const LocalZone before("UTC");
    auto owned = std::make_unique<FakeClock>();
    FakeClock &clock = *owned;
    clock.utc = utcOf("2026-10-31T23:59:59Z");
    refdialer::HistorySearch search(std::move(owned));
    search.findChild<QComboBox *>()->setCurrentIndex(1); // this month
    QCOMPARE(search.filter().firstDay, QDate(2026, 10, 1));
    const QSignalSpy changed(&search, &refdialer::HistorySearch::changed);
    search.look();
    QCOMPARE(changed.size(), 0);
    const LocalZone present(zone.constData());
    clock.utc = utcOf(now);
    search.look();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(search.filter().firstDay, QDate(2026, 11, 1));
    QCOMPARE(search.filter().lastDay, QDate(2026, 11, 30));
}

void TestLongSearch::showsTheTimesOfAnotherZone()
{
    const LocalZone before("UTC");
    QVERIFY(m_history->store({connection("first.example", 0)}));
    QVERIFY(m_history->open());
    const auto start = [this] {
        return m_history->table().item(0, 1)->data(Qt::DisplayRole).toDateTime().time();
    };
    QCOMPARE(start(), QTime(0, 0));
    const LocalZone present("Asia/Tokyo");
    QTRY_COMPARE(start(), QTime(9, 0));
}

QTEST_MAIN(TestLongSearch)
#include "tst_longsearch.moc"
