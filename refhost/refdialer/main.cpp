// SPDX-License-Identifier: MIT
#include "Application.h"
#include "Failure.h"
#include "FailureReport.h"
#include "Host.h"
#include "LanguageChoice.h"
#include "Options.h"
#include "QuitOnSignal.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>

namespace
{

void describeProgram()
{
    QCoreApplication::setApplicationName(QStringLiteral("refdialer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(REFDIALER_VERSION));
    refhost::setLanguage(refhost::startLanguage());
}

// Needs no display, so that help is there and mistakes are told without one.
refhost::Options readOptions(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    describeProgram();
    return refhost::readOptions(QCoreApplication::arguments());
}

int runWindow(const refhost::Options &options, char **argv)
{
    // The toolkit takes --plugin and others for its own, so it sees none of them.
    int programNameOnly = 1;
    const QApplication application(programNameOnly, argv);
    const refhost::QuitOnSignal quitOnSignal;
    describeProgram();
    QApplication::setDesktopFileName(QStringLiteral(REFDIALER_APPLICATION_ID));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral(REFDIALER_APPLICATION_ID)));
    try {
        refhost::Application(options).run();
        return 0;
    } catch (const refhost::Failure &failure) {
        refhost::reportInTerminal(failure);
        if (options.pictureFile.isEmpty())
            refhost::reportInWindow(failure);
        return int(failure.code);
    }
}

} // namespace

int main(int argc, char **argv)
{
    try {
        const refhost::Options options = readOptions(argc, argv);
        if (!options.information.isEmpty()) {
            std::fputs(options.information.toLocal8Bit().constData(), stdout);
            return 0;
        }
        if (!options.pictureFile.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        return runWindow(options, argv);
    } catch (const refhost::Failure &failure) {
        refhost::reportInTerminal(failure);
        return int(failure.code);
    }
}
