// SPDX-License-Identifier: MIT
#include "Startup.h"
#include "refhost/libcore/Host.h"
#include "refhost/libcore/PluginContainer.h"

#include <QTest>

class TestPluginContainer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { refhost::setPluginContainer(nullptr); }

    void isFoundThroughStartup();
    void findsAPluginByItsClassId_data();
    void findsAPluginByItsClassId();
    void asksForTheTypeCodeOnlyIfOneWasGiven();
    void replacesAPluginOfTheSameClassId();
    void forgetsAPluginThatIsGone();
    void answersInTheTenthSlot();

private:
    refhost::PluginContainer m_container;
};

namespace
{

const QString classId = QStringLiteral("92804312-432E-401F-96BB-1C20D852815D");

QString nameOf(const QObject *object)
{
    return object ? object->objectName() : QString();
}

} // namespace

void TestPluginContainer::init()
{
    m_container = {};
}

void TestPluginContainer::isFoundThroughStartup()
{
    QCOMPARE(Startup::GetPluginContainer(), nullptr);
    refhost::setPluginContainer(&m_container);
    QCOMPARE(Startup::GetPluginContainer(), static_cast<IPluginContainer *>(&m_container));
}

void TestPluginContainer::findsAPluginByItsClassId_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("found");
    QTest::newRow("its own") << classId << "first";
    QTest::newRow("another's") << "27A315A2-D587-498a-9FC5-7CF2738679DF"
                               << "second";
    QTest::newRow("unknown") << "00000000-0000-0000-0000-000000000000"
                             << "";
    QTest::newRow("its own in other case") << classId.toLower() << "";
    QTest::newRow("its own in braces") << '{' + classId + '}' << "";
    QTest::newRow("none") << ""
                          << "";
}

void TestPluginContainer::findsAPluginByItsClassId()
{
    QFETCH(QString, asked);
    QFETCH(QString, found);
    QObject first;
    first.setObjectName("first");
    QObject second;
    second.setObjectName("second");
    m_container.add(classId, &first);
    m_container.add("27A315A2-D587-498a-9FC5-7CF2738679DF", &second);
    QCOMPARE(nameOf(m_container.GetPlugin(asked, 16401)), found);
    QCOMPARE(nameOf(m_container.GetPlugin(asked, 0)), found);
}

void TestPluginContainer::asksForTheTypeCodeOnlyIfOneWasGiven()
{
    QObject plugin;
    m_container.add(classId, &plugin, 16401);
    QCOMPARE(m_container.GetPlugin(classId, 16401), &plugin);
    QCOMPARE(m_container.GetPlugin(classId, 16402), nullptr);
}

void TestPluginContainer::replacesAPluginOfTheSameClassId()
{
    QObject earlier;
    QObject later;
    m_container.add(classId, &earlier);
    m_container.add(classId, &later);
    QCOMPARE(m_container.GetPlugin(classId, 16401), &later);
}

void TestPluginContainer::forgetsAPluginThatIsGone()
{
    {
        QObject plugin;
        m_container.add(classId, &plugin);
    }
    QCOMPARE(m_container.GetPlugin(classId, 16401), nullptr);
}

// A plug-in built elsewhere knows no names, only the place in the table.
void TestPluginContainer::answersInTheTenthSlot()
{
    using GetPlugin = QObject *(*)(IPluginContainer *, const QString &, int);
    constexpr int tenth = 9;
    QObject plugin;
    m_container.add(classId, &plugin);
    refhost::setPluginContainer(&m_container);
    IPluginContainer *const container = Startup::GetPluginContainer();
    void **const virtualTable = *reinterpret_cast<void ***>(container);
    const auto getPlugin = reinterpret_cast<GetPlugin>(virtualTable[tenth]);
    QCOMPARE(getPlugin(container, classId, 16401), &plugin);
    QCOMPARE(getPlugin(container, "unknown", 16401), nullptr);
}

QTEST_MAIN(TestPluginContainer)
#include "tst_plugincontainer.moc"
