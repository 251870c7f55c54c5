// SPDX-License-Identifier: MIT
#include "NetworkTest.h"
#include "NotificationDaemon.h"
#include "PlanSamples.h"
#include "PrivateBus.h"
#include "RecorderTest.h"
#include "RecordingProgram.h"

#include <QDir>
#include <QFile>

#include <csignal>

/// The program that records, with a real interface, as it warns of data plans on a session
/// bus of this test's own.
class ConnrecordWarningsTest : public QObject
{
    Q_OBJECT

public:
    explicit ConnrecordWarningsTest(const QString &obstacle)
        : m_obstacle(obstacle)
    {
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void warnsOnceOfEachPercentage();
    void warnsOfTheHighestPercentageAlone();
    void warnsOfEachPlan();
    void warnsOnceThoughItIsKilled();
    void warnsOnceThoughAnotherTakesOver();
    void warnsWhenTheServiceComes();
    void warnsWhenTheBusComes();
    void hasTheBusStartTheService();
    void warnsOnlyWhileThatIsWanted();

private:
    using Program = std::unique_ptr<RecordingProgram>;
    Program start() const;
    /// Warns at these percentages of 100 datagrams.
    void addPlan(const char *name, const std::vector<int> &percentages) const;
    /// As refdialer's settings have it.
    void wantWarnings(bool areWanted) const;
    bool use(int datagrams) const { return m_line->upload(datagrams, datagramSize); }
    QStringList titles() const { return m_desktop->titles(); }

    static constexpr int datagramSize = 1000;
    const QString m_obstacle;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<VethPair> m_line;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<NotificationDaemon> m_desktop;
};

namespace
{

QString title(const char *plan, int percent)
{
    return QStringLiteral("%1 % of the data plan \"%2\" used").arg(percent).arg(plan);
}

} // namespace

void ConnrecordWarningsTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void ConnrecordWarningsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_line.emplace();
    QVERIFY(m_line->isMade());
    QVERIFY(m_line->goUp());
    m_bus = std::make_unique<PrivateBus>(m_folder->path());
    QVERIFY(m_bus->start());
    m_desktop = std::make_unique<NotificationDaemon>(m_bus->address());
    QVERIFY(m_desktop->takeName());
}

void ConnrecordWarningsTest::cleanup()
{
    m_desktop.reset();
    m_bus.reset();
    m_line.reset();
    m_folder.reset();
}

ConnrecordWarningsTest::Program ConnrecordWarningsTest::start() const
{
    return std::make_unique<RecordingProgram>(
        QStringList{"--store", m_path, "record"},
        RecordingProgram::Environment{{"DBUS_SESSION_BUS_ADDRESS", m_bus->address()},
                                      {"XDG_CONFIG_HOME", m_folder->path()}});
}

void ConnrecordWarningsTest::wantWarnings(bool areWanted) const
{
    QVERIFY(QDir(m_folder->path()).mkpath("refdialer"));
    QFile settings(m_folder->filePath("refdialer/refdialer.conf"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write(areWanted ? "[refdialer]\nplanWarnings=true\n"
                             : "[refdialer]\nplanWarnings=false\n");
}

void ConnrecordWarningsTest::addPlan(const char *name, const std::vector<int> &percentages) const
{
    history::DataPlan plan = planOf(history::MonthlyFrom{}, VethPair::bytesOf(100, datagramSize));
    plan.name = name;
    plan.warnAtPercent = percentages;
    auto store = history::Store::openOrCreate(m_path.toStdString());
    QVERIFY(store && store.value().setPlan(plan));
}

void ConnrecordWarningsTest::warnsOnceOfEachPercentage()
{
    addPlan("home", {50, 100});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(49));
    QVERIFY(use(1));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
    QVERIFY(use(10));
    QVERIFY(use(40));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 50), title("home", 100)}),
                              checkpointTimeout);
    const auto shown = m_desktop->shown();
    QCOMPARE(shown[0].program, QString("connrecord"));
    QVERIFY(shown[0].desktopEntry.endsWith(".refdialer"));
    QVERIFY2(shown[0].text.contains(" left until "), qPrintable(shown[0].text));
    QVERIFY2(shown[1].text.contains("; the period lasts until "), qPrintable(shown[1].text));
    QCOMPARE(shown[0].urgency, 1);
    QCOMPARE(shown[1].urgency, 2);
    QCOMPARE(program->said().count(title("home", 50).toUtf8()), 1);
    QCOMPARE(program->said().count(title("home", 100).toUtf8()), 1);
}

