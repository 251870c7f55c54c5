// SPDX-License-Identifier: MIT
#include "EveryWindow.h"
#include "apps/refdialer/PastPeriodsDialog.h"
#include "apps/refdialer/PlanDialog.h"
#include "apps/refdialer/PlanEditor.h"
#include "apps/refdialer/PlanLine.h"
#include "apps/refdialer/PlanWatch.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include <vector>

using history::DataPlan;
using refdialer::PlanWatch;

namespace
{

void show(const QString &name, QWidget &window, const Look &look)
{
    window.show();
    settle();
    look(name, window);
}

/// Of each kind of period and of each state.
std::vector<DataPlan> differentPlans()
{
    constexpr std::int64_t amount = 1023LL << 30;
    const history::JulianDay today = QDate::currentDate().toJulianDay();
    DataPlan within;
    within.name = profileForEveryWindow.toStdString();
    within.amount = amount;
    within.period = history::EveryDays{28};
    // The history's own connection has used as much.
    within.usedElsewhere = history::UsedElsewhere{-amount / 2, today};
    DataPlan unlimited = within;
    unlimited.amount.reset();
    unlimited.period = history::MonthlyFrom{31};
    DataPlan warned = within;
    warned.usedElsewhere = history::UsedElsewhere{-amount / 10, today};
    DataPlan spent = within;
    spent.period = history::OnceBetween{today - 1, today + 99};
    spent.usedElsewhere = history::UsedElsewhere{1, today};
    DataPlan ended = within;
    ended.period = history::OnceBetween{today - 2, today - 1};
    DataPlan future = within;
    future.period = history::OnceBetween{today + 30, today + 60};
    return {within, unlimited, warned, spent, ended, future};
}

void lookAtTheLine(HistoryWindow &history, const PlanWatch &plans, const Look &look)
{
    refdialer::PlanLine line(plans);
    line.resize(history.window().width(), line.sizeHint().height());
    show("plan line", line, look);
}

void lookAtThePlan(HistoryWindow &history, const DataPlan &plan, const Look &look)
{
    PlanWatch plans(QString::fromStdString(history.storePath()));
    plans.finish();
    refdialer::PlanDialog dialog(plans, &history.window());
    refdialer::PlanEditor editor(plans, plan, &history.window());
    refdialer::PastPeriodsDialog periods(plans, 0, &history.window());
    plans.finish();
    lookAtTheLine(history, plans, look);
    show("plans", dialog, look);
    show("plan", editor, look);
    show("past periods", periods, look);
}

void lookAtTheRemoval(HistoryWindow &history, const Look &look)
{
    PlanWatch plans(QString::fromStdString(history.storePath()));
    plans.finish();
    refdialer::PlanDialog dialog(plans, &history.window());
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    lookAtModal("removal of a plan", look,
                [&dialog] { QTest::keyClick(dialog.findChild<QTreeWidget *>(), Qt::Key_Delete); });
}

/// More than there are lines for.
void lookAtManyPlans(HistoryWindow &history, history::Store &store, const Look &look)
{
    int number = 0;
    for (DataPlan plan : differentPlans()) {
        plan.name += std::to_string(++number);
        QVERIFY(store.setPlan(plan));
    }
    PlanWatch plans(QString::fromStdString(history.storePath()));
    plans.finish();
    lookAtTheLine(history, plans, look);
    for (const auto &each : plans.plans())
        QVERIFY(store.removePlan(each.plan.name));
}

void lookAtNoPlan(HistoryWindow &history, const Look &look)
{
    PlanWatch plans(QString::fromStdString(history.storePath()));
    plans.finish();
    lookAtTheLine(history, plans, look);
    refdialer::PlanDialog dialog(plans, &history.window());
    show("no plan", dialog, look);
}

/// Everything that can be wrong in the editor at once, for each kind of period.
void lookAtWrongFields(HistoryWindow &history, const Look &look)
{
    PlanWatch plans(QString::fromStdString(history.storePath()));
    plans.finish();
    refdialer::PlanEditor editor(plans, DataPlan(), &history.window());
    for (QComboBox *const choice : editor.findChildren<QComboBox *>())
        choice->setCurrentIndex(choice->count() - 1);
    for (QLineEdit *const edit : editor.findChildren<QLineEdit *>()) {
        if (!qobject_cast<QAbstractSpinBox *>(edit->parent()))
            edit->setText(QStringLiteral("?"));
    }
    editor.show();
    editor.accept();
    show("plan with faults", editor, look);
}

} // namespace

void lookAtEveryPlan(HistoryWindow &history, const Look &look)
{
    auto store = history::Store::openOrCreate(history.storePath());
    lookAtNoPlan(history, look);
    lookAtWrongFields(history, look);
    for (const DataPlan &plan : differentPlans()) {
        QVERIFY(store.value().setPlan(plan));
        lookAtThePlan(history, plan, look);
        lookAtTheRemoval(history, look);
        QVERIFY(store.value().removePlan(plan.name));
    }
    lookAtManyPlans(history, store.value(), look);
}
