// SPDX-License-Identifier: MIT
#include "apps/refdialer/Failure.h"
#include "apps/refdialer/ServicePlugin.h"
#include "refhost/libcore/PluginContainer.h"

#include <QTest>

using refdialer::ServicePlugin;

class TestServicePlugin : public QObject
{
    Q_OBJECT

private slots:
    void isFoundByItsClassIdentifier();
    void answersTheIdentifierOfItsInterface();
    void isGoneWithItsOwner();
    void saysWhyItCannotBeLoaded_data();
    void saysWhyItCannotBeLoaded();
};

namespace
{

const char *const classId = "92804312-432E-401F-96BB-1C20D852815D";
constexpr int askedType = 16401;

} // namespace

void TestServicePlugin::isFoundByItsClassIdentifier()
{
    const ServicePlugin service(SERVICE_FILE);
    QCOMPARE(service.classId(), QString(classId));
    refhost::PluginContainer container;
    container.add(service.classId(), service.root());
    QVERIFY(service.root());
    QCOMPARE(container.GetPlugin(classId, askedType), service.root());
}

void TestServicePlugin::answersTheIdentifierOfItsInterface()
{
    const ServicePlugin service(SERVICE_FILE);
    QVERIFY(service.root()->qt_metacast("com.quorin.skylarkdialer.plugin.IDialupUIService"));
    QVERIFY(!service.root()->qt_metacast("com.quorin.skylarkdialer.plugin.IUIPlugin"));
}

void TestServicePlugin::isGoneWithItsOwner()
{
    refhost::PluginContainer container;
    {
        const ServicePlugin service(SERVICE_FILE);
        container.add(service.classId(), service.root());
    }
    QCOMPARE(container.GetPlugin(classId, askedType), nullptr);
}

void TestServicePlugin::saysWhyItCannotBeLoaded_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("a missing file") << "/nowhere/libDialupService.so";
    QTest::newRow("a library that is no plug-in") << NO_PLUGIN_FILE;
}

void TestServicePlugin::saysWhyItCannotBeLoaded()
{
    QFETCH(QString, file);
    try {
        const ServicePlugin service(file);
        QFAIL("it was loaded");
    } catch (const refdialer::Failure &failure) {
        QCOMPARE(int(failure.code), 1);
        QVERIFY2(failure.message.contains(file), qPrintable(failure.message));
        QVERIFY2(failure.message.contains("--no-dialup-service"), qPrintable(failure.message));
    }
}

QTEST_MAIN(TestServicePlugin)
#include "tst_serviceplugin.moc"
