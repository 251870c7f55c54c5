// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLocale>
#include <QLoggingCategory>
#include <QMessageLogger>
#include <QString>
#include <QTime>

/// The plug-in's lines on the toolkit's default debug output. Formats, function
/// names and line numbers are contract: log readers rely on them, so a line
/// number is a fixed value of its line and not the place in today's file, except
/// where a call site says __LINE__.
namespace Log
{

/// Stands for the current time "hh:mm:ss:zzz" among the arguments of line().
struct CurrentTime {
};
constexpr CurrentTime now;

namespace Detail
{
inline const char *printable(CurrentTime, const QByteArray &time)
{
    return time.constData();
}

template <typename T>
T printable(T value, const QByteArray &)
{
    return value;
}
} // namespace Detail

#ifdef NETINFORECORD_WITHOUT_LOG
/// Only the benchmark leaves the lines out, to weigh what silent ones cost.
template <typename... Arguments>
void line(const char *, Arguments...)
{
}
#else
/// Writes one line in printf's format. While debug output is off, this costs
/// the question alone: nothing is formatted and no clock is read.
template <typename... Arguments>
void line(const char *format, Arguments... arguments)
{
    // A host may end the plug-in when Qt has ended its log already.
    const QLoggingCategory *const category = QLoggingCategory::defaultCategory();
    if (!category || !category->isDebugEnabled())
        return;
    // Of the C locale: some versions of the toolkit would take the user's digits.
    const QByteArray time =
        QLocale::c().toString(QTime::currentTime(), QStringLiteral("hh:mm:ss:zzz")).toLatin1();
    QMessageLogger().debug(format, Detail::printable(arguments, time)...);
}
#endif

/// Whether `object` is missing, which is then logged as "Arg is NULL".
inline bool isMissing(const void *object, const char *sourcePath, const char *function,
                      int sourceLine)
{
    if (object)
        return false;
    line("Arg is NULL: %s: %s: %s %d", now, sourcePath, function, sourceLine);
    return true;
}

} // namespace Log
