// SPDX-License-Identifier: MIT
#include "AccumulateDlgTest.h"
#include "ExtendDialog.h"
#include "ScriptedHost.h"

#include <QComboBox>
#include <QTest>

#include <utility>

using scripted::Host;

/// The months that the dialog counts, names and lists profiles of.
class tst_AccumulateMonths : public AccumulateDlgTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsLeapYears_data();
    void findsLeapYears();
    void titlesTheRangeOfAMonth_data();
    void titlesTheRangeOfAMonth();
    void titlesTheChosenMonth_data();
    void titlesTheChosenMonth();
    void filtersRowsByMonth_data();
    void filtersRowsByMonth();
    void listsRowsInTheirOrder();
    void titlesTheMonthOfItsFigures();
#ifdef NETINFORECORD_WIRE_STATISTICS
    void countsTheMonthsOfTheDayOfEachChoice();
#endif
};

void tst_AccumulateMonths::findsLeapYears_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<QString>("lastDay");
    for (int year : {2000, 2024, 2400})
        QTest::addRow("%d", year) << year << "29";
    for (int year : {1900, 2023, 2100})
        QTest::addRow("%d", year) << year << "28";
}

void tst_AccumulateMonths::findsLeapYears()
{
    QFETCH(int, year);
    QTEST(dlg()->checkLeapYear(year), "lastDay");
}

void tst_AccumulateMonths::titlesTheRangeOfAMonth_data()
{
    QTest::addColumn<QString>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<QString>("range");
    const auto row = [](const char *year, int month, const char *range) {
        QTest::addRow("%s-%d", year, month) << QString(year) << month << QString(range);
    };
    row("2023", 1, "01/01/2023 - 31/01/2023");
    row("2023", 2, "01/02/2023 - 28/02/2023");
    row("2024", 2, "01/02/2024 - 29/02/2024");
    row("2023", 3, "01/03/2023 - 31/03/2023");
    row("2023", 4, "01/04/2023 - 30/04/2023");
    row("2023", 5, "01/05/2023 - 31/05/2023");
    row("2023", 6, "01/06/2023 - 30/06/2023");
    row("2023", 7, "01/07/2023 - 31/07/2023");
    row("2023", 8, "01/08/2023 - 31/08/2023");
    row("2023", 9, "01/09/2023 - 30/09/2023");
    row("2023", 10, "01/10/2023 - 31/10/2023");
    row("2023", 11, "01/11/2023 - 30/11/2023");
    row("2024", 12, "01/12/2024 -  31/12/2024");
    row("2024", 0, "");
    row("2024", 13, "");
    row("2024", -1, "");
}

void tst_AccumulateMonths::titlesTheRangeOfAMonth()
{
    QFETCH(QString, year);
    QFETCH(int, month);
    QFETCH(QString, range);
    dlg()->showWindow(m_parent.get());
    dlg()->setDateRange(year, month);
    QCOMPARE(frame()->windowTitle(), QStringLiteral("IDS_TITLE_TOTAL ( %1 ) ").arg(range));
}

void tst_AccumulateMonths::titlesTheChosenMonth_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("month");
    QTest::addColumn<QString>("range");
    const auto row = [](const QDate &day, int month, const char *range) {
        QTest::addRow("%s, %d months back", qPrintable(day.toString(Qt::ISODate)), month)
            << day << month << QString(range);
    };
    row(QDate(2025, 3, 20), 0, "01/03/2025 - 31/03/2025");
    row(QDate(2025, 3, 20), 1, "01/02/2025 - 28/02/2025");
    row(QDate(2025, 3, 20), 2, "01/01/2025 - 31/01/2025");
    row(QDate(2025, 1, 15), 1, "01/12/2024 -  31/12/2024");
    row(QDate(2025, 1, 15), 2, "01/11/2024 - 30/11/2024");
    row(QDate(2025, 2, 28), 1, "01/01/2025 - 31/01/2025");
    row(QDate(2025, 2, 28), 2, "01/12/2024 -  31/12/2024");
    row(QDate(2024, 12, 31), 2, "01/10/2024 - 31/10/2024");
}

void tst_AccumulateMonths::titlesTheChosenMonth()
{
    QFETCH(QDate, day);
    QFETCH(int, month);
    QFETCH(QString, range);
    today = day;
    dlg()->showWindow(m_parent.get());
    chooseMonth(month);
    QCOMPARE(frame()->windowTitle(), QStringLiteral("IDS_TITLE_TOTAL ( %1 ) ").arg(range));
}

void tst_AccumulateMonths::filtersRowsByMonth_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("month");
    QTest::addColumn<QString>("stamp");
    QTest::addColumn<bool>("listed");
    const auto row = [](const QDate &day, int month, const QString &stamp, bool listed) {
        QTest::addRow("%s, %d months back, %s", qPrintable(day.toString(Qt::ISODate)), month,
                      qPrintable(stamp.left(6).toHtmlEscaped()))
            << day << month << stamp << listed;
    };
    row(QDate(2025, 3, 20), 0, "20250301000000", true);
    row(QDate(2025, 3, 20), 0, "20240301000000", false);
    row(QDate(2025, 3, 20), 1, "20250201000000", true);
    row(QDate(2025, 3, 20), 2, "20250101000000", true);
    row(QDate(2025, 3, 20), 2, "202501", true);
    row(QDate(2025, 3, 20), 2, "20241201000000", false);
    row(QDate(2025, 12, 1), 1, "20251101000000", true);
    row(QDate(2025, 12, 1), 2, "20251001000000", true);
    // Across a year's boundary nothing matches but the control characters.
    row(QDate(2025, 1, 15), 1, "20241201000000", false);
    row(QDate(2025, 1, 15), 2, "20241101000000", false);
    row(QDate(2025, 2, 15), 2, "20241201000000", false);
    row(QDate(2025, 2, 15), 1, "20250101000000", true);
    row(QDate(2025, 1, 15), 1, QStringLiteral("20240") + QChar(12), true);
    row(QDate(2025, 1, 15), 2, QStringLiteral("20240") + QChar(11), true);
    row(QDate(2025, 2, 15), 2, QStringLiteral("20240") + QChar(12), true);
}

