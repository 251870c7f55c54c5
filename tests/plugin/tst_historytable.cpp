// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QDateTime>
#include <QHash>
#include <QHeaderView>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

using scripted::Host;

namespace
{
const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg");

QVector<_KORA_ST_CONNRECORD> numberedRecords(int count)
{
    QVector<_KORA_ST_CONNRECORD> records;
    for (int i = 0; i < count; ++i)
        records.append(scripted::record(QString::number(i), "1267795800", "1267799400", "3600",
                                        "1536", "1048576"));
    return records;
}

} // namespace

class tst_HistoryTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Host::instance().reset(); }

    void showsNoRowsWithoutRecords();
    void showsEachRecordOnce();
    void showsARecordsTexts();
    void keepsEmptyTextsEmpty();
    void formatsEveryCell();
    void linksOnlyTheFirstColumnToItsRecord();
    void makesEveryRow14PixelsHigh_data();
    void makesEveryRow14PixelsHigh();
    void changesNothingElseOfTheRowHeader();
    void tellsItsViewsOnceOfAWholeReload();
    void tellsWhoListensToTheTableOfEachCell();
    void doesNotSort();
    void logsEachRow();
};

void tst_HistoryTable::showsNoRowsWithoutRecords()
{
    LoadedPlugin plugin;
    plugin.show();
    QCOMPARE(plugin.table()->rowCount(), 0);
    QVERIFY(plugin.table()->horizontalHeaderItem(0));
    QVERIFY(plugin.table()->horizontalHeader()->isVisible());
}

void tst_HistoryTable::showsEachRecordOnce()
{
    Host::instance().records = numberedRecords(500);
    LoadedPlugin plugin;
    plugin.show();
    QCOMPARE(plugin.table()->rowCount(), 500);
    QSet<int> seen;
    for (int row = 0; row < 500; ++row)
        seen.insert(plugin.table()->item(row, 0)->text().toInt());
    QCOMPARE(seen.size(), 500);
}

void tst_HistoryTable::showsARecordsTexts()
{
    Host::instance().records = numberedRecords(1);
    LoadedPlugin plugin;
    plugin.show();
    const auto data = [&plugin](int column) {
        return plugin.table()->item(0, column)->data(Qt::DisplayRole);
    };
    QCOMPARE(data(0), QVariant(QStringLiteral("0")));
    const QDateTime start(QDate(2010, 3, 5), QTime(14, 30));
    QCOMPARE(data(1), QVariant(start));
    QCOMPARE(data(2), QVariant(start.addSecs(3600)));
    QCOMPARE(data(3), QVariant(QStringLiteral("01:00:00")));
    QCOMPARE(data(4), QVariant(QStringLiteral("1.50 KB")));
    QCOMPARE(data(5), QVariant(QStringLiteral("1.00 MB")));
}

void tst_HistoryTable::keepsEmptyTextsEmpty()
{
    Host::instance().records.append(scripted::record("", "", "", "", "", ""));
    LoadedPlugin plugin;
    plugin.show();
    QCOMPARE(plugin.table()->item(0, 0)->text(), QString());
    QCOMPARE(plugin.table()->item(0, 1)->data(Qt::DisplayRole).toDateTime(),
             QDateTime(QDate(1970, 1, 1), QTime(1, 0)));
    QCOMPARE(plugin.table()->item(0, 3)->text(), QStringLiteral("00:00:00"));
    QCOMPARE(plugin.table()->item(0, 4)->text(), QStringLiteral("0.00 KB"));
}

void tst_HistoryTable::formatsEveryCell()
{
    Host::instance().records = numberedRecords(2);
    LoadedPlugin plugin;
    plugin.show();
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 6; ++column) {
            const QTableWidgetItem *item = plugin.table()->item(row, column);
            QCOMPARE(item->type(), int(QTableWidgetItem::Type));
            QCOMPARE(item->data(Qt::TextAlignmentRole).toInt(), 1);
            QCOMPARE(item->flags(), QTableWidgetItem().flags() & ~Qt::ItemIsEditable);
            QVERIFY(item->flags() & Qt::ItemIsSelectable);
        }
    }
}

void tst_HistoryTable::linksOnlyTheFirstColumnToItsRecord()
{
    Host::instance().records = numberedRecords(3);
    LoadedPlugin plugin;
    plugin.show();
    for (int row = 0; row < 3; ++row) {
        const auto address =
            static_cast<quintptr>(plugin.table()->item(row, 0)->data(Qt::UserRole).toULongLong());
        QVERIFY(address != 0);
        // A record's address is also the address of its identifier.
        QCOMPARE(QString::number(*reinterpret_cast<const qint32 *>(address)),
                 plugin.table()->item(row, 0)->text());
        for (int column = 1; column < 6; ++column)
            QCOMPARE(plugin.table()->item(row, column)->data(Qt::UserRole), QVariant(0));
    }
}

