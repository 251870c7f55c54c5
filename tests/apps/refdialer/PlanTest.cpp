// SPDX-License-Identifier: MIT
#include "PlanTest.h"

#include "refhost/libcore/Host.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace history;
using refdialer::PlanWatch;

void PlanTest::init()
{
    StoreTestCase::init();
    QVERIFY(refhost::setLanguage("en"));
    m_store = std::make_unique<Store>(storeWith(m_path, {}));
    auto clock = std::make_unique<FakeClock>();
    m_clock = clock.get();
    m_clock->utc = utcOf("2026-11-19T12:00:00Z");
    m_watch = std::make_unique<PlanWatch>(QString::fromStdString(m_path), std::move(clock));
}

void PlanTest::cleanup()
{
    m_watch.reset();
    m_store.reset();
    StoreTestCase::cleanup();
}

void PlanTest::readPlans()
{
    m_watch->finish(); // with an earlier look
    m_watch->look();
    m_watch->finish();
}

DataPlan planCalled(const std::string &name, std::optional<std::int64_t> amount)
{
    DataPlan plan;
    plan.name = name;
    plan.amount = amount;
    return plan;
}

DataPlan prepaid()
{
    DataPlan plan = planCalled("Prepaid \xc3\xa9");
    plan.covers = DataPlan::Covers::Sim;
    plan.covered = "8949000000000001234";
    plan.network = DataPlan::Network::Roaming;
    plan.counts = DataPlan::Counts::Sent;
    plan.amount = 9223372036854775807;
    plan.period = OnceBetween{dayNumber("2026-11-10"), dayNumber("2026-12-09")};
    plan.usedElsewhere = UsedElsewhere{-5, dayNumber("2026-11-12")};
    plan.warnAtPercent = {50, 120};
    return plan;
}

QString ruleText(const PeriodRule &rule)
{
    if (const auto *monthly = std::get_if<MonthlyFrom>(&rule))
        return QString("monthly %1").arg(monthly->day);
    if (const auto *every = std::get_if<EveryDays>(&rule))
        return QString("every %1 from %2")
            .arg(every->days)
            .arg(dayText(QDate::fromJulianDay(every->from)));
    const auto &once = std::get<OnceBetween>(rule);
    return dayText(QDate::fromJulianDay(once.first)) + " to " +
           dayText(QDate::fromJulianDay(once.last));
}

QString textOf(const DataPlan &plan)
{
    const auto &elsewhere = plan.usedElsewhere;
    QStringList warnings;
    for (const int percent : plan.warnAtPercent)
        warnings << QString::number(percent);
    return QStringList{QString::fromStdString(plan.name),
                       nameOf(coverNames, plan.covers),
                       QString::fromStdString(plan.covered),
                       nameOf(networkNames, plan.network),
                       nameOf(countNames, plan.counts),
                       plan.amount ? QString::number(*plan.amount) : "none",
                       ruleText(plan.period),
                       elsewhere ? QString("%1 on %2")
                                       .arg(elsewhere->bytes)
                                       .arg(dayText(QDate::fromJulianDay(elsewhere->day)))
                                 : "none",
                       warnings.join(',')}
        .join("|");
}

Connection movedIn(const QString &hour, std::int64_t bytes, bool isRoaming)
{
    Connection moved = connection("internet", utcOf(hour) + 60, utcOf(hour) + 120);
    moved.downloadedBytes = bytes;
    moved.hours = {{utcOf(hour), isRoaming, 0, bytes}};
    return moved;
}

void press(const QWidget &window, const QString &text)
{
    for (QPushButton *const button : window.findChildren<QPushButton *>()) {
        if (button->text().remove('&') == text && button->window() == &window)
            return button->click();
    }
    qFatal("There is no button %s.", qPrintable(text));
}

void choose(const QWidget &window, const QString &name, const QString &text)
{
    auto &box = named<QComboBox>(window, name);
    box.setCurrentIndex(box.findText(text));
    QCOMPARE(box.currentText(), text);
}

QStringList messagesIn(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *const label : window.findChildren<QLabel *>()) {
        if (label->wordWrap() && label->accessibleName().isEmpty() && !label->isHidden())
            texts.append(label->text());
    }
    return texts;
}

void write(const QWidget &window, const QString &name, const QString &text)
{
    auto &edit = named<QLineEdit>(window, name);
    edit.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&edit, Qt::Key_Delete);
    else
        QTest::keyClicks(&edit, text);
}
