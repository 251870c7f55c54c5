// SPDX-License-Identifier: MIT
#pragma once

#include "NetworkTest.h"
#include "NotificationDaemon.h"
#include "PlanSamples.h"
#include "PrivateBus.h"
#include "RecorderTest.h"
#include "RecordingProgram.h"

#include <memory>
#include <optional>
#include <vector>

/// What a warning says.
QString title(const char *plan, int percent);

/// The program that records, with a real interface and a session bus with a desktop on it,
/// all of this test's own, and plans of what the interface moves.
class RecordedPlanTest : public QObject
{
    Q_OBJECT

public:
    /// Skips everything if there is an obstacle.
    explicit RecordedPlanTest(const QString &obstacle);

private slots:
    void initTestCase();
    void init();
    void cleanup();

protected:
    using Program = std::unique_ptr<RecordingProgram>;
    Program start(const QString &systemLanguage = {}) const;
    /// Warns at these percentages of 100 datagrams.
    void addPlan(const char *name, const std::vector<int> &percentages,
                 const history::PeriodRule &period = history::MonthlyFrom{}) const;
    /// As refdialer's settings have it.
    void choose(const QByteArray &setting) const;
    bool use(int datagrams) const { return m_line->upload(datagrams, datagramSize); }
    QStringList titles() const { return m_desktop->titles(); }

    static constexpr int datagramSize = 1000;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<VethPair> m_line;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<NotificationDaemon> m_desktop;

private:
    const QString m_obstacle;
};
