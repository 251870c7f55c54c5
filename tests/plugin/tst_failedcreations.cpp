// SPDX-License-Identifier: MIT
#include "AccumulateDlg.h"
#include "ConnectionHistoryDlg.h"
#include "LogCapture.h"
#include "NetInfoRecordLogic.h"
#include "ScriptedHost.h"

#include <QApplication>
#include <QMenu>
#include <QTableWidget>
#include <QTest>

#include <cstddef>
#include <functional>
#include <new>

using scripted::Host;

namespace
{

/// How many creations succeed before one fails; negative: none fails.
int creationsLeft = -1;

bool isNextCreationToFail()
{
    return creationsLeft >= 0 && creationsLeft-- == 0;
}

} // namespace

/// Stands in for the system's own, which would fail only without memory.
void *operator new(std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    return isNextCreationToFail() ? nullptr : ::operator new(size);
}

/// What the window does when one of its parts cannot be created: it says so and
/// continues without.
class tst_FailedCreations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void saysWhatIsMissing_data();
    void saysWhatIsMissing();
    void createsTheMainWidgetOfTheStatisticsFirst();
#ifdef NETINFORECORD_WIRE_STATISTICS
    void showsWhatThereIsOfTheStatistics();
#endif

private:
    static void build();
    static void fill();
    static void openTheMenu();
    static void showTheSummary();
};

Q_DECLARE_METATYPE(std::function<void()>)

void tst_FailedCreations::cleanup()
{
    creationsLeft = -1;
    Host::instance().reset();
}

void tst_FailedCreations::build()
{
    ConnectionHistoryDlg::Instance()->Init();
}

void tst_FailedCreations::fill()
{
    NetInfoRecordLogic::Instance()->GetAllConnectedRecords();
    ConnectionHistoryDlg::Instance()->populateTable();
}

void tst_FailedCreations::openTheMenu()
{
    ConnectionHistoryDlg::Instance()->createTableRightClickAction();
}

void tst_FailedCreations::showTheSummary()
{
    ConnectionHistoryDlg::Instance()->ShowDialogOfLastConnectedRecord(nullptr);
}

void tst_FailedCreations::saysWhatIsMissing_data()
{
    QTest::addColumn<std::function<void()>>("operation");
    QTest::newRow("the window") << std::function<void()>(build);
    QTest::newRow("the rows") << std::function<void()>(fill);
    QTest::newRow("the menu") << std::function<void()>(openTheMenu);
    QTest::newRow("the summary") << std::function<void()>(showTheSummary);
}

void tst_FailedCreations::saysWhatIsMissing()
{
    QFETCH(std::function<void()>, operation);
    const auto record = scripted::record("a", "1267795800", "1267799400", "3600", "1", "2");
    const auto widgets = QApplication::allWidgets().size();
    int failures = 0;
    for (bool hasFailed = true; hasFailed; ++failures) {
        Host::instance().records = {record};
        Host::instance().lastRecord = record;
        ConnectionHistoryDlg::Instance(); // its constructor's creations cannot fail quietly
        LogCapture log;
        creationsLeft = failures;
        operation();
        hasFailed = creationsLeft < 0;
        creationsLeft = -1;
        QCOMPARE(!log.take().filter(QStringLiteral("Arg is NULL")).isEmpty(), hasFailed);
        ConnectionHistoryDlg::Destroy();
        QCOMPARE(QApplication::allWidgets().size(), widgets);
    }
    QVERIFY(failures > 1);
}

void tst_FailedCreations::createsTheMainWidgetOfTheStatisticsFirst()
{
    QStringList lines;
    for (int created = 0; created < 8; ++created) {
        LogCapture log;
        creationsLeft = created;
        AccumulateDlg::Instance();
        creationsLeft = -1;
        lines.append(log.takeAbout(QStringLiteral("Arg is NULL")).join(QLatin1Char('\n')).right(3));
        AccumulateDlg::Instance()->destroy();
        AccumulateDlg::Destroy();
    }
    // In the order of the lines: main widget, labels, combo boxes, layouts.
    QCOMPARE(lines, (QStringList{"382", "383", "384", "385", "386", "387", "388", "389"}));
}

#ifdef NETINFORECORD_WIRE_STATISTICS
void tst_FailedCreations::showsWhatThereIsOfTheStatistics()
{
    int failures = 0;
    for (bool hasFailed = true; hasFailed; ++failures) {
        LogCapture log;
        creationsLeft = failures;
        AccumulateDlg::Instance()->showWindow(nullptr);
        hasFailed = creationsLeft < 0;
        creationsLeft = -1;
        const QScopedPointer<QWidget> frame(QApplication::activeModalWidget());
        const bool isMissingSaid = !log.take().filter(QStringLiteral("Arg is NULL")).isEmpty();
        QCOMPARE(isMissingSaid || !frame, hasFailed);
        AccumulateDlg::Instance()->destroy();
        AccumulateDlg::Destroy();
    }
    QVERIFY(failures > 15);
    NetInfoRecordLogic::Destroy();
}
#endif

QTEST_MAIN(tst_FailedCreations)
#include "tst_failedcreations.moc"
