// SPDX-License-Identifier: MIT
#include "AccumulateDlgTest.h"
#include "ExtendDialog.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QVBoxLayout>

using scripted::Host;

namespace
{

const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/AccumulateDlg");

QString missing(const char *function)
{
    return QStringLiteral("^Arg is NULL: <now>: %1: %2 \\d+$").arg(path, function);
}

} // namespace

/// The dialog itself: its widgets, texts, life and log.
class tst_AccumulateDlg : public AccumulateDlgTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsItsSlotsInOrder();
    void buildsItsWidgets();
    void namesItsWidgets();
    void placesItsWidgets();
    void setsItsTexts();
    void translatesInAFixedOrder();
    void asksForNoTextOfAMissingWidget();
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
};

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
    // The profiles come back with the figures.
    QCOMPARE(dlg()->m_pProfileSelectionComboBox->count(), 1);
    dlg()->uiSetText();
    QCOMPARE(dlg()->m_pProfileSelectionComboBox->count(), 0);
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
