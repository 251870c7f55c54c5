// SPDX-License-Identifier: MIT
#include "BusValues.h"
#include "modem/ModemTable.h"
#include "modem/Names.h"

#include <QTest>

using modem::DataPort;
using modem::ModemTable;
using modem::Roaming;
using modem::Subscriber;
namespace names = modem::names;

namespace
{

const QString modemPath = QStringLiteral("/org/freedesktop/ModemManager1/Modem/0");
const QString simPath = QStringLiteral("/org/freedesktop/ModemManager1/SIM/0");
const QString bearerPath = QStringLiteral("/org/freedesktop/ModemManager1/Bearer/0");
const QString otherBearerPath = QStringLiteral("/org/freedesktop/ModemManager1/Bearer/1");
const QString iccid = QStringLiteral("8949001234567890128");

ModemTable::Interfaces modemWith(const QStringList &bearers, const QString &networkPort = "wwan0")
{
    return {{names::modemInterface,
             {{"Manufacturer", "Maker"},
              {"Model", "Model 7"},
              {"Sim", pathValue(simPath)},
              {"Bearers", pathValues(bearers)},
              {"Ports", portValues({{"ttyACM0", 3}, {networkPort, 2}})},
              {"AccessTechnologies", 1U << 14}}},
            {names::registrationInterface,
             {{"RegistrationState", 1U}, {"OperatorCode", "00101"}, {"OperatorName", "Test Net"}}}};
}

QVariantMap bearer(const QString &interfaceName, const QString &apn = "internet.example")
{
    return {{"Interface", interfaceName},
            {"Connected", !interfaceName.isEmpty()},
            {"Properties", QVariantMap({{"apn", apn}})}};
}

Subscriber atHome(const QString &apn)
{
    return {apn, "Test Net", "00101", iccid, "lte", "Maker Model 7", Roaming::Home};
}

QStringList asked(const ModemTable::Questions &questions)
{
    QStringList paths;
    for (const ModemTable::Question &question : questions)
        paths.append(question.path);
    return paths;
}

} // namespace

/// What follows from what the daemon tells, in which order ever.
class TestModemTable : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_table = {}; }

    void isIncompleteUntilAllHasBeenAnswered();
    void knowsWhoUsesThePort();
    void takesWhatChangesBeforeTheAnswerFromTheAnswer();
    void followsABearerFromBeginToEnd();
    void prefersThePortThatIsConnected();
    void recordsWhatABearerNamesBesidesThePorts();
    void leavesSerialLinesOut();
    void takesTheApnOfTheRegistrationForABearerWithout();
    void followsRoaming();
    void keepsTheLastNetworkWhileItLooksForOne();
    void asksForTheSimThatWasPutIn();
    void forgetsAModemThatIsGone();
    void forgetsTheRegistrationThatIsGone();
    void forgetsModemsThatAreNotListed();
    void ignoresAnswersOfObjectsThatAreGone();
    void livesWithObjectsThatPointToOneAnother();
    void believesInNoMoreModemsThanThereCanBe();

private:
    void answerSim() { m_table.answer({simPath, names::simInterface}, {{"SimIdentifier", iccid}}); }
    void answerBearer(const QVariantMap &properties, const QString &path = bearerPath)
    {
        m_table.answer({path, names::bearerInterface}, properties);
    }
    void addConnected()
    {
        m_table.setModems({{QDBusObjectPath(modemPath), modemWith({bearerPath})}});
        answerSim();
        answerBearer(bearer("wwan0"));
    }
    ModemTable::Questions change(const QVariantMap &properties)
    {
        return m_table.changeProperties(modemPath, names::modemInterface, properties);
    }
    void changeRegistration(const QVariantMap &properties)
    {
        m_table.changeProperties(modemPath, names::registrationInterface, properties);
    }
    void changeBearer(const QVariantMap &properties, const QString &path = bearerPath)
    {
        m_table.changeProperties(path, names::bearerInterface, properties);
    }
    DataPort port(const QString &name = "wwan0") const
    {
        const auto ports = m_table.ports();
        const auto found = ports.find(name);
        return found == ports.end() ? DataPort() : found->second;
    }

    ModemTable m_table;
};

