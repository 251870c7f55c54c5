// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "modem/BusConnection.h"
#include "recorder/bus/BusListeners.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using modem::BusConnection;
using recorder::BusListeners;

class BusListenersTest : public QObject
{
    Q_OBJECT

private slots:
    void forgetsWhoHadLeftBeforeItWasAdded();
};

/// The bus tells of nobody who has left before it was asked to.
void BusListenersTest::forgetsWhoHadLeftBeforeItWasAdded()
{
    const QTemporaryDir folder;
    PrivateBus bus(folder.path());
    QVERIFY(bus.start());
    BusConnection connection(bus.address(), {});
    QSignalSpy connected(&connection, &BusConnection::connected);
    QVERIFY(connection.start());
    QVERIFY(connected.wait());
    int changes = 0;
    BusListeners listeners(connection, [&changes] { ++changes; });
    listeners.add(":1.4711");
    QVERIFY(listeners.areThere());
    QTRY_VERIFY(!listeners.areThere());
    QCOMPARE(changes, 2);
    // One that is there stays, longer than such an answer takes.
    listeners.add(connection.uniqueName());
    listeners.add(":1.4712");
    bool isAnswered = false;
    connection.ask(modem::busCall("GetId"), "s", [&](const QVariantList &) { isAnswered = true; });
    QTRY_VERIFY(isAnswered);
    QVERIFY(listeners.areThere());
    QCOMPARE(changes, 3);
}

QTEST_GUILESS_MAIN(BusListenersTest)

#include "tst_buslisteners.moc"
