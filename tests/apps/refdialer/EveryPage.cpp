// SPDX-License-Identifier: MIT
#include "EveryWindow.h"
#include "apps/common/ProblemText.h"
#include "apps/refdialer/HistoryArea.h"
#include "apps/refdialer/HistoryNotice.h"
#include "apps/refdialer/HistorySearch.h"
#include "apps/refdialer/StateLine.h"
#include "apps/refdialer/UsageChart.h"
#include "apps/refdialer/UsagePage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

using refdialer::HistoryNotice;

namespace
{

template <class Widget>
Widget &part(const QWidget &window)
{
    return *window.findChild<Widget *>();
}

void lookAtMenus(HistoryWindow &history, const Look &look)
{
    for (QMenu *const menu : history.window().findChildren<QMenu *>()) {
        menu->popup(QPoint(0, 0));
        look("menu", *menu);
        menu->close();
    }
}

void lookAtTheContextMenu(HistoryWindow &history, const Look &look)
{
    history.clickRow(0);
    lookAtModal("context menu", look,
                [&history] { part<refdialer::HistoryArea>(history.window()).openContextMenu(); });
}

void lookAtTheNotices(HistoryWindow &history, const Look &look)
{
    using Reason = HistoryNotice::Reason;
    auto &notice = part<HistoryNotice>(history.window());
    notice.offerBackground(true);
    for (const Reason reason : {Reason::NoConnections, Reason::NothingFound, Reason::AllTooShort}) {
        notice.setReason(reason);
        settle();
        look("notice", history.window());
    }
    notice.setReason(Reason::None);
    notice.offerBackground(false);
}

void lookAtTheSearch(HistoryWindow &history, const Look &look)
{
    auto &search = part<refdialer::HistorySearch>(history.window());
    auto &days = part<QComboBox>(search);
    days.setCurrentIndex(days.count() - 1);
    settle();
    look("search", history.window());
    part<QLineEdit>(search).setText(QStringLiteral("nothing has this name"));
    QTRY_VERIFY(part<HistoryNotice>(history.window()).isVisible());
    look("nothing found", history.window());
    search.clear();
    QTRY_VERIFY(!part<HistoryNotice>(history.window()).isVisible());
}

void lookAtTheHistory(HistoryWindow &history, const Look &look)
{
    look("history", history.window());
    history.table().selectAll();
    settle();
    look("selection", history.window());
    history.table().clearSelection();
    lookAtTheSearch(history, look);
    lookAtTheNotices(history, look);
}

void lookAtUsageBy(int unit, refdialer::UsagePage &page, HistoryWindow &history, const Look &look)
{
    auto &units = *page.findChildren<QComboBox *>().at(1);
    auto &chart = part<refdialer::UsageChart>(page);
    const std::size_t former = chart.bars().size();
    if (units.currentIndex() != unit) {
        units.setCurrentIndex(unit);
        emit units.activated(unit);
        QTRY_VERIFY(chart.bars().size() != former);
    }
    settle();
    look("usage", history.window());
    auto &tableBox = part<QCheckBox>(page);
    tableBox.setChecked(true);
    settle();
    look("usage as a table", history.window());
    tableBox.setChecked(false);
}

void lookAtTheUsage(HistoryWindow &history, const Look &look)
{
    auto &pages = part<QTabWidget>(history.window());
    pages.setCurrentIndex(1);
    auto &page = part<refdialer::UsagePage>(history.window());
    QTRY_VERIFY(!part<refdialer::UsageChart>(page).bars().empty());
    for (const int unit : {0, 1})
        lookAtUsageBy(unit, page, history, look);
    pages.setCurrentIndex(0);
}

void lookAtConnections(HistoryWindow &history, const Look &look)
{
    history.state().setWatched(true);
    look("not connected", history.window());
    history.state().begin(lastingConnection(1));
    history.state().setProblem(common::impossibleInterfaceText(QStringLiteral("wwan 0")));
    settle();
    look("connected", history.window());
    history.state().end(1);
    history.state().setProblem(QString());
}

void lookAtTheSample(HistoryWindow &history, const Look &look)
{
    refdialer::StateLine line({QString(), true}, history.state());
    history.state().setWatched(false);
    line.resize(history.window().width(), line.sizeHint().height());
    line.show();
    look("sample", line);
}

} // namespace

void lookAtEveryPage(HistoryWindow &history, const Look &look)
{
    lookAtMenus(history, look);
    lookAtTheContextMenu(history, look);
    lookAtTheHistory(history, look);
    lookAtTheUsage(history, look);
    lookAtConnections(history, look);
    lookAtTheSample(history, look);
}