void TestModemTable::isIncompleteUntilAllHasBeenAnswered()
{
    QVERIFY(!m_table.isComplete());
    const auto questions =
        m_table.setModems({{QDBusObjectPath(modemPath), modemWith({bearerPath, otherBearerPath})}});
    QCOMPARE(asked(questions), QStringList({simPath, bearerPath, otherBearerPath}));
    answerSim();
    answerBearer(bearer("wwan0"));
    QVERIFY(!m_table.isComplete());
    QVERIFY(m_table.ports().empty());
    answerBearer({}, otherBearerPath);
    QVERIFY(m_table.isComplete());
    QCOMPARE(m_table.ports().size(), size_t(1));
    change({{"Bearers", pathValues({bearerPath, "/another"})}});
    QVERIFY(m_table.isComplete());
    QCOMPARE(m_table.ports().size(), size_t(1));
}

void TestModemTable::knowsWhoUsesThePort()
{
    addConnected();
    const DataPort expected{"wwan0", true, atHome("internet.example")};
    QVERIFY(port() == expected);
}

void TestModemTable::takesWhatChangesBeforeTheAnswerFromTheAnswer()
{
    m_table.setModems({{QDBusObjectPath(modemPath), modemWith({bearerPath})}});
    changeBearer({{"Interface", "usb7"}, {"Connected", true}});
    m_table.changeProperties(simPath, names::simInterface, {{"SimIdentifier", "1"}});
    QVERIFY(!m_table.isComplete());
    answerSim();
    answerBearer(bearer("wwan0"));
    QCOMPARE(m_table.ports().size(), size_t(1));
    QCOMPARE(port().subscriber.sim, iccid);
}

void TestModemTable::followsABearerFromBeginToEnd()
{
    m_table.setModems({{QDBusObjectPath(modemPath), modemWith({})}});
    answerSim();
    QVERIFY(!port().isConnected);
    QVERIFY(port().subscriber == atHome({}));
    QCOMPARE(asked(change({{"Bearers", pathValues({bearerPath})}})), QStringList(bearerPath));
    answerBearer(bearer({}));
    changeBearer({{"Interface", "wwan0"}});
    QVERIFY(!port().isConnected);
    changeBearer({{"Connected", true}});
    QVERIFY(port().isConnected);
    QCOMPARE(port().subscriber.apn, "internet.example");
    changeBearer({{"Interface", ""}});
    QVERIFY(!port().isConnected);
    changeBearer({{"Connected", false}});
    changeBearer({{"Connected", true}, {"Interface", "wwan0"}});
    QVERIFY(port().isConnected);
    QCOMPARE(asked(change({{"Bearers", pathValues({})}})), QStringList());
    QVERIFY(!port().isConnected);
}

void TestModemTable::prefersThePortThatIsConnected()
{
    m_table.setModems({{QDBusObjectPath(modemPath), modemWith({})},
                       {QDBusObjectPath("/second"), modemWith({bearerPath})}});
    answerSim();
    answerBearer(bearer("wwan0"));
    QVERIFY(port().isConnected);
}

void TestModemTable::recordsWhatABearerNamesBesidesThePorts()
{
    m_table.setModems({{QDBusObjectPath(modemPath), modemWith({bearerPath, otherBearerPath})}});
    answerSim();
    answerBearer(bearer("qmapmux0.0"));
    answerBearer(bearer("qmapmux0.1", "mms.example"), otherBearerPath);
    QCOMPARE(port("qmapmux0.0").subscriber.apn, "internet.example");
    QCOMPARE(port("qmapmux0.1").subscriber.apn, "mms.example");
    QVERIFY(!port("wwan0").isConnected);
    changeBearer({{"Interface", ""}, {"Connected", false}}, otherBearerPath);
    QCOMPARE(m_table.ports().count("qmapmux0.1"), size_t(0));
}

void TestModemTable::leavesSerialLinesOut()
{
    m_table.setModems({{QDBusObjectPath(modemPath), modemWith({bearerPath})}});
    answerSim();
    answerBearer(bearer("ttyACM0"));
    QCOMPARE(m_table.ports().count("ttyACM0"), size_t(0));
    QVERIFY(!port().isConnected);
}

void TestModemTable::takesTheApnOfTheRegistrationForABearerWithout()
{
    addConnected();
    changeRegistration({{"InitialEpsBearerSettings", QVariantMap({{"apn", "initial.example"}})}});
    QCOMPARE(port().subscriber.apn, "internet.example");
    changeBearer({{"Properties", QVariantMap()}});
    QCOMPARE(port().subscriber.apn, "initial.example");
}

void TestModemTable::followsRoaming()
{
    addConnected();
    changeRegistration({{"OperatorCode", "99901"}});
    changeRegistration({{"RegistrationState", 5U}});
    changeRegistration({{"OperatorName", "Roam Net"}});
    const Subscriber abroad{"internet.example", "Roam Net",      "99901", iccid, "lte",
                            "Maker Model 7",    Roaming::Roaming};
    QVERIFY(port().subscriber == abroad);
    QVERIFY(port().isConnected);
    changeRegistration(
        {{"OperatorCode", "00101"}, {"RegistrationState", 1U}, {"OperatorName", "Test Net"}});
    QVERIFY(port().subscriber == atHome("internet.example"));
}

