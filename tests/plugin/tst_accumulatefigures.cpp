// SPDX-License-Identifier: MIT
#include "AccumulateDlgTest.h"
#include "ExtendDialog.h"
#include "ScriptedHost.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QTest>

using scripted::Host;

/// What the dialog shows of the chosen profile and month.
class tst_AccumulateFigures : public AccumulateDlgTest
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaultRowsOfZeros();
    void showsZerosWithoutRows();
    void showsTheColumnOfTheMonth_data();
    void showsTheColumnOfTheMonth();
    void wrapsTheTimeAfterADay_data();
    void wrapsTheTimeAfterADay();
    void keepsTheProfileChoiceUntilTheNextMonth();
    void showsNothingForAnUnknownMonth();
    void addsItsRowsAgainEachTime();
};

void tst_AccumulateFigures::hasDefaultRowsOfZeros()
{
    const AccumulateDialogRecord record;
    QVERIFY(record.profileName.isEmpty() && record.periodStamp.isEmpty());
    for (const QString &text :
         {record.downloadedThisMonth, record.downloadedLastMonth, record.downloadedMonthBeforeLast,
          record.uploadedThisMonth, record.uploadedLastMonth, record.uploadedMonthBeforeLast,
          record.secondsThisMonth, record.secondsLastMonth, record.secondsMonthBeforeLast})
        QCOMPARE(text, QStringLiteral("0"));
}

void tst_AccumulateFigures::showsZerosWithoutRows()
{
    Host::instance().textPrefix = QStringLiteral("t:");
    dlg()->showWindow(m_parent.get());
    QCOMPARE(profiles(), QStringList{"t:IDS_COMBO_ALLAPN"});
    QVERIFY(dlg()->m_dialogRecords.isEmpty());
    QCOMPARE(shown(), (QStringList{"0 t:IDS_STC_SINGLEPACKET_UNIT", "0 t:IDS_STC_SINGLEPACKET_UNIT",
                                   "00:00:00"}));
}

void tst_AccumulateFigures::showsTheColumnOfTheMonth_data()
{
    QTest::addColumn<int>("month");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("this month") << 0 << QStringList{"104 UNIT", "101 UNIT", "00:01:47"};
    QTest::newRow("last month") << 1 << QStringList{"105 UNIT", "102 UNIT", "00:01:48"};
    QTest::newRow("before last") << 2 << QStringList{"106 UNIT", "103 UNIT", "00:01:49"};
}

void tst_AccumulateFigures::showsTheColumnOfTheMonth()
{
    QFETCH(int, month);
    QFETCH(QStringList, texts);
    rows() = {row("IDS_ALL", "", 100)};
    dlg()->showWindow(m_parent.get());
    chooseMonth(month);
    QCOMPARE(shown(), texts.replaceInStrings("UNIT", "IDS_STC_SINGLEPACKET_UNIT"));
}

void tst_AccumulateFigures::wrapsTheTimeAfterADay_data()
{
    QTest::addColumn<QString>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("over an hour") << "3725"
                                  << "01:02:05";
    QTest::newRow("a second short of a day") << "86399"
                                             << "23:59:59";
    QTest::newRow("a day") << "86400"
                           << "00:00:00";
    QTest::newRow("over a day") << "90061"
                                << "01:01:01";
    QTest::newRow("25 hours") << "90000"
                              << "01:00:00";
    QTest::newRow("no number") << "long"
                               << "00:00:00";
    QTest::newRow("empty") << ""
                           << "00:00:00";
    QTest::newRow("negative") << "-1"
                              << "23:59:59";
}

void tst_AccumulateFigures::wrapsTheTimeAfterADay()
{
    QFETCH(QString, seconds);
    rows() = {row("IDS_ALL", "", 0)};
    rows()[0].secondsThisMonth = seconds;
    dlg()->showWindow(m_parent.get());
    QTEST(dlg()->m_pTransferTimeValue->text(), "text");
}

void tst_AccumulateFigures::keepsTheProfileChoiceUntilTheNextMonth()
{
    rows() = {row("IDS_ALL", "", 0), row("a", "202503", 100), row("b", "202503", 200),
              row("c", "202502", 300)};
    dlg()->showWindow(m_parent.get());
    const QString title = frame()->windowTitle();
    chooseProfile(2);
    QCOMPARE(dlg()->m_pProfileSelectionComboBox->currentIndex(), 2);
    QCOMPARE(dlg()->m_pProfileSelectionComboBox->currentText(), QStringLiteral("b"));
    QCOMPARE(shown().first(), QStringLiteral("204 IDS_STC_SINGLEPACKET_UNIT"));
    QCOMPARE(frame()->windowTitle(), title);
    chooseMonth(1);
    QCOMPARE(dlg()->m_pProfileSelectionComboBox->currentIndex(), 0);
    QCOMPARE(shown().first(), QStringLiteral("5 IDS_STC_SINGLEPACKET_UNIT"));
    QVERIFY(frame()->windowTitle() != title);
    chooseProfile(7); // past the end: the row of zeros
    QCOMPARE(shown().first(), QStringLiteral("0 IDS_STC_SINGLEPACKET_UNIT"));
}

void tst_AccumulateFigures::showsNothingForAnUnknownMonth()
{
    rows() = {row("IDS_ALL", "", 100)};
    dlg()->showWindow(m_parent.get());
    const QString title = frame()->windowTitle();
    dlg()->onSelectComboItemOfTime(3);
    QCOMPARE(shown(),
             (QStringList{" IDS_STC_SINGLEPACKET_UNIT", " IDS_STC_SINGLEPACKET_UNIT", "00:00:00"}));
    QCOMPARE(frame()->windowTitle(), title);
}

void tst_AccumulateFigures::addsItsRowsAgainEachTime()
{
    dlg()->showWindow(m_parent.get());
    QCOMPARE(dlg()->m_pFormLayout->rowCount(), 3);
    chooseMonth(1);
    QCOMPARE(dlg()->m_pFormLayout->rowCount(), 6);
    chooseProfile(0);
    QCOMPARE(dlg()->m_pFormLayout->rowCount(), 9);
    // The labels stand in the newest rows, captions beside their values.
    int captionRow = 0;
    int valueRow = 0;
    QFormLayout::ItemRole role;
    dlg()->m_pFormLayout->getWidgetPosition(dlg()->m_pDownloadedData, &captionRow, &role);
    dlg()->m_pFormLayout->getWidgetPosition(dlg()->m_pDownloadedValue, &valueRow, &role);
    QCOMPARE(captionRow, 7);
    QCOMPARE(valueRow, 7);
}

QTEST_MAIN(tst_AccumulateFigures)
#include "tst_accumulatefigures.moc"
