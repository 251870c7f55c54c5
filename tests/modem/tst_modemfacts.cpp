// SPDX-License-Identifier: MIT
#include "BusValues.h"
#include "modem/Facts.h"

#include <QTest>

using modem::BearerFacts;
using modem::ModemFacts;
using modem::RegistrationFacts;
using modem::Roaming;
using modem::SimFacts;

namespace
{

QVariant bits(uint value)
{
    return QVariant(value);
}

const QString longText(101, QLatin1Char('x'));

} // namespace

/// What is made of the values that come over the bus.
class TestModemFacts : public QObject
{
    Q_OBJECT

private slots:
    void readsAModem();
    void keepsWhatHasNotChanged();
    void separatesInterfacesFromSerialLines();
    void namesTheNewestTechnology_data();
    void namesTheNewestTechnology();
    void tellsHomeFromRoaming_data();
    void tellsHomeFromRoaming();
    void readsTheOperatorCode_data();
    void readsTheOperatorCode();
    void readsTheNumberOfASim_data();
    void readsTheNumberOfASim();
    void readsABearer();
    void readsAnInterfaceName_data();
    void readsAnInterfaceName();
    void forgetsWhatIsNonsenseNow_data();
    void forgetsWhatIsNonsenseNow();
    void takesNoMoreBearersThanThereCanBe();
};

void TestModemFacts::readsAModem()
{
    ModemFacts facts;
    update(facts, {{"Manufacturer", " Maker "},
                   {"Model", "Model 7"},
                   {"Sim", pathValue("/sim/1")},
                   {"Bearers", pathValues({"/bearer/2", "/bearer/1", "/bearer/2"})},
                   {"AccessTechnologies", bits(1U << 14)}});
    QCOMPARE(facts.manufacturer, "Maker");
    QCOMPARE(facts.model, "Model 7");
    QCOMPARE(facts.simPath, "/sim/1");
    QCOMPARE(facts.bearerPaths, QStringList({"/bearer/2", "/bearer/1"}));
    QCOMPARE(facts.technology, "lte");
    update(facts, {{"Sim", pathValue("/")}});
    QCOMPARE(facts.simPath, QString());
}

void TestModemFacts::keepsWhatHasNotChanged()
{
    RegistrationFacts facts;
    update(facts, {{"RegistrationState", 1U}, {"OperatorName", "Net"}, {"OperatorCode", "00101"}});
    update(facts, {{"RegistrationState", 5U}, {"SomethingNew", 1}});
    QCOMPARE(facts.roaming, Roaming::Roaming);
    QCOMPARE(facts.operatorName, "Net");
    QCOMPARE(facts.operatorCode, "00101");
}

void TestModemFacts::separatesInterfacesFromSerialLines()
{
    ModemFacts facts;
    update(facts, {{"Ports",
                    portValues({{"ttyACM0", 3}, {"wwan0", 2}, {"", 2}, {"enx001122334455", 2}})}});
    QCOMPARE(facts.networkPorts, QStringList({"wwan0", "enx001122334455"}));
    QCOMPARE(facts.otherPorts, QStringList("ttyACM0"));
    update(facts, {{"Ports", portValues({{"usb0", 2}})}});
    QCOMPARE(facts.networkPorts, QStringList("usb0"));
    QCOMPARE(facts.otherPorts, QStringList());
}

void TestModemFacts::namesTheNewestTechnology_data()
{
    QTest::addColumn<uint>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << 0U << "";
    QTest::newRow("any") << 0xFFFFFFFFU << "";
    QTest::newRow("one of tomorrow") << (1U << 25) << "";
    QTest::newRow("a telephone line") << 1U << "pots";
    QTest::newRow("UMTS with both accelerations") << (1U << 5 | 1U << 6 | 1U << 7) << "hsupa";
    QTest::newRow("LTE that carries 5G") << (1U << 14 | 1U << 15) << "5gnr";
    QTest::newRow("narrow band") << (1U << 17) << "lte-nb-iot";
}

void TestModemFacts::namesTheNewestTechnology()
{
    QFETCH(const uint, value);
    ModemFacts facts;
    update(facts, {{"AccessTechnologies", bits(value)}});
    QTEST(facts.technology, "name");
}

void TestModemFacts::tellsHomeFromRoaming_data()
{
    QTest::addColumn<uint>("state");
    QTest::addColumn<int>("roaming");
    for (const uint home : {1U, 6U, 9U})
        QTest::addRow("home, %u", home) << home << int(Roaming::Home);
    for (const uint roaming : {5U, 7U, 10U})
        QTest::addRow("roaming, %u", roaming) << roaming << int(Roaming::Roaming);
    for (const uint neither : {0U, 2U, 3U, 4U, 8U, 11U, 99U})
        QTest::addRow("neither, %u", neither) << neither << int(Roaming::Unknown);
}

void TestModemFacts::tellsHomeFromRoaming()
{
    QFETCH(const uint, state);
    RegistrationFacts facts;
    update(facts, {{"RegistrationState", state}});
    QTEST(int(facts.roaming), "roaming");
}

void TestModemFacts::readsTheOperatorCode_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("code");
    QTest::newRow("five digits") << "26201"
                                 << "26201";
    QTest::newRow("six digits") << "310260"
                                << "310260";
    QTest::newRow("four") << "2620"
                          << "";
    QTest::newRow("seven") << "3102601"
                           << "";
    QTest::newRow("letters") << "2620A"
                             << "";
    QTest::newRow("digits of another script")
        << QString::fromUtf8("\u0662\u0666\u0662\u0660\u0661") << "";
}

