// SPDX-License-Identifier: MIT
#include "AccumulateDlg.h"
#include "ExtendDialog.h"
#include "LogCapture.h"
#include "NetInfoRecordLogic.h"
#include "ScriptedHost.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using scripted::Host;

namespace
{

const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/AccumulateDlg");
QDate today;

QDateTime noonOfToday()
{
    return QDateTime(today, QTime(12, 0));
}

AccumulateDialogRecord row(const QString &name, const QString &stamp, int base)
{
    AccumulateDialogRecord record;
    record.profileName = name;
    record.downloadedThisMonth = QString::number(base + 1);
    record.downloadedLastMonth = QString::number(base + 2);
    record.downloadedMonthBeforeLast = QString::number(base + 3);
    record.uploadedThisMonth = QString::number(base + 4);
    record.uploadedLastMonth = QString::number(base + 5);
    record.uploadedMonthBeforeLast = QString::number(base + 6);
    record.secondsThisMonth = QString::number(base + 7);
    record.secondsLastMonth = QString::number(base + 8);
    record.secondsMonthBeforeLast = QString::number(base + 9);
    record.periodStamp = stamp;
    return record;
}

QString missing(const char *function)
{
    return QStringLiteral("^Arg is NULL: <now>: %1: %2 \\d+$").arg(path, function);
}

} // namespace

class tst_AccumulateDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void keepsItsSlotsInOrder();
    void hasDefaultRowsOfZeros();
    void buildsItsWidgets();
    void namesItsWidgets();
    void placesItsWidgets();
    void setsItsTexts();
    void translatesInAFixedOrder();
    void asksForNoTextOfAMissingWidget();
    void showsZerosWithoutRows();
    void findsLeapYears_data();
    void findsLeapYears();
    void titlesTheRangeOfAMonth_data();
    void titlesTheRangeOfAMonth();
    void titlesTheChosenMonth_data();
    void titlesTheChosenMonth();
    void filtersRowsByMonth_data();
    void filtersRowsByMonth();
    void listsRowsInTheirOrder();
    void showsTheColumnOfTheMonth_data();
    void showsTheColumnOfTheMonth();
    void wrapsTheTimeAfterADay_data();
    void wrapsTheTimeAfterADay();
    void keepsTheProfileChoiceUntilTheNextMonth();
    void titlesTheMonthOfItsFigures();
#ifdef NETINFORECORD_WIRE_STATISTICS
    void countsTheMonthsOfTheDayOfEachChoice();
#endif
    void showsNothingForAnUnknownMonth();
    void addsItsRowsAgainEachTime();
    void connectsItsControlsAgainEachTime();
    void reusesItsFrame();
    void closesOnOk();
    void buildsAFreshFrameWhenTheHostTookIt();
    void deletesItsWidgets_data();
    void deletesItsWidgets();
    void survivesItsSlotsWithoutWidgets();
    void missesAStoreThatHasEnded();
    void reportsAMissingFrame();
    void logsItsLife();
    void logsAShowing();

private:
    AccumulateDlg *dlg()
    {
        return AccumulateDlg::Instance();
    }
    QVector<AccumulateDialogRecord> &rows()
    {
        return NetInfoRecordLogic::Instance()->m_accumulateRecords;
    }
    QDialog *frame() const
    {
        return m_parent->findChild<QDialog *>();
    }
    QStringList profiles();
    void chooseMonth(int index);
    void chooseProfile(int index);
    QStringList shown();

    std::unique_ptr<QWidget> m_parent;
};

void tst_AccumulateDlg::init()
{
    Host::instance().reset();
    today = QDate(2025, 3, 20);
    AccumulateDlg::m_pCurrentDateTime = noonOfToday;
    m_parent = std::make_unique<QWidget>();
    m_parent->resize(800, 600);
    m_parent->show();
}

void tst_AccumulateDlg::cleanup()
{
    dlg()->destroy();
    AccumulateDlg::Destroy();
    NetInfoRecordLogic::Destroy();
    m_parent.reset();
}

