// SPDX-License-Identifier: MIT
#include "recorder/SystemClock.h"

#include <QFile>
#include <QTest>

#include <chrono>
#include <cmath>

using recorder::SystemClock;

namespace
{

/// The kernel's own word, in milliseconds, cut to hundredths of a second.
qint64 uptime()
{
    QFile file(QStringLiteral("/proc/uptime"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return std::llround(file.readAll().split(' ').first().toDouble() * 1000);
}

qint64 secondsSince1970()
{
    using std::chrono::system_clock;
    return std::chrono::duration_cast<std::chrono::seconds>(system_clock::now().time_since_epoch())
        .count();
}

} // namespace

/// What the clocks show lies between what others show before and after.
class SystemClockTest : public QObject
{
    Q_OBJECT

private slots:
    void countsTheMillisecondsSinceTheSystemWasStarted();
    void countsTheSecondsSince1970();
    void theBootIdIsTheKernels();
};

void SystemClockTest::countsTheMillisecondsSinceTheSystemWasStarted()
{
    const qint64 before = uptime();
    const qint64 shown = SystemClock().bootMilliseconds();
    const qint64 after = uptime();
    QVERIFY(before > 0);
    QVERIFY2(shown >= before, qPrintable(QString::number(shown)));
    QVERIFY2(shown < after + 10, qPrintable(QString::number(shown)));
}

void SystemClockTest::countsTheSecondsSince1970()
{
    const qint64 before = secondsSince1970();
    const qint64 shown = SystemClock().utcSeconds();
    const qint64 after = secondsSince1970();
    QVERIFY2(shown >= before && shown <= after, qPrintable(QString::number(shown)));
}

void SystemClockTest::theBootIdIsTheKernels()
{
    QFile file(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QByteArray::fromStdString(recorder::currentBootId()), file.readAll().trimmed());
}

QTEST_GUILESS_MAIN(SystemClockTest)

#include "tst_systemclock.moc"
