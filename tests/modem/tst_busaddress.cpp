// SPDX-License-Identifier: MIT
#include "modem/BusAddress.h"

#include <QTest>

class TestBusAddress : public QObject
{
    Q_OBJECT

private slots:
    void readsTheAddressOfABus_data();
    void readsTheAddressOfABus();
    void findsTheSystemBus();
};

void TestBusAddress::readsTheAddressOfABus_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isLocal");
    QTest::addColumn<QString>("socket");
    QTest::newRow("a file") << "unix:path=/run/bus,guid=12" << true << "/run/bus";
    QTest::newRow("behind the guid") << "unix:guid=12,path=/run/bus" << true << "/run/bus";
    QTest::newRow("escaped") << "unix:path=/run/a%20bus" << true << "/run/a bus";
    QTest::newRow("two") << "unix:abstract=bus;unix:path=/run/bus" << true << "/run/bus";
    QTest::newRow("a name") << "unix:abstract=/run/bus" << true << "";
    QTest::newRow("another computer") << "tcp:host=example.org,port=1" << false << "";
    QTest::newRow("one of both") << "unix:abstract=bus;tcp:host=example.org" << false << "";
    QTest::newRow("nothing") << "" << false << "";
}

void TestBusAddress::readsTheAddressOfABus()
{
    QFETCH(const QString, address);
    QTEST(modem::isLocalBusAddress(address), "isLocal");
    QTEST(modem::socketOfBusAddress(address), "socket");
}

void TestBusAddress::findsTheSystemBus()
{
    const char *const name = "DBUS_SYSTEM_BUS_ADDRESS";
    const QByteArray former = qgetenv(name);
    qputenv(name, "unix:path=/run/bus");
    const QString named = modem::systemBusAddress();
    qputenv(name, "");
    const QString unnamed = modem::systemBusAddress();
    former.isNull() ? qunsetenv(name) : qputenv(name, former);
    QCOMPARE(named, QString("unix:path=/run/bus"));
    QCOMPARE(unnamed, QString("unix:path=/var/run/dbus/system_bus_socket"));
}

QTEST_GUILESS_MAIN(TestBusAddress)
#include "tst_busaddress.moc"