QStringList tst_AccumulateDlg::profiles()
{
    QStringList result;
    for (int i = 0; i < dlg()->m_pProfileSelectionComboBox->count(); ++i)
        result.append(dlg()->m_pProfileSelectionComboBox->itemText(i));
    return result;
}

/// As a user: the index changes first, then the choice is announced.
void tst_AccumulateDlg::chooseMonth(int index)
{
    dlg()->m_pMonthSelectionComboBox->setCurrentIndex(index);
    dlg()->onSelectComboItemOfTime(index);
}

void tst_AccumulateDlg::chooseProfile(int index)
{
    dlg()->m_pProfileSelectionComboBox->setCurrentIndex(index);
    dlg()->onSelectComboItemOfProfile(index);
}

QStringList tst_AccumulateDlg::shown()
{
    return {dlg()->m_pUploadedValue->text(), dlg()->m_pDownloadedValue->text(),
            dlg()->m_pTransferTimeValue->text()};
}

void tst_AccumulateDlg::keepsItsSlotsInOrder()
{
    const QMetaObject *meta = dlg()->metaObject();
    QCOMPARE(meta->className(), "AccumulateDlg");
    QStringList methods;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        methods.append(QString::fromLatin1(meta->method(i).methodSignature()));
    QCOMPARE(methods, (QStringList{"onOKBtbClicked()", "onSelectComboItemOfTime(int)",
                                   "onSelectComboItemOfProfile(int)"}));
}

void tst_AccumulateDlg::hasDefaultRowsOfZeros()
{
    const AccumulateDialogRecord record;
    QVERIFY(record.profileName.isEmpty() && record.periodStamp.isEmpty());
    for (const QString &text :
         {record.downloadedThisMonth, record.downloadedLastMonth, record.downloadedMonthBeforeLast,
          record.uploadedThisMonth, record.uploadedLastMonth, record.uploadedMonthBeforeLast,
          record.secondsThisMonth, record.secondsLastMonth, record.secondsMonthBeforeLast})
        QCOMPARE(text, QStringLiteral("0"));
}

