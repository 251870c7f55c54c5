// SPDX-License-Identifier: MIT
#pragma once

#include "history/Result.h"

#include <QMetaType>
#include <QString>

#include <tuple>

namespace recorder
{

/// Why connections are not recorded as they should be: what a program needs to tell its
/// user. Of the details, those are set that the kind names.
struct Problem {
    enum class Kind {
        HistoryFailed,       ///< reason: the history's own sentence, and its parts
        BootIdUnreadable,    ///< nothing tells this run of the system from others
        RecordedByAnother,   ///< program and process, where they are known
        LockUnwritable,      ///< path, reason
        LockObstructed,      ///< path, obstacle
        LinksUnwatchable,    ///< reason
        ClockOutOfRange,     ///< standInUtc
        UnwrittenUnreadable, ///< path, and obstacle or reason
        UnwrittenUnwritable, ///< path, reason: connections are lost
        UnwrittenObstructed, ///< path, otherPath: the same
    };
    /// What is wrong with a file that stands in a place of the recorder's.
    enum class Obstacle { None, NotAFile, HardLink, OfAnotherUser, Damaged };

    Kind kind = Kind::HistoryFailed;
    QString path;
    QString otherPath;
    Obstacle obstacle = Obstacle::None;
    QString reason; ///< in the system's or the history's words
    QString program;
    qint64 process = 0;
    qint64 standInUtc = 0;      ///< the time that connections get instead
    history::Sentence sentence; ///< the parts of the history's reason, which is other for others
};

/// What the history says of itself.
inline Problem historyProblem(const history::StoreError &error)
{
    Problem problem;
    problem.kind = Problem::Kind::HistoryFailed;
    problem.reason = QString::fromStdString(error.message);
    problem.sentence = error.sentence;
    return problem;
}

inline bool operator==(const Problem &a, const Problem &b)
{
    const auto fields = [](const Problem &p) {
        return std::tie(p.kind, p.path, p.otherPath, p.obstacle, p.reason, p.program, p.process,
                        p.standInUtc);
    };
    return fields(a) == fields(b);
}

inline bool operator!=(const Problem &a, const Problem &b)
{
    return !(a == b);
}

} // namespace recorder

Q_DECLARE_METATYPE(recorder::Problem)
