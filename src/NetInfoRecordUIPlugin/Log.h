// SPDX-License-Identifier: MIT
#pragma once

#include "ClockText.h"
#include "LogText.h"

#include <QLoggingCategory>
#include <QMessageLogger>

#include <initializer_list>

/// The plug-in's lines on Qt's default debug output. Formats, paths, function names and
/// line numbers are contract: log readers rely on them, so a line number is a fixed
/// value of its line and not the place in today's file, except where a call site says
/// __LINE__.
namespace Log
{

/// Stands for the current time "hh:mm:ss:zzz" among the arguments of line().
struct CurrentTime {
};
constexpr CurrentTime now;

namespace Detail
{
inline const char *printable(CurrentTime, const ClockText &time)
{
    return time.text();
}

template <typename T>
T printable(T value, const ClockText &)
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
/// Writes one line in the format of a LogText. While debug output is off, this costs
/// the question alone: nothing is formatted and no clock is read.
template <typename... Arguments>
void line(const char *format, Arguments... arguments)
{
    // A host may end the plug-in when Qt has ended its log already.
    const QLoggingCategory *const category = QLoggingCategory::defaultCategory();
    if (!category || !category->isDebugEnabled())
        return;
    const ClockText time;
    const LogText text(format, Detail::printable(arguments, time)...);
    // Qt takes long to put a text together from several.
    QMessageLogger().debug("%s", text.text());
}
#endif

/// The source files that the lines name: a class keeps its own, in whichever files its
/// functions stand today.
inline constexpr char accumulateDlg[] = "../../src/NetInfoRecordUIPlugin/AccumulateDlg";
inline constexpr char connectionHistoryDlg[] =
    "../../src/NetInfoRecordUIPlugin/ConnectionHistoryDlg";
inline constexpr char netInfoRecordLogic[] = "../../src/NetInfoRecordUIPlugin/NetInfoRecordLogic";
inline constexpr char netInfoRecordUIPlugin[] =
    "../../src/NetInfoRecordUIPlugin/NetInfoRecordUIPlugin";

/// A function as the lines name it.
struct Place {
    constexpr Place(const char *sourcePath, const char *functionName)
        : path(sourcePath)
        , function(functionName)
    {
    }

    /// Whether `object` is missing, which is then logged as "Arg is NULL".
    bool isMissing(const void *object, int sourceLine) const
    {
        if (object)
            return false;
        line("Arg is NULL: %s: %s: %s %d", now, path, function, sourceLine);
        return true;
    }

    /// The first one's line is `firstLine`, the others follow line by line; none is
    /// looked for after a missing one.
    bool isAnyMissing(std::initializer_list<const void *> objects, int firstLine) const
    {
        for (const void *object : objects) {
            if (isMissing(object, firstLine++))
                return true;
        }
        return false;
    }

    const char *const path;
    const char *const function;
};

/// What a line gives besides its words: the place is path, function and line number.
enum class Details { Place, PlaceThenTime, TimeThenPlace };

/// How a function's first and last line are written.
struct Form {
    const char *entry;
    const char *exit;
    Details details;
};

// Those that several files share. They differ in a word, a colon or a blank, and keep it.
inline constexpr Form start{"Start: %s %s: %d: %s:", "End: %s %s: %d: %s:", Details::PlaceThenTime};
inline constexpr Form startOf{"Start of %s: %s: %d: ", "End of %s: %s: %d: ", Details::Place};
inline constexpr Form startFile{
    "Start File: %s %s: %d: %s:", "End File: %s: %s: %d: %s:", Details::PlaceThenTime};
inline constexpr Form startFileColon{
    "Start File: %s: %s: %d: %s:", "End File: %s: %s: %d: %s:", Details::PlaceThenTime};
inline constexpr Form enter{
    "Enter: %s: %s: %d: %s:", "Exit: %s: %s: %d: %s:", Details::PlaceThenTime};
inline constexpr Form entered{
    "Entered: %s: %s: %d: %s:", "Exit: %s: %s: %d: %s:", Details::PlaceThenTime};
inline constexpr Form instance{"Start: %s: %s: %s %d", "End  : %s: %s: %s %d",
                               Details::TimeThenPlace};
inline constexpr Form destroy{"Start  : %s: %s: %s %d", "End  : %s: %s: %s %d",
                              Details::TimeThenPlace};

/// A function whose lines have a form. Its time is the current one, or the fixed text
/// that the function gives instead.
template <typename Time = CurrentTime>
class Operation : public Place
{
public:
    Operation(const Form &form, const char *sourcePath, const char *functionName,
              Time time = Time())
        : Place(sourcePath, functionName)
        , m_form(form)
        , m_time(time)
    {
    }
    void entry(int sourceLine) const { line(m_form.entry, sourceLine); }
    void exit(int sourceLine) const { line(m_form.exit, sourceLine); }
    /// A line of other words, with details as the form has them, and then `more`.
    template <typename... More>
    void line(const char *format, int sourceLine, More... more) const
    {
        switch (m_form.details) {
        case Details::Place:
            return Log::line(format, path, function, sourceLine, more...);
        case Details::PlaceThenTime:
            return Log::line(format, path, function, sourceLine, m_time, more...);
        case Details::TimeThenPlace:
            return Log::line(format, m_time, path, function, sourceLine, more...);
        }
    }

private:
    const Form m_form;
    const Time m_time;
};

} // namespace Log