void TestModemTable::keepsTheLastNetworkWhileItLooksForOne()
{
    addConnected();
    changeRegistration({{"RegistrationState", 2U}});
    changeRegistration({{"OperatorName", ""}, {"OperatorCode", ""}});
    change({{"AccessTechnologies", 0U}});
    QVERIFY(port().subscriber == atHome("internet.example"));
    changeBearer({{"Connected", false}, {"Interface", ""}});
    QCOMPARE(port().subscriber.roaming, Roaming::Unknown);
    QCOMPARE(port().subscriber.operatorName + port().subscriber.technology, QString());
}

void TestModemTable::asksForTheSimThatWasPutIn()
{
    addConnected();
    QCOMPARE(asked(change({{"Sim", pathValue("/sim/1")}})), QStringList("/sim/1"));
    QCOMPARE(port().subscriber.sim, QString());
    answerSim();
    QCOMPARE(port().subscriber.sim, QString());
    m_table.answer({"/sim/1", names::simInterface}, {{"SimIdentifier", "8900"}});
    QCOMPARE(port().subscriber.sim, "8900");
    m_table.changeProperties("/sim/1", names::simInterface, {{"SimIdentifier", "8901"}});
    QCOMPARE(port().subscriber.sim, "8901");
    QCOMPARE(asked(change({{"Sim", pathValue("/")}})), QStringList());
    QCOMPARE(port().subscriber.sim, QString());
}

void TestModemTable::forgetsAModemThatIsGone()
{
    addConnected();
    m_table.removeInterfaces(modemPath, {"org.freedesktop.ModemManager1.Modem.Voice"});
    QVERIFY(port().isConnected);
    m_table.removeInterfaces(modemPath, {names::modemInterface});
    QVERIFY(m_table.ports().empty());
    QVERIFY(m_table.isComplete());
}

void TestModemTable::forgetsTheRegistrationThatIsGone()
{
    addConnected();
    changeBearer({{"Connected", false}});
    m_table.removeInterfaces(modemPath, {names::registrationInterface});
    QCOMPARE(port().subscriber.operatorCode, QString());
    m_table.addInterfaces(modemPath, {{names::registrationInterface, {{"OperatorCode", "99901"}}}});
    QCOMPARE(port().subscriber.operatorCode, "99901");
}

void TestModemTable::forgetsModemsThatAreNotListed()
{
    addConnected();
    m_table.setModems({{QDBusObjectPath("/second"), modemWith({}, "usb0")}});
    answerSim();
    QCOMPARE(m_table.ports().size(), size_t(1));
    QCOMPARE(m_table.ports().count("usb0"), size_t(1));
}

void TestModemTable::ignoresAnswersOfObjectsThatAreGone()
{
    m_table.setModems({{QDBusObjectPath(modemPath), modemWith({bearerPath})}});
    answerSim();
    change({{"Bearers", pathValues({})}});
    answerBearer(bearer("usb7"));
    QCOMPARE(m_table.ports().count("usb7"), size_t(0));
    m_table.removeInterfaces(modemPath, {names::modemInterface});
    answerSim();
    changeBearer(bearer("usb7"));
    QVERIFY(m_table.ports().empty());
}

void TestModemTable::livesWithObjectsThatPointToOneAnother()
{
    auto modem = modemWith({modemPath, simPath});
    modem[names::modemInterface]["Sim"] = pathValue(modemPath);
    m_table.setModems({{QDBusObjectPath(modemPath), modem}});
    for (const QString &path : {modemPath, simPath}) {
        answerBearer(bearer("wwan0"), path);
        m_table.answer({path, names::simInterface}, {{"SimIdentifier", iccid}});
    }
    QVERIFY(m_table.isComplete());
    QVERIFY(port().isConnected);
}

void TestModemTable::believesInNoMoreModemsThanThereCanBe()
{
    for (int i = 0; i < 1000; ++i) {
        ModemTable::Interfaces modem{
            {names::modemInterface, {{"Ports", portValues({{"wwan" + QString::number(i), 2}})}}}};
        m_table.addInterfaces("/modem/" + QString::number(i), modem);
    }
    QCOMPARE(m_table.ports().size(), size_t(64));
}

QTEST_GUILESS_MAIN(TestModemTable)
#include "tst_modemtable.moc"
