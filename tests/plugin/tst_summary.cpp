// SPDX-License-Identifier: MIT
#include "DialupContainer.h"
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QApplication>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <memory>

using scripted::Host;

namespace
{
const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg");

QString entry(const char *word, const char *function, int line)
{
    return QStringLiteral("%1: %2: %3: %4: <now>:").arg(word, path, function).arg(line);
}

QString labelText(const QFormLayout *form, int row, QFormLayout::ItemRole role)
{
    return qobject_cast<QLabel *>(form->itemAt(row, role)->widget())->text();
}
/// The window may be gone with the press, and Qt 5 would release the key in it.
void clickKey(const QPointer<QWindow> &window, Qt::Key key)
{
    QTest::keyPress(window, key);
    if (window)
        QTest::keyRelease(window, key);
}

} // namespace

class tst_Summary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isBuiltAsStated();
    void showsTheStoresTexts();
    void translatesInAFixedOrder();
    void closesOnOk_data();
    void closesOnOk();
    void replacesAnEarlierSummary();
    void showsNothingWithoutALastRecord();
    void leavesTheTitleBarsCloseToTheFrame();
    void survivesTheMainWindowGoingFirst();
    void endsWithTheWindow();
    void logsItsOperations();
    void ignoresOkWithoutASummary();

private:
    QDialog *summary() const;
    void reconnect();

    scripted::DialupContainer m_container;
    std::unique_ptr<QWidget> m_mainWindow;
    std::unique_ptr<LoadedPlugin> m_plugin;
};

void tst_Summary::init()
{
    Host::instance().reset();
    Host::instance().container = &m_container;
    Host::instance().settings[{"NetInfoRecordUIPlugin", "WhetherShowNotesbox"}] = "true";
    Host::instance().lastRecord =
        scripted::record("a", "1267795800", "1267799400", "3725", "1536", "1048576");
    m_mainWindow = std::make_unique<QWidget>();
    m_mainWindow->resize(800, 600);
    m_mainWindow->show();
    Host::instance().mainWindow = m_mainWindow.get();
    m_plugin = std::make_unique<LoadedPlugin>();
    m_plugin->show();
    Host::instance().calls.clear();
    Host::instance().translated.clear();
}

void tst_Summary::cleanup()
{
    m_plugin.reset();
    m_mainWindow.reset();
}

QDialog *tst_Summary::summary() const
{
    return m_mainWindow->findChild<QDialog *>(QStringLiteral("ScriptedExtendDialog"));
}

void tst_Summary::reconnect()
{
    m_plugin->notify()->Notify(1536, 1, 0);
    m_plugin->notify()->Notify(1536, 0, 0);
}

void tst_Summary::isBuiltAsStated()
{
    Host::instance().textPrefix = QStringLiteral("t:");
    reconnect();
    QDialog *frame = summary();
    QVERIFY(frame);
    QVERIFY(Host::instance().calls.contains(QStringLiteral("ExtendDialog(0x08000000, 1)")));
    QCOMPARE(frame->parentWidget(), m_mainWindow.get());
    QVERIFY(frame->isVisible());
    QCOMPARE(frame->minimumSize(), QSize(382, 217));
    QCOMPARE(frame->maximumSize(), QSize(382, 217));
    QCOMPARE(frame->size(), QSize(382, 217));
    QCOMPARE(frame->windowModality(), Qt::WindowModal);
    QCOMPARE(frame->windowTitle(), QStringLiteral("t:IDS_TITLE_SINGLE"));

    auto *group = frame->findChild<QGroupBox *>();
    QCOMPARE(group->title(), QStringLiteral("t:IDS_GROUP_STATISTIC"));
    QCOMPARE(group->height(), 106);
    auto *vertical = qobject_cast<QVBoxLayout *>(group->parentWidget()->layout());
    QVERIFY(vertical);
    QCOMPARE(vertical->contentsMargins(), QMargins(14, 11, 15, 15));
    QCOMPARE(vertical->count(), 2);
    QCOMPARE(vertical->itemAt(0)->widget(), group);
    QCOMPARE(vertical->stretch(0), 0);
    auto *horizontal = qobject_cast<QHBoxLayout *>(vertical->itemAt(1)->layout());
    QVERIFY(horizontal);
    QCOMPARE(vertical->stretch(1), 0);
    QCOMPARE(horizontal->count(), 1);
    QCOMPARE(horizontal->stretch(0), 132);
    QCOMPARE(horizontal->itemAt(0)->alignment(), Qt::Alignment());
    auto *button = qobject_cast<QPushButton *>(horizontal->itemAt(0)->widget());
    QCOMPARE(button->text(), QStringLiteral("t:IDS_BTN_OK"));
    auto *form = qobject_cast<QFormLayout *>(group->layout());
    QVERIFY(form);
    QCOMPARE(form->contentsMargins(), QMargins(10, 20, 10, 10));
    QCOMPARE(form->rowCount(), 3);
}

