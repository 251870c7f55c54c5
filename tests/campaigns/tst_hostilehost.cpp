// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "HostileHost.h"
#include "LoadedPlugin.h"
#include "ScriptedHost.h"

#include <QApplication>
#include <QTest>

/// The plug-in in the hands of a host that keeps to no order.
class tst_HostileHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void staysWhatItShouldBe();
    void leavesNothingBehindWhenItIsUnloaded();
};

namespace
{

QtMessageHandler usualHandler = nullptr;

/// The plug-in's own lines are formatted, which is what can go wrong, and dropped;
/// so is what a screen that is not there cannot do.
void dropNoise(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type != QtDebugMsg && !text.startsWith(QLatin1String("This plugin does not support")))
        usualHandler(type, context, text);
}

} // namespace

void tst_HostileHost::initTestCase()
{
    usualHandler = qInstallMessageHandler(dropNoise);
}

void tst_HostileHost::staysWhatItShouldBe()
{
    const int steps = campaign::count(20000);
    HostileHost host(campaign::seed(20260101));
    while (host.steps() < steps && host.complaint().isEmpty())
        host.step();
    if (!host.complaint().isEmpty())
        QFAIL(qPrintable(host.complaint() + QLatin1String("\nLast steps:\n") +
                         host.trace().join(QLatin1Char('\n'))));
    qInfo("%d steps, %d questions, %d menus, %d summaries, %d statistics, %d with bytes",
          host.steps(), host.questions(), host.menus(), host.summaries(), host.statisticsShown(),
          host.statisticsWithBytes());
    QVERIFY(host.questions() > 0 && host.menus() > 0 && host.summaries() > 0);
    QCOMPARE(host.statisticsShown() > 0, host.statisticsWithBytes() > 0);
}

void tst_HostileHost::leavesNothingBehindWhenItIsUnloaded()
{
    scripted::Host &host = scripted::Host::instance();
    host.reset();
    host.records.fill(scripted::record("a", "1", "2", "1", "0", "0"), 5);
    for (int times = 0; times < 100; ++times) {
        {
            LoadedPlugin plugin;
            plugin.show();
            QCOMPARE(plugin.table()->rowCount(), 5);
            plugin.area()->grab();
        }
        QVERIFY(QApplication::allWidgets().isEmpty());
        QCOMPARE(host.openArrays, 0);
        host.calls.clear();
    }
}

QTEST_MAIN(tst_HostileHost)
#include "tst_hostilehost.moc"
