// SPDX-License-Identifier: MIT
#include "RecordedPlanTest.h"

#include <QDir>
#include <QFile>

QString title(const char *plan, int percent)
{
    return QStringLiteral("%1 % of the data plan \"%2\" used").arg(percent).arg(plan);
}

RecordedPlanTest::RecordedPlanTest(const QString &obstacle)
    : m_obstacle(obstacle)
{
}

void RecordedPlanTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void RecordedPlanTest::init()
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

void RecordedPlanTest::cleanup()
{
    m_desktop.reset();
    m_bus.reset();
    m_line.reset();
    m_folder.reset();
}

RecordedPlanTest::Program RecordedPlanTest::start(const QString &systemLanguage) const
{
    return std::make_unique<RecordingProgram>(
        QStringList{"--store", m_path, "record"},
        RecordingProgram::Environment{{"DBUS_SESSION_BUS_ADDRESS", m_bus->address()},
                                      {"XDG_CONFIG_HOME", m_folder->path()},
                                      {"LANGUAGE", systemLanguage}});
}

void RecordedPlanTest::choose(const QByteArray &setting) const
{
    QVERIFY(QDir(m_folder->path()).mkpath("refdialer"));
    QFile settings(m_folder->filePath("refdialer/refdialer.conf"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[refdialer]\n" + setting + '\n');
}

void RecordedPlanTest::addPlan(const char *name, const std::vector<int> &percentages,
                               const history::PeriodRule &period) const
{
    history::DataPlan plan = planOf(period, VethPair::bytesOf(100, datagramSize));
    plan.name = name;
    plan.warnAtPercent = percentages;
    auto store = history::Store::openOrCreate(m_path.toStdString());
    QVERIFY(store && store.value().setPlan(plan));
}
