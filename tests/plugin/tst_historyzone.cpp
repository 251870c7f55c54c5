// SPDX-License-Identifier: MIT
#include "LoadedPlugin.h"
#include "LogCapture.h"
#include "ScriptedHost.h"

#include <QDateTime>
#include <QTest>

#include <dlfcn.h>

#include <ctime>

using scripted::Host;

namespace
{
const qint64 moment = 1267795800; // 2010-03-05 13:30 UTC

QVector<_KORA_ST_CONNRECORD> records(int count)
{
    return QVector<_KORA_ST_CONNRECORD>(count,
                                        scripted::record("profile", QByteArray::number(moment),
                                                         "1267799400", "3600", "1536", "1048576"));
}

int looksAtTheZone = 0;

/// How often the plug-in, and Qt for it, ask whether there is another zone now.
int looksWhileFilling(LoadedPlugin &plugin, int count)
{
    Host::instance().records = records(count);
    looksAtTheZone = 0;
    plugin.reload();
    const int looks = looksAtTheZone;
    return plugin.table()->rowCount() == count ? looks : -1;
}
} // namespace

/// Comes before the C library's own, also for the plug-in and for Qt.
extern "C" void tzset() noexcept
{
    static const auto original = reinterpret_cast<void (*)()>(dlsym(RTLD_NEXT, "tzset"));
    ++looksAtTheZone;
    original();
}

class tst_HistoryZone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Host::instance().reset(); }

    void looksAtTheZoneOnceForAllRecords();
    void noticesAnotherZoneAtTheNextFill();
};

void tst_HistoryZone::looksAtTheZoneOnceForAllRecords()
{
    const LogCapture log; // its lines name the time
    LoadedPlugin plugin;
    plugin.show();
    looksWhileFilling(plugin, 1); // how Qt keeps a local time is learnt once
    const int looksForFew = looksWhileFilling(plugin, 10);
    QVERIFY(looksForFew > 0);
    QCOMPARE(looksWhileFilling(plugin, 500), looksForFew);
}

void tst_HistoryZone::noticesAnotherZoneAtTheNextFill()
{
    Host::instance().records = records(1);
    LoadedPlugin plugin;
    plugin.show();
    const auto start = [&plugin] { return plugin.table()->item(0, 1)->data(0).toDateTime(); };
    QCOMPARE(start().time(), QTime(14, 30));
    // Without a word to the C library, as another part of the host might do it.
    qputenv("TZ", "Asia/Tokyo");
    plugin.reload();
    const QDateTime inTokyo = start();
    const qint64 shown = inTokyo.toSecsSinceEpoch();
    qputenv("TZ", "Europe/Berlin");
    QCOMPARE(inTokyo.time(), QTime(22, 30));
    QCOMPARE(shown, moment);
}

QTEST_MAIN(tst_HistoryZone)
#include "tst_historyzone.moc"