void tst_HistoryTable::makesEveryRow14PixelsHigh_data()
{
    QTest::addColumn<int>("pointSize");
    QTest::newRow("usual font") << 0;
    QTest::newRow("large font") << 24;
}

void tst_HistoryTable::makesEveryRow14PixelsHigh()
{
    QFETCH(int, pointSize);
    Host::instance().records = numberedRecords(4);
    LoadedPlugin plugin;
    if (pointSize) {
        QFont font = plugin.area()->font();
        font.setPointSize(pointSize);
        plugin.area()->setFont(font);
    }
    plugin.show();
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(plugin.table()->rowHeight(row), 14);
        QCOMPARE(plugin.table()->visualItemRect(plugin.table()->item(row, 0)).height(), 14);
    }
}

void tst_HistoryTable::changesNothingElseOfTheRowHeader()
{
    LoadedPlugin plugin;
    plugin.show();
    const QTableWidget plain;
    const QHeaderView *header = plugin.table()->verticalHeader();
    QCOMPARE(header->minimumSectionSize(), 14);
    QCOMPARE(header->defaultSectionSize(), 14);
    QCOMPARE(header->maximumSectionSize(), plain.verticalHeader()->maximumSectionSize());
    QCOMPARE(header->sectionResizeMode(0), plain.verticalHeader()->sectionResizeMode(0));
    QCOMPARE(header->stretchLastSection(), plain.verticalHeader()->stretchLastSection());
}

void tst_HistoryTable::tellsItsViewsOnceOfAWholeReload()
{
    Host::instance().records = numberedRecords(3);
    LoadedPlugin plugin;
    plugin.show();
    QSignalSpy changes(plugin.table()->model(), &QAbstractItemModel::dataChanged);
    plugin.reload();
    QCOMPARE(changes.count(), 1);
    const auto first = changes.at(0).at(0).toModelIndex();
    const auto last = changes.at(0).at(1).toModelIndex();
    QCOMPARE(first, plugin.table()->model()->index(0, 0));
    QCOMPARE(last, plugin.table()->model()->index(2, 5));
}

void tst_HistoryTable::tellsWhoListensToTheTableOfEachCell()
{
    Host::instance().records = numberedRecords(3);
    LoadedPlugin plugin;
    plugin.show();
    QSignalSpy cells(plugin.table(), &QTableWidget::cellChanged);
    plugin.reload();
    QSet<int> changed;
    for (const QVariantList &cell : cells)
        changed.insert(cell.at(0).toInt() * 6 + cell.at(1).toInt());
    QCOMPARE(int(changed.size()), 18);
    QCOMPARE(int(cells.size()), 18);
}

void tst_HistoryTable::doesNotSort()
{
    // A hash with this process's seed and these keys, filled in the same way,
    // gives the order that the rows must have.
    const int count = 100;
    Host::instance().records = numberedRecords(count);
    LoadedPlugin plugin;
    plugin.show();
    QHash<int, int> hash;
    for (int i = 0; i < count; ++i)
        hash.insert(i, i);
    QStringList expected;
    for (int id : std::as_const(hash))
        expected.append(QString::number(id));
    QStringList shown;
    for (int row = 0; row < count; ++row)
        shown.append(plugin.table()->item(row, 0)->text());
    QCOMPARE(shown, expected);
    QVERIFY(!plugin.table()->isSortingEnabled());
}

void tst_HistoryTable::logsEachRow()
{
    Host::instance().records = numberedRecords(3);
    LoadedPlugin plugin;
    LogCapture log;
    plugin.show();
    const QStringList lines = log.takeAbout(path);
    const auto count = [&lines](const QString &pattern) {
        return lines.filter(QRegularExpression(pattern)).size();
    };
    QCOMPARE(count("^Start File: " + path + ": populateTable: \\d+: <now>:$"), 1);
    QCOMPARE(count("^End File: " + path + ": populateTable: \\d+: <now>:$"), 1);
    QCOMPARE(count("^Start File: " + path + ": PopulateTableRowOfConnectionRecord: \\d+: <now>:$"),
             3);
    QCOMPARE(count("^End File: " + path + ": PopulateTableRowOfConnectionRecord: \\d+: <now>:$"),
             3);
    plugin.end();
    const QStringList end = log.takeAbout(QStringLiteral("ReleaseTable"));
    QCOMPARE(end.size(), 2);
    QVERIFY(end.first().startsWith("Start File: " + path + " ReleaseTable: "));
    QVERIFY(end.last().startsWith("End File: " + path + " ReleaseTable: "));
}

QTEST_MAIN(tst_HistoryTable)
#include "tst_historytable.moc"