void tst_AccumulateDlg::buildsItsWidgets()
{
    dlg()->showWindow(m_parent.get());
    QVERIFY(frame());
    QVERIFY(frame()->isVisible());
    QVERIFY(frame()->isModal());
    QCOMPARE(frame()->windowModality(), Qt::ApplicationModal);
    QCOMPARE(frame()->minimumSize(), QSize(380, 320));
    QCOMPARE(frame()->maximumSize(), QSize(380, 320));
    QVERIFY(Host::instance().calls.contains(QStringLiteral("ExtendDialog(0x08000003, 1)")));
    QVERIFY(Host::instance().calls.contains(QStringLiteral("MoveCentre()")));
    auto *vertical = qobject_cast<QVBoxLayout *>(dlg()->m_pMainWidget->layout());
    QVERIFY(vertical);
    QCOMPARE(vertical->count(), 4);
    for (int i : {0, 1}) {
        const QLayout *row = vertical->itemAt(i)->layout();
        QCOMPARE(row->count(), 2);
        QCOMPARE(row->contentsMargins(), QMargins(25, 0, 25, 0));
        QVERIFY(qobject_cast<QLabel *>(row->itemAt(0)->widget()));
    }
    QCOMPARE(vertical->itemAt(0)->layout()->itemAt(1)->widget(),
             dlg()->m_pProfileSelectionComboBox.data());
    QCOMPARE(vertical->itemAt(1)->layout()->itemAt(1)->widget(),
             dlg()->m_pMonthSelectionComboBox.data());
    QCOMPARE(vertical->itemAt(2)->widget(), dlg()->m_pStatisticsGrp.data());
    QCOMPARE(dlg()->m_pStatisticsGrp->size(), QSize(354, 122));
    auto *buttonRow = qobject_cast<QHBoxLayout *>(vertical->itemAt(3)->layout());
    QCOMPARE(buttonRow->stretch(0), 132);
    QCOMPARE(buttonRow->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(dlg()->m_pProfileSelectionComboBox->minimumWidth(), 185);
    QCOMPARE(dlg()->m_pProfileSelectionComboBox->maximumWidth(), 185);
    QCOMPARE(dlg()->m_pMonthSelectionComboBox->maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(dlg()->m_pStatisticsGrp->layout(), dlg()->m_pFormLayout.data());
    QCOMPARE(dlg()->m_pFormLayout->contentsMargins(), QMargins(10, 20, 10, 10));
    QCOMPARE(dlg()->m_pFormLayout->horizontalSpacing(), 10);
    QCOMPARE(dlg()->m_pFormLayout->verticalSpacing(), 10);
}

void tst_AccumulateDlg::namesItsWidgets()
{
    dlg()->showWindow(m_parent.get());
    for (const char *name :
         {"m_pSelectProfileLbl", "m_pSelectMonthLbl", "m_pStatisticsGrp", "m_pUploadedData",
          "m_pDownloadedData", "m_pTransferTime", "m_pProfileSelectionComboBox",
          "m_pMonthSelectionComboBox", "m_pPushButton"})
        QCOMPARE(frame()->findChildren<QWidget *>(name).size(), 1);
    QVERIFY(dlg()->m_pUploadedValue->objectName().isEmpty());
    QVERIFY(dlg()->m_pMainWidget->objectName().isEmpty());
}

void tst_AccumulateDlg::placesItsWidgets()
{
    dlg()->uiSetGeometry(); // before the layouts have their say
    QCOMPARE(dlg()->m_pSelectProfileLbl->geometry(), QRect(30, 25, 100, 20));
    QCOMPARE(dlg()->m_pSelectMonthLbl->geometry(), QRect(30, 50, 100, 20));
    QCOMPARE(dlg()->m_pUploadedData->geometry(), QRect(20, 20, 100, 20));
    QCOMPARE(dlg()->m_pDownloadedData->geometry(), QRect(20, 50, 100, 20));
    QCOMPARE(dlg()->m_pTransferTime->geometry(), QRect(20, 80, 100, 20));
    QCOMPARE(dlg()->m_pProfileSelectionComboBox->pos(), QPoint(155, 20));
    QCOMPARE(dlg()->m_pMonthSelectionComboBox->geometry(), QRect(155, 50, 180, 20));
    QCOMPARE(dlg()->m_pStatisticsGrp->pos(), QPoint(10, 110));
    QCOMPARE(dlg()->m_pPushButton->geometry(), QRect(155, 255, 100, 20));
}

void tst_AccumulateDlg::setsItsTexts()
{
    Host::instance().textPrefix = QStringLiteral("t:");
    dlg()->showWindow(m_parent.get());
    QCOMPARE(dlg()->m_pSelectProfileLbl->text(), QStringLiteral("t:IDS_STC_APN"));
    QCOMPARE(dlg()->m_pSelectMonthLbl->text(), QStringLiteral("t:IDS_STC_MONTH"));
    QCOMPARE(dlg()->m_pUploadedData->text(), QStringLiteral("t:IDS_TREE_UPLOADED_DATA"));
    QCOMPARE(dlg()->m_pDownloadedData->text(), QStringLiteral("t:IDS_TREE_DOWNLOADED_DATA"));
    QCOMPARE(dlg()->m_pTransferTime->text(), QStringLiteral("t:IDS_TREE_TIME_TRANSFER"));
    QCOMPARE(dlg()->m_pStatisticsGrp->title(), QStringLiteral("t:IDS_GROUP_STATISTIC"));
    QCOMPARE(dlg()->m_pPushButton->text(), QStringLiteral("t:IDS_BTN_OK"));
    QCOMPARE(dlg()->m_pMonthSelectionComboBox->count(), 3);
    QCOMPARE(dlg()->m_pMonthSelectionComboBox->itemText(0), "t:IDS_COMBO_THISMONTH");
    QCOMPARE(dlg()->m_pMonthSelectionComboBox->itemText(1), "t:IDS_COMBO_LASTMONTH");
    QCOMPARE(dlg()->m_pMonthSelectionComboBox->itemText(2), "t:IDS_COMBO_BEFORELASTMONTH");
    QCOMPARE(frame()->windowTitle(),
             QStringLiteral("t:IDS_TITLE_TOTAL ( 01/03/2025 - 31/03/2025 ) "));
}

void tst_AccumulateDlg::translatesInAFixedOrder()
{
    dlg()->showWindow(m_parent.get());
    QStringList expected = {"IDS_TITLE_TOTAL",
                            "IDS_STC_APN",
                            "IDS_STC_MONTH",
                            "IDS_TREE_UPLOADED_DATA",
                            "IDS_TREE_DOWNLOADED_DATA",
                            "IDS_TREE_TIME_TRANSFER",
                            "IDS_COMBO_THISMONTH",
                            "IDS_COMBO_LASTMONTH",
                            "IDS_COMBO_BEFORELASTMONTH",
                            "IDS_GROUP_STATISTIC",
                            "IDS_BTN_OK",
                            "IDS_COMBO_ALLAPN",
                            "IDS_TITLE_TOTAL",
                            "IDS_STC_SINGLEPACKET_UNIT",
                            "IDS_STC_SINGLEPACKET_UNIT"};
    for (QString &id : expected)
        id += QStringLiteral("/NetInfoRecordUIPlugin");
    QCOMPARE(Host::instance().translated, expected);
}

void tst_AccumulateDlg::asksForNoTextOfAMissingWidget()
{
    dlg()->showWindow(m_parent.get());
    for (const char *name :
         {"m_pSelectProfileLbl", "m_pSelectMonthLbl", "m_pUploadedData", "m_pDownloadedData",
          "m_pTransferTime", "m_pStatisticsGrp", "m_pMonthSelectionComboBox", "m_pPushButton"})
        delete frame()->findChild<QWidget *>(name); // some have gone with the group
    Host::instance().translated.clear();
    dlg()->uiSetText();
    QCOMPARE(Host::instance().translated, QStringList{"IDS_TITLE_TOTAL/NetInfoRecordUIPlugin"});
}

void tst_AccumulateDlg::showsZerosWithoutRows()
{
    Host::instance().textPrefix = QStringLiteral("t:");
    dlg()->showWindow(m_parent.get());
    QCOMPARE(profiles(), QStringList{"t:IDS_COMBO_ALLAPN"});
    QVERIFY(dlg()->m_dialogRecords.isEmpty());
    QCOMPARE(shown(), (QStringList{"0 t:IDS_STC_SINGLEPACKET_UNIT", "0 t:IDS_STC_SINGLEPACKET_UNIT",
                                   "00:00:00"}));
}

void tst_AccumulateDlg::findsLeapYears_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<QString>("lastDay");
    for (int year : {2000, 2024, 2400})
        QTest::addRow("%d", year) << year << "29";
    for (int year : {1900, 2023, 2100})
        QTest::addRow("%d", year) << year << "28";
}

void tst_AccumulateDlg::findsLeapYears()
{
    QFETCH(int, year);
    QTEST(dlg()->checkLeapYear(year), "lastDay");
}

void tst_AccumulateDlg::titlesTheRangeOfAMonth_data()
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

void tst_AccumulateDlg::titlesTheRangeOfAMonth()
{
    QFETCH(QString, year);
    QFETCH(int, month);
    QFETCH(QString, range);
    dlg()->showWindow(m_parent.get());
    dlg()->setDateRange(year, month);
    QCOMPARE(frame()->windowTitle(), QStringLiteral("IDS_TITLE_TOTAL ( %1 ) ").arg(range));
}

void tst_AccumulateDlg::titlesTheChosenMonth_data()
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

void tst_AccumulateDlg::titlesTheChosenMonth()
{
    QFETCH(QDate, day);
    QFETCH(int, month);
    QFETCH(QString, range);
    today = day;
    dlg()->showWindow(m_parent.get());
    chooseMonth(month);
    QCOMPARE(frame()->windowTitle(), QStringLiteral("IDS_TITLE_TOTAL ( %1 ) ").arg(range));
}

void tst_AccumulateDlg::filtersRowsByMonth_data()
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

void tst_AccumulateDlg::filtersRowsByMonth()
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

void tst_AccumulateDlg::listsRowsInTheirOrder()
{
    Host::instance().textPrefix = QStringLiteral("t:");
    rows() = {row("IDS_COMBO_ALLAPN", "", 0), row("b", "202503", 10), row("x", "202502", 20),
              row("IDS_OK", "202503", 30), row("a", "202503", 40)};
    dlg()->showWindow(m_parent.get());
    QCOMPARE(profiles(), (QStringList{"t:IDS_COMBO_ALLAPN", "b", "IDS_OK", "a"}));
    QStringList names;
    for (const AccumulateDialogRecord &record : qAsConst(dlg()->m_dialogRecords))
        names.append(record.profileName);
    QCOMPARE(names, (QStringList{"IDS_COMBO_ALLAPN", "b", "IDS_OK", "a"}));
    QVERIFY(!dlg()->m_pProfileSelectionComboBox->itemData(1).isValid());
    QVERIFY(dlg()->m_pProfileSelectionComboBox->itemIcon(1).isNull());
}

void tst_AccumulateDlg::showsTheColumnOfTheMonth_data()
{
    QTest::addColumn<int>("month");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("this month") << 0 << QStringList{"104 UNIT", "101 UNIT", "00:01:47"};
    QTest::newRow("last month") << 1 << QStringList{"105 UNIT", "102 UNIT", "00:01:48"};
    QTest::newRow("before last") << 2 << QStringList{"106 UNIT", "103 UNIT", "00:01:49"};
}

void tst_AccumulateDlg::showsTheColumnOfTheMonth()
{
    QFETCH(int, month);
    QFETCH(QStringList, texts);
    rows() = {row("IDS_ALL", "", 100)};
    dlg()->showWindow(m_parent.get());
    chooseMonth(month);
    QCOMPARE(shown(), texts.replaceInStrings("UNIT", "IDS_STC_SINGLEPACKET_UNIT"));
}

void tst_AccumulateDlg::wrapsTheTimeAfterADay_data()
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

void tst_AccumulateDlg::wrapsTheTimeAfterADay()
{
    QFETCH(QString, seconds);
    rows() = {row("IDS_ALL", "", 0)};
    rows()[0].secondsThisMonth = seconds;
    dlg()->showWindow(m_parent.get());
    QTEST(dlg()->m_pTransferTimeValue->text(), "text");
}

void tst_AccumulateDlg::keepsTheProfileChoiceUntilTheNextMonth()
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

void tst_AccumulateDlg::titlesTheMonthOfItsFigures()
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
void tst_AccumulateDlg::countsTheMonthsOfTheDayOfEachChoice()
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

void tst_AccumulateDlg::showsNothingForAnUnknownMonth()
{
    rows() = {row("IDS_ALL", "", 100)};
    dlg()->showWindow(m_parent.get());
    const QString title = frame()->windowTitle();
    dlg()->onSelectComboItemOfTime(3);
    QCOMPARE(shown(),
             (QStringList{" IDS_STC_SINGLEPACKET_UNIT", " IDS_STC_SINGLEPACKET_UNIT", "00:00:00"}));
    QCOMPARE(frame()->windowTitle(), title);
}

void tst_AccumulateDlg::addsItsRowsAgainEachTime()
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

void tst_AccumulateDlg::connectsItsControlsAgainEachTime()
{
    for (int opened = 1; opened <= 3; ++opened) {
        dlg()->showWindow(m_parent.get());
        LogCapture log;
        QMetaObject::invokeMethod(dlg()->m_pMonthSelectionComboBox, "activated", Q_ARG(int, 0));
        QCOMPARE(log.take().filter("Entered: " + path + ": onSelectComboItemOfTime").size(),
                 opened);
        QMetaObject::invokeMethod(dlg()->m_pProfileSelectionComboBox, "activated", Q_ARG(int, 0));
        QCOMPARE(log.take().filter("Enter: " + path + ": onSelectComboItemOfProfile").size(),
                 opened);
    }
}

void tst_AccumulateDlg::reusesItsFrame()
{
    dlg()->showWindow(m_parent.get());
    QPointer<QDialog> first = frame();
    chooseMonth(2);
    Host::instance().textPrefix = QStringLiteral("new:");
    frame()->close();
    dlg()->showWindow(m_parent.get());
    QCOMPARE(frame(), first.data());
    QVERIFY(first->isVisible());
    QCOMPARE(dlg()->m_pMonthSelectionComboBox->count(), 3);
    QCOMPARE(dlg()->m_pMonthSelectionComboBox->currentIndex(), 0);
    QCOMPARE(dlg()->m_pPushButton->text(), QStringLiteral("new:IDS_BTN_OK"));
}

void tst_AccumulateDlg::closesOnOk()
{
    dlg()->showWindow(m_parent.get());
    QTest::mouseClick(dlg()->m_pPushButton, Qt::LeftButton);
    QVERIFY(frame());
    QVERIFY(frame()->isHidden());
}

void tst_AccumulateDlg::buildsAFreshFrameWhenTheHostTookIt()
{
    rows() = {row("IDS_ALL", "", 100)};
    dlg()->showWindow(m_parent.get());
    m_parent = std::make_unique<QWidget>(); // takes the frame with the old parent
    QVERIFY(!dlg()->m_pDialog);
    dlg()->onOKBtbClicked();
    dlg()->onSelectComboItemOfTime(0);
    dlg()->onSelectComboItemOfProfile(0);
    dlg()->showWindow(m_parent.get());
    QVERIFY(frame());
    QVERIFY(frame()->isVisible());
    QCOMPARE(profiles(), QStringList{"IDS_ALL"});
    QTest::mouseClick(dlg()->m_pPushButton, Qt::LeftButton);
    QVERIFY(frame()->isHidden());
}

void tst_AccumulateDlg::deletesItsWidgets_data()
{
    QTest::addColumn<bool>("shownBefore");
    QTest::newRow("before it was shown") << false;
    QTest::newRow("after it was shown") << true;
}

void tst_AccumulateDlg::deletesItsWidgets()
{
    QFETCH(bool, shownBefore);
    if (shownBefore)
        dlg()->showWindow(m_parent.get());
    dlg()->destroy();
    QVERIFY(!dlg()->m_pMainWidget);
    QVERIFY(!dlg()->m_pUploadedValue);
    QVERIFY(!dlg()->m_pFormLayout);
    QCOMPARE(bool(frame()), shownBefore);
    dlg()->destroy();
    dlg()->showWindow(m_parent.get());
    QVERIFY(dlg()->m_pMainWidget);
    QVERIFY(frame()->isVisible());
}

void tst_AccumulateDlg::survivesItsSlotsWithoutWidgets()
{
    dlg()->showWindow(m_parent.get());
    dlg()->destroy();
    LogCapture log;
    dlg()->onSelectComboItemOfTime(0);
    QStringList lines = log.take();
    QCOMPARE(lines.filter(QRegularExpression(missing("fillComboBoxItem"))).size(), 1);
    QCOMPARE(lines.filter(QRegularExpression(missing("onSelectComboItemOfTime"))).size(), 1);
    QVERIFY(lines.filter("Exit: " + path + ": onSelectComboItemOfTime").isEmpty());
    dlg()->onSelectComboItemOfProfile(0);
    lines = log.take();
    QCOMPARE(lines.filter(QRegularExpression(missing("onSelectComboItemOfProfile"))).size(), 1);
    dlg()->removeTimeComboElements();
    QCOMPARE(log.take().filter(QRegularExpression(missing("removeTimeComboElements"))).size(), 1);
    dlg()->onOKBtbClicked();
}

/// A host whose frames have another parent than they were given keeps the dialog on
/// screen when the plug-in has ended.
void tst_AccumulateDlg::missesAStoreThatHasEnded()
{
    dlg()->showWindow(m_parent.get());
    const QString title = frame()->windowTitle();
    NetInfoRecordLogic::Destroy();
    LogCapture log;
    chooseMonth(1);
    QCOMPARE(log.takeAbout(QStringLiteral("onSelectComboItemOfTime")).filter("Arg is NULL").size(),
             1);
    chooseProfile(0);
    const QStringList lines = log.take();
    QCOMPARE(lines.filter(QRegularExpression(missing("fillComboBoxItem"))).size(), 1);
    QCOMPARE(lines.filter(QRegularExpression(missing("onSelectComboItemOfProfile"))).size(), 1);
    QCOMPARE(frame()->windowTitle(), title);
}

void tst_AccumulateDlg::reportsAMissingFrame()
{
    LogCapture log;
    dlg()->setDateRange("2024", 1);
    QStringList lines = log.takeAbout(QStringLiteral("setDateRange"));
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.last().contains(QRegularExpression(missing("setDateRange"))));
    dlg()->uiSetText();
    QCOMPARE(log.takeAbout(QStringLiteral("uiSetText")),
             (QStringList{"Start File: " + path + " uiSetText: 230: <time>:",
                          "AccumulateDlg is not yet initialized: " + path +
                              " uiSetText: 235: <time>:"}));
    dlg()->onSelectComboItemOfTime(0); // without a record store
    lines = log.takeAbout(QStringLiteral("onSelectComboItemOfTime"));
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.last().contains(QRegularExpression(missing("onSelectComboItemOfTime"))));
}

