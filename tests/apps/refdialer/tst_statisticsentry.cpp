// SPDX-License-Identifier: MIT
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "RecordingPlugin.h"
#include "apps/refdialer/TrueValues.h"
#include "refhost/libcore/Host.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QFormLayout>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QTest>

/// The window's entry for the statistics, with the built plug-in as it is: plain
/// or with statistics.
class StatisticsEntryTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_history.reset(); }

    void isGreyedWithAReasonWhereThePluginHasNone();
    void isGreyedWithAReasonBesideAPluginWithoutMetadata();
    void tellsTheReasonInTheLanguageOfTheWindow();
    void opensTheStatisticsOfAPluginThatHasThem();
    void hasAKey();
    void opensTheStatisticsWhileTheHistoryIsHidden();
    void asksNobodyOnceThePluginHasEnded();

private:
    QAction *entry() const { return menuEntry(m_history->window(), {"View", "Statistics…"}); }

    std::unique_ptr<HistoryWindow> m_history;
};

namespace
{

#ifdef NETINFORECORD_WIRE_STATISTICS
constexpr bool isWired = true;
#else
constexpr bool isWired = false;
#endif

history::Connection connectionOfToday()
{
    history::Connection made = connection("internet", 0);
    made.startUtc = QDateTime(QDate::currentDate(), QTime(0, 0)).toSecsSinceEpoch();
    made.endUtc = made.startUtc + made.connectedSeconds;
    return made;
}

/// Sent, received and time, as the dialog shows them.
QStringList figuresIn(const QWidget &dialog)
{
    const auto &form = *dialog.findChild<QFormLayout *>();
    QStringList figures;
    for (int row = form.rowCount() - 3; row < form.rowCount(); ++row)
        figures.append(
            qobject_cast<QLabel *>(form.itemAt(row, QFormLayout::FieldRole)->widget())->text());
    return figures;
}

} // namespace

void StatisticsEntryTest::init()
{
    m_history = std::make_unique<HistoryWindow>();
    QVERIFY(m_history->store({connectionOfToday()}));
    QVERIFY(m_history->open());
}

void StatisticsEntryTest::isGreyedWithAReasonWhereThePluginHasNone()
{
    QVERIFY(entry());
    QCOMPARE(entry()->isEnabled(), isWired);
    QCOMPARE(entry()->statusTip().contains("has no statistics"), !isWired);
    QCOMPARE(entry()->toolTip().contains("has no statistics"), !isWired);
    QVERIFY(menuEntry(m_history->window(), {"View"})->menu()->toolTipsVisible());
}

void StatisticsEntryTest::isGreyedWithAReasonBesideAPluginWithoutMetadata()
{
    m_history.reset();
    QStringList calls;
    const auto plugin = refdialer::PluginHandle::adopt(new RecordingPlugin(calls));
    const refdialer::LineState state;
    const refdialer::MainWindow window(*plugin, refdialer::HistorySource{}, state,
                                       refdialer::TrueValues::beginReading(std::string()));
    const QAction *const greyed = menuEntry(window, {"View", "Statistics…"});
    QVERIFY(greyed && !greyed->isEnabled());
    QVERIFY(greyed->toolTip().contains("--plugin"));
}

void StatisticsEntryTest::tellsTheReasonInTheLanguageOfTheWindow()
{
    QVERIFY(refhost::setLanguage("de"));
    QAction *german = nullptr;
    QTRY_VERIFY((german = menuEntry(m_history->window(), {"Ansicht", "Statistik …"})));
    QCOMPARE(german->toolTip().contains("hat keine Statistik"), !isWired);
}

void StatisticsEntryTest::opensTheStatisticsOfAPluginThatHasThem()
{
    entry()->trigger();
    const QPointer<QWidget> dialog = QApplication::activeModalWidget();
    QCOMPARE(!dialog.isNull(), isWired);
    if (!dialog)
        return;
    QCOMPARE(figuresIn(*dialog), (QStringList{"0.00 MB", "5.00 MB", "01:02:05"}));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(QTest::qWaitForWindowActive(&m_history->window()));
    entry()->trigger();
    QCOMPARE(QApplication::activeModalWidget(), dialog.data());
}

void StatisticsEntryTest::hasAKey()
{
    m_history->pressKey(Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(QApplication::activeModalWidget() != nullptr, isWired);
}

void StatisticsEntryTest::opensTheStatisticsWhileTheHistoryIsHidden()
{
    menuEntry(m_history->window(), {"View", "Usage"})->trigger();
    entry()->trigger();
    QCOMPARE(QApplication::activeModalWidget() != nullptr, isWired);
}

void StatisticsEntryTest::asksNobodyOnceThePluginHasEnded()
{
    m_history->plugin().end();
    QVERIFY(!m_history->plugin().showStatistics());
}

QTEST_MAIN(StatisticsEntryTest)

#include "tst_statisticsentry.moc"
