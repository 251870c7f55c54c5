// SPDX-License-Identifier: MIT
#include "DialupContainer.h"
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QComboBox>
#include <QDateTime>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <memory>

using scripted::Host;

/// The wired build, through its border: the slot opens the dialog, every fetch
/// fills it.
class tst_Statistics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_plugin.reset(); }

    void opensFromTheSlotOverTheContainer();
    void logsTheSlotAroundTheDialog();
    void showsTheTotalsOfAllProfiles();
    void showsTheTotalsOfAProfile();
    void followsAReload();
    void forgetsWhatWasDeleted();
    void forgetsEachDeletedRecord_data();
    void forgetsEachDeletedRecord();
    void survivesTheAreaGoingFirst();
    void goesWithTheWindow();

private:
    void add(const QString &profile, const QDate &day, qint64 megabytes, int seconds);
    QDialog *open();
    QStringList figures() const;
    static void choose(QComboBox *box, int index);

    scripted::DialupContainer m_container;
    std::unique_ptr<LoadedPlugin> m_plugin;
};

void tst_Statistics::init()
{
    Host::instance().reset();
    Host::instance().container = &m_container;
    m_plugin = std::make_unique<LoadedPlugin>();
}

void tst_Statistics::add(const QString &profile, const QDate &day, qint64 megabytes, int seconds)
{
    const QByteArray start = QByteArray::number(QDateTime(day, QTime(12, 0)).toSecsSinceEpoch());
    Host::instance().records.append(scripted::record(
        profile, start, start, QByteArray::number(seconds), QByteArray::number(megabytes * 1048576),
        QByteArray::number(megabytes * 2097152)));
}

QDialog *tst_Statistics::open()
{
    QMetaObject::invokeMethod(m_plugin->historyWindow(), "OnAccumulateClicked");
    return m_plugin->area()->findChild<QDialog *>();
}

/// Uploaded, downloaded and time, from the newest rows of the form.
QStringList tst_Statistics::figures() const
{
    const auto *dialog = m_plugin->area()->findChild<QDialog *>();
    const auto *form = dialog->findChild<QFormLayout *>();
    QStringList result;
    for (int row = form->rowCount() - 3; row < form->rowCount(); ++row)
        result.append(
            qobject_cast<QLabel *>(form->itemAt(row, QFormLayout::FieldRole)->widget())->text());
    return result.replaceInStrings(" IDS_STC_SINGLEPACKET_UNIT", "");
}

void tst_Statistics::choose(QComboBox *box, int index)
{
    box->setCurrentIndex(index);
    QMetaObject::invokeMethod(box, "activated", Q_ARG(int, index));
}

void tst_Statistics::opensFromTheSlotOverTheContainer()
{
    m_plugin->show();
    QDialog *dialog = open();
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->parentWidget(), m_plugin->container());
    QTest::mouseClick(dialog->findChild<QPushButton *>("m_pPushButton"), Qt::LeftButton);
    QVERIFY(dialog->isHidden());
    QCOMPARE(open(), dialog);
    QVERIFY(dialog->isVisible());
}

void tst_Statistics::logsTheSlotAroundTheDialog()
{
    m_plugin->show();
    LogCapture log;
    open();
    const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg");
    const QStringList lines = log.take();
    QCOMPARE(lines.first(),
             QStringLiteral("Start File: %1 OnAccumulateClicked: 416: <now>:").arg(path));
    QCOMPARE(lines.last(),
             QStringLiteral("End File: %1: OnAccumulateClicked: 425: <now>:").arg(path));
}

void tst_Statistics::showsTheTotalsOfAllProfiles()
{
    const QDate today = QDate::currentDate();
    const QDate lastMonth = QDate(today.year(), today.month(), 1).addMonths(-1);
    add("a", today, 1, 60);
    add("b", today, 2, 3600);
    add("a", lastMonth, 10, 1);
    add("a", lastMonth.addMonths(-1), 20, 2);
    m_plugin->show();
    auto *months = open()->findChild<QComboBox *>("m_pMonthSelectionComboBox");
    QCOMPARE(figures(), (QStringList{"3.00", "6.00", "01:01:00"}));
    choose(months, 1);
    QCOMPARE(figures(), (QStringList{"10.00", "20.00", "00:00:01"}));
    choose(months, 2);
    QCOMPARE(figures(), (QStringList{"20.00", "40.00", "00:00:02"}));
}