void tst_AccumulateDlg::logsItsLife()
{
    LogCapture log;
    dlg();
    QCOMPARE(log.take(), (QStringList{"Start: <now>: " + path + ": Instance 464",
                                      "Start File: " + path + " AccumulateDlg: 361: <time>:",
                                      "Start File: " + path + " init: 370: <time>:",
                                      "End File: " + path + ": init: 445: <time>:",
                                      "End File: " + path + ": AccumulateDlg: 365: <time>:",
                                      "End  : <now>: " + path + ": Instance 470"}));
    dlg()->destroy();
    QVERIFY(log.take().filter("destroy").isEmpty());
    AccumulateDlg::Destroy();
    QCOMPARE(log.take(), (QStringList{"Start  : <now>: " + path + ": Destroy 490",
                                      "End  : <now>: " + path + ": Destroy 492"}));
}

void tst_AccumulateDlg::logsAShowing()
{
    dlg();
    LogCapture log;
    dlg()->showWindow(m_parent.get());
    const QStringList all = log.takeAbout(path);
    const QStringList fixed = all.filter(
        QRegularExpression("showWindow|uiSetObjectName|uiSetGeometry|uiSetText|addListener"));
    QCOMPARE(fixed, (QStringList{"Start File: " + path + " showWindow: 301: <time>:",
                                 "Start File: " + path + " uiSetObjectName: 70: <time>:",
                                 "End File: " + path + ": uiSetObjectName: 109: <time>:",
                                 "Start File: " + path + " uiSetGeometry: 126: <time>:",
                                 "End File: " + path + ": uiSetGeometry: 174: <time>:",
                                 "Start File: " + path + " uiSetText: 230: <time>:",
                                 "End File: " + path + ": uiSetText: 284: <time>:",
                                 "Entered: " + path + ": addListener: 525: <now>:",
                                 "End: " + path + ": addListener: 532: <now>:",
                                 "End File: " + path + ": showWindow: 328: <time>:"}));
    for (const char *function : {"fillComboBoxItem", "removeTimeComboElements", "setDateRange"}) {
        const QStringList own = all.filter(QStringLiteral(": %1: ").arg(function));
        QCOMPARE(own.size(), 2);
        QVERIFY(own.first().contains(QRegularExpression(
            QStringLiteral("^Enter: %1: %2: \\d+: <now>:$").arg(path, function))));
        QVERIFY(own.last().contains(QRegularExpression(
            QStringLiteral("^Exit: %1: %2: \\d+: <now>:$").arg(path, function))));
    }
}

QTEST_MAIN(tst_AccumulateDlg)
#include "tst_accumulatedlg.moc"