void tst_Summary::showsTheStoresTexts()
{
    reconnect();
    const auto *form = summary()->findChild<QFormLayout *>();
    const char *rows[][2] = {{"IDS_TREE_UPLOADED_DATA", "1.50 KB"},
                             {"IDS_TREE_DOWNLOADED_DATA", "1.00 MB"},
                             {"IDS_TREE_TIME_TRANSFER", "01:02:05"}};
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(labelText(form, row, QFormLayout::LabelRole), QString(rows[row][0]));
        QCOMPARE(labelText(form, row, QFormLayout::FieldRole), QString(rows[row][1]));
    }
}

void tst_Summary::translatesInAFixedOrder()
{
    reconnect();
    QStringList expected = {"IDS_TITLE_SINGLE",
                            "IDS_TREE_UPLOADED_DATA",
                            "IDS_TREE_DOWNLOADED_DATA",
                            "IDS_TREE_TIME_TRANSFER",
                            "IDS_BTN_OK",
                            "IDS_GROUP_STATISTIC"};
    for (QString &id : expected)
        id += QStringLiteral("/NetInfoRecordUIPlugin");
    QCOMPARE(Host::instance().translated, expected);
}

void tst_Summary::closesOnOk_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("mouse") << 0;
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void tst_Summary::closesOnOk()
{
    QFETCH(int, key);
    reconnect();
    QPointer<QDialog> frame = summary();
    frame->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(frame));
    QPointer<QPushButton> button = frame->findChild<QPushButton *>();
    button->setFocus();
    if (key)
        clickKey(button->window()->windowHandle(), Qt::Key(key));
    else
        QTest::mouseClick(button->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          button->mapTo(button->window(), button->rect().center()));
    QVERIFY(!frame);
    QVERIFY(!button);
    QCOMPARE(Host::instance().calls.filter(QStringLiteral("~ExtendDialog")).size(), 1);
}

void tst_Summary::replacesAnEarlierSummary()
{
    reconnect();
    QPointer<QDialog> first = summary();
    Host::instance().lastRecord = scripted::record("b", "1", "2", "10", "0", "0");
    reconnect();
    QVERIFY(!first);
    QVERIFY(summary());
    QCOMPARE(m_mainWindow->findChildren<QDialog *>().size(), 1);
    QCOMPARE(labelText(summary()->findChild<QFormLayout *>(), 2, QFormLayout::FieldRole),
             QStringLiteral("00:00:10"));
}

void tst_Summary::showsNothingWithoutALastRecord()
{
    reconnect();
    QVERIFY(summary());
    Host::instance().getLastStatus = 1;
    LogCapture log;
    reconnect();
    QVERIFY(!summary());
    QCOMPARE(log.takeAbout(QStringLiteral("ShowDialogOfLastConnectedRecord")),
             QStringList{entry("Enter", "ShowDialogOfLastConnectedRecord", 917)});
}

void tst_Summary::leavesTheTitleBarsCloseToTheFrame()
{
    reconnect();
    QPointer<QDialog> frame = summary();
    frame->close();
    QVERIFY(frame);
    QVERIFY(frame->isHidden());
    reconnect();
    QVERIFY(!frame);
    QVERIFY(summary()->isVisible());
}

void tst_Summary::survivesTheMainWindowGoingFirst()
{
    reconnect();
    QVERIFY(summary());
    m_mainWindow.reset();
    QVERIFY(QMetaObject::invokeMethod(m_plugin->historyWindow(), "onClickOkButton"));
    reconnect(); // without a main window the summary stands alone
    m_plugin->end();
    QVERIFY(Host::instance().calls.count(QStringLiteral("~ExtendDialog()")) == 2);
    m_mainWindow = std::make_unique<QWidget>();
}

void tst_Summary::endsWithTheWindow()
{
    reconnect();
    QPointer<QDialog> frame = summary();
    m_plugin->end();
    QVERIFY(!frame);
}

void tst_Summary::logsItsOperations()
{
    LogCapture log;
    reconnect();
    QCOMPARE(log.takeAbout(QStringLiteral("ShowDialogOfLastConnectedRecord")),
             (QStringList{entry("Enter", "ShowDialogOfLastConnectedRecord", 917),
                          entry("Exit", "ShowDialogOfLastConnectedRecord", 1011)}));
    QMetaObject::invokeMethod(m_plugin->historyWindow(), "onClickOkButton");
    QCOMPARE(log.take(), (QStringList{entry("Enter", "onClickOkButton", 1029),
                                      entry("Exit", "onClickOkButton", 1045)}));
}

void tst_Summary::ignoresOkWithoutASummary()
{
    LogCapture log;
    QMetaObject::invokeMethod(m_plugin->historyWindow(), "onClickOkButton");
    QCOMPARE(log.take().size(), 2);
    QVERIFY(!summary());
}

QTEST_MAIN(tst_Summary)
#include "tst_summary.moc"
