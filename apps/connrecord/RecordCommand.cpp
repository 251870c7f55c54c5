// SPDX-License-Identifier: MIT
#include "RecordCommand.h"

#include "Complaint.h"
#include "OptionValue.h"
#include "ServiceNotice.h"
#include "StoreResult.h"
#include "UnusedMemory.h"
#include "apps/common/PlanWarner.h"
#include "apps/common/ProblemText.h"
#include "apps/common/QuitOnSignal.h"
#include "apps/common/RecordingChoices.h"
#include "formats/Utf8Text.h"
#include "history/Store.h"
#include "recorder/ConnectionRecorder.h"
#include "recorder/InterfaceName.h"
#include "recorder/bus/RecorderService.h"

#include <QCoreApplication>
#include <QFile>
#include <QTimer>

#include <memory>

namespace connrecord
{

namespace
{

using recorder::ConnectionRecorder;
using recorder::ConnectionState;
using recorder::Problem;

/// Those that are given, or else those that the user has chosen in refdialer.
QStringList interfaceNames(const std::vector<std::string> &names)
{
    if (names.empty())
        return common::chosenInterfaces();
    QStringList checked;
    for (const std::string &name : names) {
        const QString text = QString::fromStdString(name);
        if (!formats::isUtf8(name) || !recorder::canNameAnInterface(text))
            throw Failure(ExitCode::Usage, common::impossibleInterfaceText(text).toStdString());
        checked << text;
    }
    return checked;
}

std::string nameOf(const std::string &profile, const std::string &interfaceName)
{
    return profile == interfaceName ? interfaceName : profile + " (" + interfaceName + ')';
}

std::string textOf(const Problem &problem)
{
    if (problem.kind != Problem::Kind::RecordedByAnother)
        return common::problemText(problem).toStdString();
    const std::string another = problem.program.isEmpty()
                                    ? "another program"
                                    : "another " + problem.program.toStdString() + " (process " +
                                          std::to_string(problem.process) + ')';
    return "Connections are recorded by " + another +
           " already; this one records them when that one has ended.";
}

/// Says what a recorder does, and how it is.
class Reporter
{
public:
    explicit Reporter(const ConnectionRecorder &recorder);

    void tellOfStart(bool isRecording);

private:
    void tellOfBeginning(const ConnectionState &state);
    void tellOfEnd(const history::Connection &connection, qint64 id);
    void tellOfProblem(const Problem &problem);
    void tellOfRecovery();
    void showStatus() const;

    bool m_isRecording = false;
    std::string m_problem;
    qint64 m_lasting = 0;
};

Reporter::Reporter(const ConnectionRecorder &recorder)
{
    const auto *const context = &recorder;
    QObject::connect(context, &ConnectionRecorder::started, context, [this] { tellOfStart(true); });
    QObject::connect(context, &ConnectionRecorder::connected, context,
                     [this](const ConnectionState &state) { tellOfBeginning(state); });
    QObject::connect(
        context, &ConnectionRecorder::disconnected, context,
        [this](const history::Connection &connection, qint64 id) { tellOfEnd(connection, id); });
    QObject::connect(context, &ConnectionRecorder::failed, context,
                     [this](const Problem &problem) { tellOfProblem(problem); });
    QObject::connect(context, &ConnectionRecorder::succeeded, context,
                     [this] { tellOfRecovery(); });
}

void Reporter::tellOfStart(bool isRecording)
{
    m_isRecording = isRecording;
    if (isRecording)
        warn("Recording connections.");
    showStatus();
}

void Reporter::tellOfBeginning(const ConnectionState &state)
{
    ++m_lasting;
    warn("Connected: " + nameOf(state.profile.toStdString(), state.interfaceName.toStdString()) +
         '.');
    showStatus();
}

void Reporter::tellOfEnd(const history::Connection &connection, qint64 id)
{
    // What an earlier process has left open did not begin here.
    m_lasting -= id != 0 ? 1 : 0;
    warn("Ended: " + nameOf(connection.profile, connection.interfaceName) + ", " +
         std::to_string(connection.uploadedBytes) + " bytes sent, " +
         std::to_string(connection.downloadedBytes) + " bytes received, " +
         std::to_string(connection.connectedSeconds) + " s connected (" + connection.ending + ").");
    showStatus();
}

void Reporter::tellOfProblem(const Problem &problem)
{
    m_problem = textOf(problem);
    warn(m_problem);
    showStatus();
}

void Reporter::tellOfRecovery()
{
    m_problem.clear();
    warn("That is over; connections are recorded as they should be.");
    showStatus();
}

void Reporter::showStatus() const
{
    if (!m_problem.empty())
        tellStatus(m_problem);
    else if (m_isRecording)
        tellStatus("Recording; connections that last: " + std::to_string(m_lasting) + '.');
}

void tellWarnings(const ::common::PlanWarner &warner)
{
    using ::common::PlanWarner;
    const auto tell = [](const QString &sentence) { warn(sentence.toStdString()); };
    QObject::connect(&warner, &PlanWarner::warned, tell);
    QObject::connect(&warner, &PlanWarner::failed, tell);
}

/// Keeps in memory only what is used all the time, and not what the start takes, a
/// connection that begins or ends, or a look at the plans.
class MemorySaver
{
public:
    MemorySaver(const ConnectionRecorder &recorder, const ::common::PlanWarner &planWarner);

private:
    QTimer m_timer;
};

MemorySaver::MemorySaver(const ConnectionRecorder &recorder, const ::common::PlanWarner &planWarner)
{
    // All that such an event brings with it is over then, as the search for the buses.
    m_timer.setInterval(std::chrono::seconds(4));
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, giveBackUnusedMemory);
    const auto saveLater = [this] { m_timer.start(); };
    QObject::connect(&recorder, &ConnectionRecorder::connected, &m_timer, saveLater);
    QObject::connect(&recorder, &ConnectionRecorder::disconnected, &m_timer, saveLater);
    QObject::connect(&planWarner, &::common::PlanWarner::checked, &m_timer, saveLater);
    saveLater();
}

/// What is wrong with the store itself will not pass by waiting.
void checkStore(const std::string &path)
{
    const auto store = valueOrFailure(history::Store::openForReading(path));
    valueOrFailure(store.listOpen());
}

} // namespace

void recordConnections(const CommonRequest &common, const RecordRequest &request)
{
    const QStringList names = interfaceNames(request.interfaceNames);
    const QString profile = QString::fromStdString(optionText("--profile", request.profile));
    checkStore(common.storePath);
    const ::common::QuitOnSignal quitOnSignal;
    const QString storePath = QFile::decodeName(common.storePath.c_str());
    ConnectionRecorder recorder(storePath, names);
    recorder.setProfileName(profile);
    Reporter reporter(recorder);
    reporter.tellOfStart(recorder.start());
    using recorder::RecorderService;
    RecorderService service(
        recorder, storePath, RecorderService::Place::Background,
        [](const Problem &problem) { return QString::fromStdString(textOf(problem)); });
    service.start();
    ::common::PlanWarner planWarner(recorder, storePath);
    planWarner.setTranslations(QStringLiteral(":/connrecord/translations"));
    tellWarnings(planWarner);
    tellReady();
    const MemorySaver memorySaver(recorder, planWarner);
    QCoreApplication::exec();
    tellStopping();
    if (const auto loss = recorder.end())
        throw Failure(ExitCode::Store, textOf(*loss));
}

} // namespace connrecord
