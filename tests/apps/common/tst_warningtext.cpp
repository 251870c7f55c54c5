// SPDX-License-Identifier: MIT
#include "PlanSamples.h"
#include "apps/common/WarningText.h"
#include "refhost/libcore/Host.h"
#include "usage/PlanWarnings.h"

#include <QTest>

using namespace usage;

namespace
{

constexpr std::int64_t megabyte = 1024 * 1024;

/// On the 20th of November, with so much of 10 MB used.
ReachedPlan reached(std::int64_t used)
{
    const std::int64_t noon = utcOf("2026-11-20T12:00:00");
    history::DataPlan plan = planOf(history::MonthlyFrom{1}, 10 * megabyte);
    // A name is no pattern.
    plan.name = "%3 & <b>";
    return {plan, statusOf(plan, *periodAt(plan.period, noon), used, noon)};
}

} // namespace

class WarningTextTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { refhost::setLanguage(QStringLiteral("en")); }

    void saysWhatIsUsedAndLeft();
    void leavesAByteOfAPlan();
    void saysHowLongASpentPlanLasts();
    void speaksTheLanguageOfTheProgram();
};

void WarningTextTest::saysWhatIsUsedAndLeft()
{
    QCOMPARE(common::warningText(reached(8 * megabyte), 80),
             QString("80 % of the data plan \"%3 & <b>\" used: 8.00 MB of 10.00 MB, 2.00 MB "
                     "left until 2026-11-30."));
}

void WarningTextTest::leavesAByteOfAPlan()
{
    QCOMPARE(common::warningDetails(reached(10 * megabyte - 1)),
             QString("9.99 MB of 10.00 MB, 0.00 KB left until 2026-11-30."));
    usage::ReachedPlan smaller = reached(10 * megabyte - 1);
    smaller.plan.amount = 10 * megabyte - 1;
    QVERIFY(common::warningDetails(smaller).startsWith("9.99 MB of 9.99 MB"));
}

void WarningTextTest::saysHowLongASpentPlanLasts()
{
    QCOMPARE(common::warningText(reached(12 * megabyte), 100),
             QString("100 % of the data plan \"%3 & <b>\" used: 12.00 MB of 10.00 MB; the "
                     "period lasts until 2026-11-30."));
}

void WarningTextTest::speaksTheLanguageOfTheProgram()
{
    refhost::setLanguage(QStringLiteral("de"));
    QCOMPARE(common::warningTitle(reached(8 * megabyte), 80),
             QString("80 % des Datentarifs „%3 & <b>“ verbraucht"));
    QCOMPARE(common::warningDetails(reached(8 * megabyte)),
             QString("8.00 MB von 10.00 MB, 2.00 MB übrig bis 2026-11-30."));
    QCOMPARE(common::warningDetails(reached(10 * megabyte)),
             QString("10.00 MB von 10.00 MB; der Zeitraum läuft bis 2026-11-30."));
}

QTEST_GUILESS_MAIN(WarningTextTest)

#include "tst_warningtext.moc"
