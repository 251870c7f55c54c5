// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QString>
#include <QStringList>

/// One finished run of the connrecord program.
struct ConnrecordRun {
    int exitCode = -1; ///< -1 if it crashed
    QByteArray output;
    QByteArray error;

    QJsonDocument json() const { return QJsonDocument::fromJson(output); }
};

QString connrecordProgram();

/// Runs the program and waits for its end.
ConnrecordRun connrecord(const QStringList &arguments, const QByteArray &input = {});

/// Runs another program, found on the path, in the same way.
ConnrecordRun runProgram(const QString &program, const QStringList &arguments,
                         const QByteArray &input = {});

/// Runs a shell's command in a terminal, whose contents are the output, those that are
/// typed included.
ConnrecordRun onTerminal(const QString &command, const QByteArray &typed = {});

void writeFile(const QString &path, const QByteArray &contents);
QByteArray readFile(const QString &path);

/// `count` connections as the program's CSV files have them.
QByteArray csvOf(int count);
