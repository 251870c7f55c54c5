// SPDX-License-Identifier: MIT
#include "recorder/bus/RecorderObject.h"

#include "modem/Names.h"
#include "recorder/ConnectionRecorder.h"
#include "recorder/bus/BusName.h"
#include "recorder/bus/ConnectionValues.h"

#include <QDBusMetaType>

#include <utility>

namespace recorder
{

namespace
{

namespace properties
{

const char *const recording = "Recording";
const char *const waiting = "Waiting";
const char *const problem = "Problem";
const char *const connections = "Connections";

} // namespace properties

} // namespace

RecorderObject::RecorderObject(ConnectionRecorder &recorder, const QString &storePath,
                               std::function<QString(const Problem &)> problemText,
                               std::chrono::milliseconds interval)
    : m_recorder(recorder)
    , m_problemText(std::move(problemText))
    , m_history(realPath(storePath))
    , m_isRecording(recorder.isRecording())
    , m_throttle(interval)
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
    connect(&recorder, &ConnectionRecorder::started, this, &RecorderObject::updateRecording);
    connect(&recorder, &ConnectionRecorder::stopped, this, &RecorderObject::forgetConnections);
    connect(&recorder, &ConnectionRecorder::stopped, this, &RecorderObject::updateRecording);
    connect(&recorder, &ConnectionRecorder::connected, this, &RecorderObject::begin);
    connect(&recorder, &ConnectionRecorder::stateChanged, this, &RecorderObject::update);
    connect(&recorder, &ConnectionRecorder::disconnected, this, &RecorderObject::end);
    connect(&recorder, &ConnectionRecorder::failed, this, &RecorderObject::setProblem);
    connect(&recorder, &ConnectionRecorder::succeeded, this, &RecorderObject::removeProblem);
    connect(&m_throttle, &Throttle::due, this, &RecorderObject::tellChanges);
}

QString RecorderObject::interfaceName()
{
    return QStringLiteral(RECORDER_BUS_INTERFACE);
}

QString RecorderObject::objectPath()
{
    return objectPathFor(interfaceName());
}

void RecorderObject::updateRecording()
{
    const bool isRecording = m_recorder.isRecording();
    const bool wasRecording = std::exchange(m_isRecording, isRecording);
    const bool isWaiting = !isRecording && m_isAnotherRecording;
    if (std::exchange(m_isWaiting, isWaiting) != isWaiting) {
        noteChange(properties::waiting);
        emit waitingChanged();
    }
    if (wasRecording == isRecording)
        return;
    noteChange(properties::recording);
    emit recordingChanged();
}

void RecorderObject::begin(const ConnectionState &state)
{
    const QVariantMap values = valuesOf(state);
    m_connections.insert(state.id, values);
    tell("ConnectionBegan", {state.id, values});
    noteChangeOfConnections();
}

void RecorderObject::update(const ConnectionState &state)
{
    const QVariantMap values = valuesOf(state);
    const QVariantMap former = std::exchange(m_connections[state.id], values);
    if (identityIn(values) != identityIn(former))
        tell("ConnectionChanged", {state.id, values});
    if (values != former)
        noteChangeOfConnections();
}

void RecorderObject::end(const history::Connection &connection, qint64 id)
{
    tell("ConnectionEnded", {id, valuesOf(connection)});
    if (m_connections.remove(id) > 0)
        noteChangeOfConnections();
    m_hasHistoryChanged = true;
    m_throttle.request();
}

/// Who records them now tells of them.
void RecorderObject::forgetConnections()
{
    m_connections.clear();
    noteChangeOfConnections();
}

void RecorderObject::setProblem(const Problem &problem)
{
    m_isAnotherRecording = problem.kind == Problem::Kind::RecordedByAnother;
    m_problem = m_problemText(problem);
    noteChange(properties::problem);
    updateRecording();
}

void RecorderObject::removeProblem()
{
    m_isAnotherRecording = false;
    m_problem.clear();
    noteChange(properties::problem);
    updateRecording();
}

void RecorderObject::noteChange(const char *property)
{
    m_changes.insert(property);
    m_throttle.request();
}

void RecorderObject::noteChangeOfConnections()
{
    if (m_isWatched)
        noteChange(properties::connections);
}

void RecorderObject::tellChanges()
{
    QVariantMap values;
    for (const QByteArray &name : std::exchange(m_changes, {}))
        values.insert(QString::fromLatin1(name), property(name));
    if (!values.isEmpty()) {
        QDBusMessage signal = QDBusMessage::createSignal(
            objectPath(), modem::names::propertiesInterface, modem::names::propertiesChanged);
        signal << interfaceName() << values << QStringList();
        emit told(signal);
    }
    if (std::exchange(m_hasHistoryChanged, false))
        tell("HistoryChanged");
}

void RecorderObject::tell(const char *signal, const QVariantList &arguments)
{
    QDBusMessage message =
        QDBusMessage::createSignal(objectPath(), interfaceName(), QLatin1String(signal));
    message.setArguments(arguments);
    emit told(message);
}

} // namespace recorder