void ConnrecordWarningsTest::warnsOfTheHighestPercentageAlone()
{
    addPlan("home", {50, 80, 100});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(85));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 80)), checkpointTimeout);
    QVERIFY(use(15));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 80), title("home", 100)}),
                              checkpointTimeout);
}

void ConnrecordWarningsTest::warnsOfEachPlan()
{
    addPlan("home", {50});
    addPlan("travel", {10});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(60));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 50), title("travel", 10)}),
                              checkpointTimeout);
}

void ConnrecordWarningsTest::warnsOnceThoughItIsKilled()
{
    addPlan("home", {50, 70, 100});
    Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QStringList expected;
    int used = 0;
    for (const int percent : {50, 70, 100}) {
        QVERIFY(use(percent - used));
        used = percent;
        expected.append(title("home", percent));
        QTRY_COMPARE_WITH_TIMEOUT(titles(), expected, checkpointTimeout);
        QCOMPARE(program->exitCodeAfter(SIGKILL), -1);
        program = start();
        QTRY_VERIFY(program->said().contains("Connected"));
    }
}

void ConnrecordWarningsTest::warnsOnceThoughAnotherTakesOver()
{
    addPlan("home", {50, 100});
    const Program first = start();
    QTRY_VERIFY(first->said().contains("Connected"));
    const Program second = start();
    QTRY_VERIFY(second->said().contains("recorded by another"));
    QVERIFY(use(50));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
    QCOMPARE(first->exitCodeAfter(SIGKILL), -1);
    QTRY_VERIFY(second->said().contains("Connected"));
    QVERIFY(use(50));
    QTRY_COMPARE_WITH_TIMEOUT(titles(), (QStringList{title("home", 50), title("home", 100)}),
                              checkpointTimeout);
    QVERIFY(!second->said().contains(title("home", 50).toUtf8()));
}

/// A restart while there is no service must not lose the warning.
void ConnrecordWarningsTest::warnsWhenTheServiceComes()
{
    QVERIFY(m_desktop->giveNameAway());
    addPlan("home", {50});
    Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(50));
    QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(title("home", 50).toUtf8()),
                             checkpointTimeout);
    QCOMPARE(program->exitCodeAfter(SIGTERM), 0);
    program = start();
    QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(title("home", 50).toUtf8()),
                             checkpointTimeout);
    QVERIFY(m_desktop->takeName());
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
    QCOMPARE(program->said().count(title("home", 50).toUtf8()), 1);
}

void ConnrecordWarningsTest::warnsWhenTheBusComes()
{
    m_desktop.reset();
    m_bus->kill();
    QVERIFY(QFile::remove(m_bus->socket()));
    addPlan("home", {50});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(50));
    QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(title("home", 50).toUtf8()),
                             checkpointTimeout);
    QVERIFY(m_bus->start());
    m_desktop = std::make_unique<NotificationDaemon>(m_bus->address());
    QVERIFY(m_desktop->takeName());
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
}

void ConnrecordWarningsTest::hasTheBusStartTheService()
{
    QVERIFY(m_desktop->giveNameAway());
    const QString sign = m_folder->filePath("started");
    QFile description(m_folder->filePath("notifications.service"));
    QVERIFY(description.open(QIODevice::WriteOnly));
    description.write("[D-BUS Service]\nName=org.freedesktop.Notifications\nExec=/usr/bin/touch " +
                      sign.toUtf8() + '\n');
    description.close();
    addPlan("home", {50});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(!QFile::exists(sign));
    QVERIFY(use(50));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(sign), checkpointTimeout);
    // What it has started is no service.
    QVERIFY(m_desktop->takeName());
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 50)), checkpointTimeout);
}

void ConnrecordWarningsTest::warnsOnlyWhileThatIsWanted()
{
    wantWarnings(false);
    addPlan("home", {50, 100});
    const Program program = start();
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(use(50));
    QTRY_VERIFY_WITH_TIMEOUT(program->said().contains(title("home", 50).toUtf8()),
                             checkpointTimeout);
    wantWarnings(true);
    QVERIFY(use(50));
    // The first one has not been shown before.
    QTRY_COMPARE_WITH_TIMEOUT(titles(), QStringList(title("home", 100)), checkpointTimeout);
}

NETWORK_TEST_MAIN(ConnrecordWarningsTest)

#include "tst_connrecordwarnings.moc"