void tst_AccumulateMonths::filtersRowsByMonth()
{
    QFETCH(QDate, day);
    QFETCH(int, month);
    QFETCH(QString, stamp);
    QFETCH(bool, listed);
    today = day;
    rows() = {row("IDS_ALL", "19990101000000", 100), row("candidate", stamp, 200)};
    dlg()->showWindow(m_parent.get());
    chooseMonth(month);
    QCOMPARE(profiles(), listed ? (QStringList{"IDS_ALL", "candidate"}) : QStringList{"IDS_ALL"});
    QCOMPARE(dlg()->m_dialogRecords.size(), listed ? 2 : 1);
}

void tst_AccumulateMonths::listsRowsInTheirOrder()
{
    Host::instance().textPrefix = QStringLiteral("t:");
    rows() = {row("IDS_COMBO_ALLAPN", "", 0), row("b", "202503", 10), row("x", "202502", 20),
              row("IDS_OK", "202503", 30), row("a", "202503", 40)};
    dlg()->showWindow(m_parent.get());
    QCOMPARE(profiles(), (QStringList{"t:IDS_COMBO_ALLAPN", "b", "IDS_OK", "a"}));
    QStringList names;
    for (const AccumulateDialogRecord &record : std::as_const(dlg()->m_dialogRecords))
        names.append(record.profileName);
    QCOMPARE(names, (QStringList{"IDS_COMBO_ALLAPN", "b", "IDS_OK", "a"}));
    QVERIFY(!dlg()->m_pProfileSelectionComboBox->itemData(1).isValid());
    QVERIFY(dlg()->m_pProfileSelectionComboBox->itemIcon(1).isNull());
}

void tst_AccumulateMonths::titlesTheMonthOfItsFigures()
{
    rows() = {row("IDS_ALL", "", 100), row("a", "20250301000000", 200)};
    today = QDate(2025, 3, 31);
    AccumulateDlg::m_pCurrentDateTime = [] { // midnight comes after the first look
        const QDateTime now = noonOfToday();
        today = today.addDays(1);
        return now;
    };
    dlg()->showWindow(m_parent.get());
    QCOMPARE(profiles(), (QStringList{"IDS_ALL", "a"}));
    QCOMPARE(frame()->windowTitle(),
             QStringLiteral("IDS_TITLE_TOTAL ( 01/03/2025 - 31/03/2025 ) "));
}

#ifdef NETINFORECORD_WIRE_STATISTICS
void tst_AccumulateMonths::countsTheMonthsOfTheDayOfEachChoice()
{
    const auto add = [](const QDate &day, int megabytes) {
        const QByteArray start =
            QByteArray::number(QDateTime(day, QTime(12, 0)).toSecsSinceEpoch());
        const QByteArray bytes = QByteArray::number(megabytes * 1048576);
        Host::instance().records.append(
            scripted::record("a", start, start, QByteArray::number(megabytes), bytes, bytes));
    };
    const auto figures = [](const char *megabytes, const char *time) {
        const QString amount = QLatin1String(megabytes) + " IDS_STC_SINGLEPACKET_UNIT";
        return QStringList{amount, amount, time};
    };
    add(QDate(2025, 3, 31), 3);
    add(QDate(2025, 4, 1), 4);
    NetInfoRecordLogic *store = NetInfoRecordLogic::Instance();
    QVERIFY(store->GetAllConnectedRecords());
    const auto records = store->m_records;
    today = QDate(2025, 3, 31);
    dlg()->showWindow(m_parent.get());
    QCOMPARE(shown(), figures("3.00", "00:00:03"));
    today = QDate(2025, 4, 1);
    dlg()->showWindow(m_parent.get());
    QCOMPARE(shown(), figures("4.00", "00:00:04"));
    QCOMPARE(frame()->windowTitle(),
             QStringLiteral("IDS_TITLE_TOTAL ( 01/04/2025 - 30/04/2025 ) "));
    chooseMonth(1);
    QCOMPARE(shown(), figures("3.00", "00:00:03"));
    today = QDate(2025, 5, 1);
    chooseProfile(0);
    QCOMPARE(shown(), figures("4.00", "00:00:04"));
    chooseMonth(2);
    QCOMPARE(shown(), figures("3.00", "00:00:03"));
    QCOMPARE(Host::instance().calls.count(QStringLiteral("GetAllConnRecord()")), 1);
    qDeleteAll(records);
}
#endif

QTEST_MAIN(tst_AccumulateMonths)
#include "tst_accumulatemonths.moc"