void tst_Statistics::showsTheTotalsOfAProfile()
{
    const QDate today = QDate::currentDate();
    add("b", today, 2, 3600);
    add("IDS_OK", today, 5, 5);
    add("b", today, 3, 600);
    m_plugin->show();
    auto *profiles = open()->findChild<QComboBox *>("m_pProfileSelectionComboBox");
    QCOMPARE(profiles->count(), 3);
    QCOMPARE(profiles->itemText(0), QStringLiteral("IDS_COMBO_ALLAPN"));
    QCOMPARE(profiles->itemText(1), QStringLiteral("IDS_OK"));
    QCOMPARE(profiles->itemText(2), QStringLiteral("b"));
    choose(profiles, 2);
    QCOMPARE(figures(), (QStringList{"5.00", "10.00", "01:10:00"}));
}

void tst_Statistics::followsAReload()
{
    m_plugin->show();
    open();
    QCOMPARE(figures(), (QStringList{"0.00", "0.00", "00:00:00"}));
    m_plugin->notify()->Notify(1536, 1, 0);
    add("a", QDate::currentDate(), 7, 70);
    m_plugin->notify()->Notify(1536, 0, 0);
    open();
    QCOMPARE(figures(), (QStringList{"7.00", "14.00", "00:01:10"}));
}

void tst_Statistics::forgetsWhatWasDeleted()
{
    Host::instance().answer = [](const scripted::MessageBox &) { return 1024; };
    add("a", QDate::currentDate(), 7, 70);
    m_plugin->show();
    QMetaObject::invokeMethod(m_plugin->historyWindow(), "onDeleteAll");
    open();
    QCOMPARE(figures(), (QStringList{"0", "0", "00:00:00"})); // the row of zeros
}

void tst_Statistics::forgetsEachDeletedRecord_data()
{
    QTest::addColumn<int>("status");
    QTest::newRow("the SDK removes it") << 0;
    QTest::newRow("the SDK keeps it, the window does not") << 5;
}

void tst_Statistics::forgetsEachDeletedRecord()
{
    QFETCH(int, status);
    Host::instance().answer = [](const scripted::MessageBox &) { return 1024; };
    Host::instance().removeStatus = [status](int) { return status; };
    add("a", QDate::currentDate(), 1, 10);
    add("b", QDate::currentDate(), 2, 20);
    add("c", QDate::currentDate(), 4, 40);
    m_plugin->show();
    Host::instance().calls.clear();
    for (const char *profile : {"b", "a"}) {
        QTableWidget *table = m_plugin->table();
        table->selectRow(table->findItems(profile, Qt::MatchExactly).first()->row());
        QMetaObject::invokeMethod(m_plugin->historyWindow(), "onDelete");
        open();
        QCOMPARE(figures(), profile == QByteArray("b") ? (QStringList{"5.00", "10.00", "00:00:50"})
                                                       : (QStringList{"4.00", "8.00", "00:00:40"}));
    }
    const auto *profiles = open()->findChild<QComboBox *>("m_pProfileSelectionComboBox");
    QCOMPARE(profiles->count(), 2);
    QCOMPARE(profiles->itemText(1), QStringLiteral("c"));
    QVERIFY(Host::instance().calls.filter("ConnRecord()").isEmpty()); // no fetch
}

void tst_Statistics::survivesTheAreaGoingFirst()
{
    m_plugin->show();
    open();
    m_plugin->destroyArea();
    QMetaObject::invokeMethod(m_plugin->historyWindow(), "OnAccumulateClicked");
    m_plugin->end();
}

void tst_Statistics::goesWithTheWindow()
{
    m_plugin->show();
    QPointer<QDialog> dialog = open();
    m_plugin->end();
    QVERIFY(!dialog);
}

QTEST_MAIN(tst_Statistics)
#include "tst_statistics.moc"
