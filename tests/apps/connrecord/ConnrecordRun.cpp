// SPDX-License-Identifier: MIT
#include "ConnrecordRun.h"

#include <QFile>
#include <QProcess>

ConnrecordRun runProgram(const QString &program, const QStringList &arguments,
                         const QByteArray &input)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted())
        qFatal("%s does not start: %s", qPrintable(program), qPrintable(process.errorString()));
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(110000))
        qFatal("%s does not end", qPrintable(program));
    const bool hasExited = process.exitStatus() == QProcess::NormalExit;
    return {hasExited ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

QString connrecordProgram()
{
    return QStringLiteral(CONNRECORD_PROGRAM);
}

ConnrecordRun connrecord(const QStringList &arguments, const QByteArray &input)
{
    return runProgram(connrecordProgram(), arguments, input);
}

ConnrecordRun onTerminal(const QString &command, const QByteArray &typed)
{
    return runProgram("script", {"--quiet", "--return", "--command", command, "/dev/null"}, typed);
}

void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("%s cannot be written", qPrintable(path));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

QByteArray csvOf(int count)
{
    QByteArray csv = "profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,"
                     "ending,interface,operator,operator_code,sim,roaming,technology\n";
    for (int i = 0; i < count; ++i)
        csv += "internet.example,2024-05-31T18:30:00Z,2024-05-31T19:30:00Z,3600," +
               QByteArray::number(i) + ",20722,normal,ppp0,,,,,\n";
    return csv;
}
