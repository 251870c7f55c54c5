// SPDX-License-Identifier: MIT
#include "ServiceTest.h"

#include <QDBusArgument>

using modem::Roaming;

namespace
{

QVariantMap secondArgument(const QDBusMessage &message)
{
    return qdbus_cast<QVariantMap>(message.arguments().at(1));
}

/// What is told of the owner of a connection that no modem makes.
QVariantMap nobodys()
{
    return {{"Operator", ""},
            {"OperatorCode", ""},
            {"Sim", ""},
            {"Roaming", false},
            {"Technology", ""}};
}

/// Of what is told, all that is about the owner.
QVariantMap ownerIn(const QVariantMap &values)
{
    QVariantMap owner;
    for (const QString &key : nobodys().keys())
        owner.insert(key, values.value(key));
    return owner;
}

/// What is told of the owner that FakePorts has.
QVariantMap someones(bool isRoaming)
{
    return {{"Operator", "Example Mobile"},
            {"OperatorCode", "00101"},
            {"Sim", "0001"},
            {"Roaming", isRoaming},
            {"Technology", "lte"}};
}

} // namespace

/// What programs on the bus are told of connections.
class TestRecordedConnections : public ServiceTest
{
    Q_OBJECT

private slots:
    void showsTheConnectionsThatLast();
    void tellsThatAConnectionHasBegunAndEnded();
    void tellsThatAConnectionHasAnotherIdentity();
    void tellsWhoseAConnectionIs();
    void tellsThatRoamingBegins();
};

void TestRecordedConnections::showsTheConnectionsThatLast()
{
    publish();
    QVERIFY(m_client->connections().isEmpty());
    connectLink(7, "ppp0", 100, 200);
    move(1100, 5200);
    QTRY_COMPARE(m_client->connections().value(0).value("UploadedBytes").toLongLong(), 1000);
    const QVariantMap values = m_client->connections().first();
    QVariantMap expected = nobodys();
    expected.insert({{"Id", 1LL},
                     {"Profile", "ppp0"},
                     {"Interface", "ppp0"},
                     {"Since", 1700000000LL},
                     {"UploadedBytes", 1000LL},
                     {"DownloadedBytes", 5000LL},
                     {"UploadRate", values.value("UploadRate")},
                     {"DownloadRate", values.value("DownloadRate")}});
    QCOMPARE(values, expected);
    QCOMPARE(values.value("UploadRate").userType(), int(QMetaType::LongLong));
}

void TestRecordedConnections::tellsThatAConnectionHasBegunAndEnded()
{
    publish();
    connectLink(7, "ppp0", 100, 200);
    QTRY_COMPARE(m_client->received("ConnectionBegan").size(), 1);
    const QDBusMessage began = m_client->received("ConnectionBegan").first();
    QCOMPARE(began.arguments().first().toLongLong(), 1);
    QCOMPARE(secondArgument(began).value("Interface").toString(), QString("ppp0"));
    m_clock->pass(60000);
    m_links->tell(goneLink(7, "ppp0", 1100, 5200));
    QTRY_COMPARE(m_client->received("ConnectionEnded").size(), 1);
    const QDBusMessage ended = m_client->received("ConnectionEnded").first();
    QCOMPARE(ended.arguments().first().toLongLong(), 1);
    QVariantMap expected = nobodys();
    expected.insert({{"Profile", "ppp0"},
                     {"Interface", "ppp0"},
                     {"Since", 1700000000LL},
                     {"Until", 1700000060LL},
                     {"ConnectedSeconds", 60LL},
                     {"UploadedBytes", 1000LL},
                     {"DownloadedBytes", 5000LL},
                     {"Ending", "normal"}});
    QCOMPARE(secondArgument(ended), expected);
    QVERIFY(m_client->connections().isEmpty());
}

void TestRecordedConnections::tellsThatAConnectionHasAnotherIdentity()
{
    publish();
    connectLink(7, "ppp0", 100, 200);
    move(1100, 5200);
    QTRY_COMPARE(m_client->connections().value(0).value("UploadedBytes").toLongLong(), 1000);
    QVERIFY(m_client->received("ConnectionChanged").isEmpty());
    m_recorder->setProfileName("internet.example");
    move(2100, 5200);
    QTRY_COMPARE(m_client->received("ConnectionChanged").size(), 1);
    const QDBusMessage changed = m_client->received("ConnectionChanged").first();
    QCOMPARE(changed.arguments().first().toLongLong(), 1);
    QCOMPARE(secondArgument(changed).value("Profile").toString(), QString("internet.example"));
}

/// The whole number of a SIM is on no bus.
void TestRecordedConnections::tellsWhoseAConnectionIs()
{
    publish();
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, subscriberOf(Roaming::Roaming));
    connectLink(3, "wwan0", 0, 0);
    QTRY_COMPARE(m_client->received("ConnectionBegan").size(), 1);
    const QVariantMap began = secondArgument(m_client->received("ConnectionBegan").first());
    QCOMPARE(began.value("Profile").toString(), QString("internet.example"));
    QCOMPARE(ownerIn(began), someones(true));
    QCOMPARE(ownerIn(m_client->connections().value(0)), someones(true));
    m_links->tell(goneLink(3, "wwan0", 1, 2));
    QTRY_COMPARE(m_client->received("ConnectionEnded").size(), 1);
    QCOMPARE(ownerIn(secondArgument(m_client->received("ConnectionEnded").first())),
             someones(true));
}

void TestRecordedConnections::tellsThatRoamingBegins()
{
    publish();
    m_ports->comeAvailable();
    m_ports->tell("wwan0", true, subscriberOf(Roaming::Home));
    connectLink(3, "wwan0", 0, 0);
    QTRY_COMPARE(m_client->received("ConnectionBegan").size(), 1);
    QVERIFY(m_client->received("ConnectionChanged").isEmpty());
    m_ports->tell("wwan0", true, subscriberOf(Roaming::Roaming));
    m_links->requests.clear();
    QTRY_VERIFY(!m_links->requests.empty());
    m_links->tell(runningLink(3, "wwan0", 0, 0));
    QTRY_COMPARE(m_client->received("ConnectionChanged").size(), 1);
    const QDBusMessage changed = m_client->received("ConnectionChanged").first();
    QCOMPARE(ownerIn(secondArgument(changed)), someones(true));
    // It began at home.
    m_links->tell(goneLink(3, "wwan0", 1, 2));
    QTRY_COMPARE(m_client->received("ConnectionEnded").size(), 1);
    QCOMPARE(ownerIn(secondArgument(m_client->received("ConnectionEnded").first())),
             someones(false));
}

QTEST_GUILESS_MAIN(TestRecordedConnections)
#include "tst_recordedconnections.moc"
