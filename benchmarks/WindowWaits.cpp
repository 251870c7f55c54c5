// SPDX-License-Identifier: MIT
// window_waits [CONNECTIONS]: how long the window of refdialer keeps its user waiting, with
// so many connections of five years and three data plans. "At once" is what the click or
// key itself takes, "shown" until everything is there (5 ms more at most), and "longest turn" the
// longest time in between in which the window answered nothing.
#include "HistoryWindow.h"
#include "MenuEntry.h"
#include "apps/refdialer/HistorySearch.h"
#include "apps/refdialer/UsageChart.h"
#include "refhost/libcore/Host.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace
{

constexpr std::int64_t span = 5LL * 365 * 86400;

std::vector<history::Connection> connections(int count)
{
    const std::int64_t begin = QDateTime::currentSecsSinceEpoch() - span;
    std::vector<history::Connection> made;
    for (int number = 0; number < count; ++number) {
        history::Connection each = connection("internet" + std::to_string(number % 7), 0);
        each.startUtc = begin + span / count * number;
        each.endUtc = each.startUtc + each.connectedSeconds;
        each.uploadedBytes = number * 104729LL % 3000000;
        each.downloadedBytes = number * 1299709LL % 30000000;
        each.hours = {
            {history::startOfHour(each.startUtc), false, each.uploadedBytes, each.downloadedBytes}};
        made.push_back(each);
    }
    return made;
}

std::vector<history::DataPlan> plans()
{
    history::DataPlan monthly;
    monthly.name = "monthly";
    monthly.amount = 1LL << 36;
    history::DataPlan fourWeeks = monthly;
    fourWeeks.name = "four weeks";
    fourWeeks.period = history::EveryDays{28};
    history::DataPlan oneProfile = monthly;
    oneProfile.name = "one profile";
    oneProfile.covers = history::DataPlan::Covers::Profile;
    oneProfile.covered = "internet1";
    return {monthly, fourWeeks, oneProfile};
}

double milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The longest time, while it lives, in which no event was waited for.
class LongestTurn
{
public:
    LongestTurn()
    {
        auto *const dispatcher = QAbstractEventDispatcher::instance();
        m_turn.start();
        m_connections = {QObject::connect(dispatcher, &QAbstractEventDispatcher::awake,
                                          [this] { m_turn.start(); }),
                         QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock,
                                          [this] { end(); })};
    }
    ~LongestTurn()
    {
        for (const auto &each : m_connections)
            QObject::disconnect(each);
    }
    Q_DISABLE_COPY(LongestTurn)

    double value() const { return m_longest; }
    /// What is done meanwhile is not the window's.
    bool withoutMe(const std::function<bool()> &question)
    {
        end();
        const bool answer = question();
        m_turn.start();
        return answer;
    }

private:
    void end() { m_longest = std::max(m_longest, milliseconds(m_turn)); }

    QElapsedTimer m_turn;
    double m_longest = 0;
    std::vector<QMetaObject::Connection> m_connections;
};

void measure(const char *what, const std::function<void()> &act,
             const std::function<bool()> &isShown)
{
    LongestTurn turn;
    QElapsedTimer timer;
    timer.start();
    act();
    const double atOnce = milliseconds(timer);
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (turn.withoutMe(isShown))
            loop.quit();
    });
    poll.start(5);
    loop.exec();
    const double shown = milliseconds(timer);
    std::printf("| %-30s | %6.1f ms | %6.1f ms | %6.1f ms |\n", what, atOnce, shown,
                std::max(turn.value(), atOnce));
}

int seenRows(const QTableWidget &table)
{
    int seen = 0;
    for (int row = 0; row < table.rowCount(); ++row)
        seen += table.isRowHidden(row) ? 0 : 1;
    return seen;
}

void measureSearch(const HistoryWindow &history, int count)
{
    auto &field =
        *history.window().findChild<refdialer::HistorySearch *>()->findChild<QLineEdit *>();
    field.setFocus();
    const auto found = [&history](int expected) {
        return [&history, expected] { return seenRows(history.table()) == expected; };
    };
    const int ofOneProfile = (count + 6) / 7; // of the first ones
    measure(
        "search: i", [&] { QTest::keyClick(&field, Qt::Key_I); }, found(count));
    QTest::keyClicks(&field, "nternet");
    measure(
        "search: internet0", [&] { QTest::keyClick(&field, Qt::Key_0); }, found(ofOneProfile));
    measure(
        "search: internet0x, nothing found", [&] { QTest::keyClick(&field, Qt::Key_X); }, found(0));
    measure(
        "search: all again", [&] { field.clear(); }, found(count));
}

QWidget *dialogWithRows()
{
    for (QWidget *const each : QApplication::topLevelWidgets()) {
        const auto *const tree = each->findChild<QTreeWidget *>();
        const auto *const table = each->findChild<QTableWidget *>();
        const bool hasRows =
            (tree && tree->topLevelItemCount() > 0) || (table && table->rowCount() > 0);
        if (each->inherits("QDialog") && each->isVisible() && hasRows)
            return each;
    }
    return nullptr;
}

void measureDialog(const HistoryWindow &history, const char *what, const char *entry)
{
    QAction *const action = menuEntry(history.window(), {"Plans", QString::fromUtf8(entry)});
    if (!action)
        qFatal("There is no %s.", entry);
    measure(
        what, [action] { action->trigger(); }, [] { return dialogWithRows() != nullptr; });
    dialogWithRows()->close();
    QCoreApplication::processEvents();
}

void measurePages(const HistoryWindow &history)
{
    auto &pages = *history.window().findChild<QTabWidget *>();
    const auto &chart = *history.window().findChild<refdialer::UsageChart *>();
    measure(
        "usage by day", [&] { pages.setCurrentIndex(1); }, [&] { return !chart.bars().empty(); });
    auto &units = *pages.currentWidget()->findChildren<QComboBox *>().at(1);
    const std::size_t days = chart.bars().size();
    measure(
        "usage by month",
        [&] {
            units.setCurrentIndex(1);
            emit units.activated(1);
        },
        [&] { return chart.bars().size() != days; });
    measure(
        "history again", [&] { pages.setCurrentIndex(0); }, [] { return true; });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int count = argc > 1 ? QByteArray(argv[1]).toInt() : 100000;
    HistoryWindow history;
    if (!history.store(connections(count)))
        qFatal("The history cannot be written.");
    auto store = history::Store::openOrCreate(history.storePath());
    for (const history::DataPlan &plan : plans()) {
        if (!store.value().setPlan(plan))
            qFatal("The plans cannot be written.");
    }
    std::printf(
        "| %d connections | at once | shown | longest turn |\n| --- | ---: | ---: | ---: |\n",
        count);
    if (!history.open())
        qFatal("The window cannot be opened.");
    history.window().finishReading();
    QCoreApplication::processEvents();
    measurePages(history);
    measureSearch(history, count);
    measureDialog(history, "data plans", "Data plans…");
    measureDialog(history, "past periods", "Past periods…");
    return 0;
}
