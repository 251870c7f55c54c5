// SPDX-License-Identifier: MIT
#include "LogCapture.h"

#include <QRegularExpression>

#include <utility>

namespace
{

QStringList lines;
QtMessageHandler previousHandler = nullptr;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type != QtDebugMsg) {
        previousHandler(type, context, text);
        return;
    }
    QString line = text;
    line.replace(QRegularExpression(QStringLiteral("\\b\\d\\d:\\d\\d:\\d\\d:\\d{3}\\b")),
                 QStringLiteral("<now>"));
    line.replace(QRegularExpression(QStringLiteral("\\b\\d\\d:\\d\\d:\\d\\d\\b")),
                 QStringLiteral("<time>"));
    lines.append(line);
}

} // namespace

LogCapture::LogCapture()
{
    lines.clear();
    previousHandler = qInstallMessageHandler(collect);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previousHandler);
}

QStringList LogCapture::take()
{
    return std::exchange(lines, {});
}

QStringList LogCapture::takeAbout(const QString &word)
{
    return take().filter(word);
}
