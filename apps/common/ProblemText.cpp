// SPDX-License-Identifier: MIT
#include "ProblemText.h"

#include "StoreErrorText.h"
#include "recorder/Problem.h"

#include <QCoreApplication>
#include <QDateTime>

namespace common
{

namespace
{

using recorder::Problem;

class ProblemText
{
    Q_DECLARE_TR_FUNCTIONS(common::ProblemText)

public:
    static QString of(const Problem &problem);
    static QString ofInterface(const QString &name);

private:
    static QString anotherRecorder(const Problem &problem);
    static QString reason(const Problem &problem);
    static QString outOfRange(const Problem &problem);
};

QString ProblemText::of(const Problem &problem)
{
    switch (problem.kind) {
    case Problem::Kind::HistoryFailed:
        return storeErrorText(problem.sentence, problem.reason);
    case Problem::Kind::BootIdUnreadable:
        return tr("\"/proc/sys/kernel/random/boot_id\" cannot be read, so connections are not "
                  "recorded; mount /proc.");
    case Problem::Kind::RecordedByAnother:
        return anotherRecorder(problem);
    case Problem::Kind::LockUnwritable:
        return tr("Connections are not recorded, for %1 cannot be written (%2); allow yourself to "
                  "write there.")
            .arg(problem.path, reason(problem));
    case Problem::Kind::LockObstructed:
        return tr("Connections are not recorded, for %1 is in the way of the lock (%2); move it "
                  "away.")
            .arg(problem.path, reason(problem));
    case Problem::Kind::LinksUnwatchable:
        return tr("The network interfaces cannot be watched (%1), so connections are not "
                  "recorded; that is tried again every other second.")
            .arg(reason(problem));
    case Problem::Kind::ClockOutOfRange:
        return outOfRange(problem);
    case Problem::Kind::UnwrittenUnreadable:
        return tr("\"%1\" may keep connections that are not in the history, but cannot be read "
                  "(%2); it was left as it is, move it away.")
            .arg(problem.path, reason(problem));
    case Problem::Kind::UnwrittenUnwritable:
        return tr("\"%1\" cannot be written (%2), so connections that the history could not take "
                  "are lost; allow yourself to write there.")
            .arg(problem.path, reason(problem));
    case Problem::Kind::UnwrittenObstructed:
        return tr("\"%1\" and \"%2\" are in the way, so connections that the history could not "
                  "take are lost; move them away.")
            .arg(problem.path, problem.otherPath);
    }
    return {};
}

QString ProblemText::ofInterface(const QString &name)
{
    return tr("There can be no network interface \"%1\": a name has at most 15 bytes, an "
              "alternative one 127, and neither \"/\" nor white space.")
        .arg(name);
}

QString ProblemText::anotherRecorder(const Problem &problem)
{
    if (problem.program.isEmpty())
        return tr("Connections are recorded by another program already, and appear here when "
                  "they have ended.");
    return tr("Connections are recorded by another %1 already (process %2), and appear here when "
              "they have ended.")
        .arg(problem.program)
        .arg(problem.process);
}

QString ProblemText::reason(const Problem &problem)
{
    switch (problem.obstacle) {
    case Problem::Obstacle::None:
        return problem.reason;
    case Problem::Obstacle::NotAFile:
        return tr("it is not a file");
    case Problem::Obstacle::HardLink:
        return tr("it is a hard link to another file");
    case Problem::Obstacle::OfAnotherUser:
        return tr("it belongs to another user");
    case Problem::Obstacle::Damaged:
        return tr("it is damaged or of another program");
    }
    return {};
}

QString ProblemText::outOfRange(const Problem &problem)
{
    const QDateTime standIn = QDateTime::fromSecsSinceEpoch(problem.standInUtc).toUTC();
    return tr("The system's clock shows a time that the history cannot hold, so connections get "
              "%1 UTC instead; set the clock.")
        .arg(standIn.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

} // namespace

QString problemText(const Problem &problem)
{
    return ProblemText::of(problem);
}

QString impossibleInterfaceText(const QString &name)
{
    return ProblemText::ofInterface(name);
}

} // namespace common
