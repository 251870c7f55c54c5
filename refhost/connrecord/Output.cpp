// SPDX-License-Identifier: MIT
#include "Output.h"

#include "Failure.h"
#include "Utf8Text.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

namespace refhost
{

namespace
{

Failure cannotWrite(const std::string &name, const QString &reason)
{
    return {ExitCode::Output, name + " cannot be written: " + reason.toStdString() +
                                  ". Check the disk, the folder and its permissions."};
}

} // namespace

void writeStandardOutput(const QByteArray &bytes)
{
    QFile output;
    const bool isWritten = output.open(STDOUT_FILENO, QIODevice::WriteOnly) &&
                           output.write(bytes) == bytes.size() && output.flush();
    if (!isWritten)
        throw cannotWrite("standard output", output.errorString());
}

void saveFile(const std::string &path, const QByteArray &bytes)
{
    const std::string name = '"' + printable(path, static_cast<int>(path.size())) + '"';
    const QString fileName = QFile::decodeName(path.c_str());
    const QFileInfo present(fileName);
    // The file is put in the place of the one before, which a device must not lose.
    if (present.exists() && !present.isFile())
        throw cannotWrite(name, QStringLiteral("it is there and not an ordinary file"));
    QSaveFile file(fileName);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!isWritten)
        throw cannotWrite(name, file.errorString());
}

} // namespace refhost