void TestModemFacts::readsTheOperatorCode()
{
    QFETCH(const QString, text);
    RegistrationFacts facts;
    update(facts, {{"OperatorCode", text}});
    QTEST(facts.operatorCode, "code");
}

void TestModemFacts::readsTheNumberOfASim_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("number");
    QTest::newRow("nineteen digits") << "8949001234567890128"
                                     << "8949001234567890128";
    QTest::newRow("filled up") << "8949001234567890128F"
                               << "8949001234567890128";
    QTest::newRow("with a letter") << "898600A0123456789012"
                                   << "898600A0123456789012";
    QTest::newRow("a sentence") << "no SIM"
                                << "";
    QTest::newRow("too long") << QString(25, '8') << "";
    QTest::newRow("nothing but filling") << "FFFF"
                                         << "";
}

void TestModemFacts::readsTheNumberOfASim()
{
    QFETCH(const QString, text);
    SimFacts facts;
    update(facts, {{"SimIdentifier", text}});
    QTEST(facts.number, "number");
}

void TestModemFacts::readsABearer()
{
    BearerFacts facts;
    update(facts, {{"Connected", true},
                   {"Interface", "wwan0"},
                   {"Properties", QVariantMap({{"apn", "internet.example"}, {"ip-type", 1U}})}});
    QVERIFY(facts.isConnected);
    QCOMPARE(facts.interfaceName, "wwan0");
    QCOMPARE(facts.apn, "internet.example");
    update(facts, {{"Connected", false}, {"Interface", ""}});
    QVERIFY(!facts.isConnected);
    QCOMPARE(facts.interfaceName, QString());
    QCOMPARE(facts.apn, "internet.example");
}

void TestModemFacts::readsAnInterfaceName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isValid");
    QTest::newRow("fifteen bytes") << "enx001122334455" << true;
    QTest::newRow("sixteen bytes") << "enx0011223344556" << false;
    QTest::newRow("sixteen bytes of fewer characters")
        << QString::fromUtf8("wwan00000000\u00e4\u00f6") << false;
    QTest::newRow("a path") << "../wwan0" << false;
    QTest::newRow("this folder") << "." << false;
    QTest::newRow("the folder above") << ".." << false;
    QTest::newRow("three dots") << "..." << true;
    QTest::newRow("a blank") << "wwan 0" << false;
    QTest::newRow("a VLAN") << "wwan0.2" << true;
}

void TestModemFacts::readsAnInterfaceName()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isValid);
    BearerFacts facts;
    update(facts, {{"Interface", text}});
    QCOMPARE(facts.interfaceName, isValid ? text : QString());
}

void TestModemFacts::forgetsWhatIsNonsenseNow_data()
{
    QTest::addColumn<QVariant>("nonsense");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("a real number") << QVariant(1.5);
    QTest::newRow("a signed number") << QVariant(1);
    QTest::newRow("bytes") << QVariant(QByteArray("00101"));
    QTest::newRow("a list") << QVariant(QStringList({"00101", "wwan0"}));
    QTest::newRow("an object") << pathValue("/no/such");
    QTest::newRow("a map of numbers") << QVariant(QVariantMap({{"apn", 5}}));
    QTest::newRow("a long text") << QVariant(longText);
    QTest::newRow("a control character") << QVariant("a\nb");
    QTest::newRow("a zero") << QVariant(QString(QChar(0)));
}

void TestModemFacts::forgetsWhatIsNonsenseNow()
{
    QFETCH(const QVariant, nonsense);
    ModemFacts modem;
    update(modem, {{"Manufacturer", "Maker"},
                   {"Bearers", pathValues({"/bearer/1"})},
                   {"Ports", portValues({{"wwan0", 2}, {"tty0", 3}})},
                   {"AccessTechnologies", 1U}});
    update(modem, {{"Manufacturer", nonsense},
                   {"Bearers", nonsense},
                   {"Ports", nonsense},
                   {"AccessTechnologies", nonsense}});
    QCOMPARE(modem.manufacturer + modem.technology, QString());
    QCOMPARE(modem.bearerPaths + modem.networkPorts + modem.otherPorts, QStringList());

    RegistrationFacts registration;
    update(registration, {{"RegistrationState", 1U}, {"OperatorCode", "00101"}});
    update(registration, {{"RegistrationState", nonsense}, {"OperatorCode", nonsense}});
    QCOMPARE(registration.roaming, Roaming::Unknown);
    QCOMPARE(registration.operatorCode, QString());

    BearerFacts bearer{true, "wwan0", "internet.example"};
    update(bearer, {{"Connected", nonsense}, {"Interface", nonsense}, {"Properties", nonsense}});
    QVERIFY(!bearer.isConnected);
    QCOMPARE(bearer.apn, QString());
    QCOMPARE(bearer.interfaceName, QString());

    SimFacts sim{"8949001234567890128"};
    update(sim, {{"SimIdentifier", nonsense}});
    QCOMPARE(sim.number, QString());
}

void TestModemFacts::takesNoMoreBearersThanThereCanBe()
{
    QStringList many;
    for (int i = 0; i < 100000; ++i)
        many.append(QStringLiteral("/bearer/%1").arg(i));
    ModemFacts facts;
    update(facts, {{"Bearers", pathValues(many)}});
    QCOMPARE(facts.bearerPaths, many.mid(0, 64));
}

QTEST_GUILESS_MAIN(TestModemFacts)
#include "tst_modemfacts.moc"
