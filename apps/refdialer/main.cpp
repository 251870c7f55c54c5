// SPDX-License-Identifier: MIT
#include "Application.h"
#include "Failure.h"
#include "FailureReport.h"
#include "LanguageChoice.h"
#include "Options.h"
#include "apps/common/QuitOnSignal.h"
#include "refhost/libcore/Host.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>

namespace
{

void describeProgram()
{
    QCoreApplication::setApplicationName(QStringLiteral("refdialer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(REFDIALER_VERSION));
    refhost::setLanguage(refdialer::startLanguage());
}

// Needs no display, so that help is there and mistakes are told without one.
refdialer::Options readOptions(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    describeProgram();
    return refdialer::readOptions(QCoreApplication::arguments());
}

int runWindow(const refdialer::Options &options, char **argv)
{
    // Qt takes --plugin and others for its own, so it sees none of them.
    int programNameOnly = 1;
    const QApplication application(programNameOnly, argv);
    const common::QuitOnSignal quitOnSignal;
    describeProgram();
    QApplication::setDesktopFileName(QStringLiteral(REFDIALER_APPLICATION_ID));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral(REFDIALER_APPLICATION_ID)));
    try {
        refdialer::Application(options).run();
        return 0;
    } catch (const refdialer::Failure &failure) {
        refdialer::reportInTerminal(failure);
        if (options.pictureFile.isEmpty())
            refdialer::reportInWindow(failure);
        return int(failure.code);
    }
}

} // namespace

int main(int argc, char **argv)
{
    try {
        const refdialer::Options options = readOptions(argc, argv);
        if (!options.information.isEmpty()) {
            std::fputs(options.information.toLocal8Bit().constData(), stdout);
            return 0;
        }
        if (!options.pictureFile.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        return runWindow(options, argv);
    } catch (const refdialer::Failure &failure) {
        refdialer::reportInTerminal(failure);
        return int(failure.code);
    }
}
