// SPDX-License-Identifier: MIT
#include "recorder/bus/Throttle.h"

#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;
using recorder::Throttle;

class ThrottleTest : public QObject
{
    Q_OBJECT

private slots:
    void comesAtOnceForTheFirstRequest();
    void comesAgainWhenTheIntervalIsOver();
};

/// As soon as the event loop gets to it, once for all that were made before.
void ThrottleTest::comesAtOnceForTheFirstRequest()
{
    Throttle throttle(1h);
    const QSignalSpy spy(&throttle, &Throttle::due);
    throttle.request();
    throttle.request();
    QVERIFY(spy.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
    throttle.request();
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
}

void ThrottleTest::comesAgainWhenTheIntervalIsOver()
{
    Throttle throttle(1ms);
    const QSignalSpy spy(&throttle, &Throttle::due);
    throttle.request();
    QTRY_COMPARE(spy.size(), 1);
    throttle.request();
    QTRY_COMPARE(spy.size(), 2);
}

QTEST_GUILESS_MAIN(ThrottleTest)

#include "tst_throttle.moc"
