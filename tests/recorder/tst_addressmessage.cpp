// SPDX-License-Identifier: MIT
#include "recorder/LinkMessage.h"

#include "KernelMessage.h"

#include <QTest>

#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

using recorder::AddressReport;
using recorder::parseLinkMessage;

namespace
{

KernelMessage addressMessage(std::uint16_t type, int family, unsigned char flags,
                             const QByteArray &address)
{
    KernelMessage message(type);
    ifaddrmsg header = {};
    header.ifa_family = static_cast<unsigned char>(family);
    header.ifa_prefixlen = 24;
    header.ifa_flags = flags;
    header.ifa_index = 7;
    message.putHeader(header);
    message.putAttribute(IFA_ADDRESS, address);
    return message;
}

AddressReport addressIn(const KernelMessage &message)
{
    return std::get<AddressReport>(parseLinkMessage(message.header()).value());
}

const QByteArray ipv4("\x0a\x00\x00\x01", 4);
const QByteArray ipv6("\x20\x01\x0d\xb8\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x01", 16);
const QByteArray ipv6LinkLocal("\xfe\x80\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x01",
                               16);

} // namespace

class AddressMessageTest : public QObject
{
    Q_OBJECT

private slots:
    void readsAnAddress();
    void readsThatAnAddressIsGone();
    void aPeersAddressIsNotTheLinksOwn();
    void anAddressCountsOnceItIsChecked_data();
    void anAddressCountsOnceItIsChecked();
    void tellsLinkLocalAddresses_data();
    void tellsLinkLocalAddresses();
};

void AddressMessageTest::readsAnAddress()
{
    const AddressReport report = addressIn(addressMessage(RTM_NEWADDR, AF_INET, 0, ipv4));
    QCOMPARE(report.linkIndex, 7);
    QVERIFY(report.isThere);
    QVERIFY(!report.isIpv6LinkLocal);
}

void AddressMessageTest::readsThatAnAddressIsGone()
{
    const AddressReport gone = addressIn(addressMessage(RTM_DELADDR, AF_INET, 0, ipv4));
    QVERIFY(!gone.isThere);
    QCOMPARE(gone.address, addressIn(addressMessage(RTM_NEWADDR, AF_INET, 0, ipv4)).address);
    QVERIFY(gone.address != addressIn(addressMessage(RTM_NEWADDR, AF_INET6, 0, ipv6)).address);
}

void AddressMessageTest::aPeersAddressIsNotTheLinksOwn()
{
    KernelMessage message = addressMessage(RTM_NEWADDR, AF_INET6, 0, ipv6);
    message.putAttribute(IFA_LOCAL, ipv6LinkLocal);
    QVERIFY(addressIn(message).isIpv6LinkLocal);
}

void AddressMessageTest::anAddressCountsOnceItIsChecked_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("checked") << int{IFA_F_PERMANENT} << true;
    QTest::newRow("being checked") << int{IFA_F_TENTATIVE} << false;
    QTest::newRow("being checked but in use") << int{IFA_F_TENTATIVE | IFA_F_OPTIMISTIC} << true;
    QTest::newRow("a duplicate") << int{IFA_F_DADFAILED} << false;
}

void AddressMessageTest::anAddressCountsOnceItIsChecked()
{
    QFETCH(int, flags);
    QFETCH(bool, isThere);
    const auto byte = static_cast<unsigned char>(flags);
    QCOMPARE(addressIn(addressMessage(RTM_NEWADDR, AF_INET6, byte, ipv6)).isThere, isThere);
}

void AddressMessageTest::tellsLinkLocalAddresses_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<bool>("isLinkLocal");
    QTest::newRow("fe80::1") << AF_INET6 << ipv6LinkLocal << true;
    QTest::newRow("2001:db8::1") << AF_INET6 << ipv6 << false;
    QTest::newRow("febf::") << AF_INET6 << QByteArray("\xfe\xbf") + QByteArray(14, '\0') << true;
    QTest::newRow("fec0::") << AF_INET6 << QByteArray("\xfe\xc0") + QByteArray(14, '\0') << false;
    QTest::newRow("10.0.0.1") << AF_INET << ipv4 << false;
    QTest::newRow("254.128.0.1") << AF_INET << QByteArray("\xfe\x80\x00\x01", 4) << false;
}

void AddressMessageTest::tellsLinkLocalAddresses()
{
    QFETCH(int, family);
    QFETCH(QByteArray, address);
    QFETCH(bool, isLinkLocal);
    QCOMPARE(addressIn(addressMessage(RTM_NEWADDR, family, 0, address)).isIpv6LinkLocal,
             isLinkLocal);
}

QTEST_GUILESS_MAIN(AddressMessageTest)

#include "tst_addressmessage.moc"
