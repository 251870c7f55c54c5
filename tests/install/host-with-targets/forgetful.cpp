// SPDX-License-Identifier: MIT
// Loads the plug-in named on the command line and says why it cannot.
#include <QCoreApplication>
#include <QPluginLoader>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QPluginLoader loader(QCoreApplication::arguments().value(1));
    if (loader.load())
        return 1;
    QTextStream(stdout) << loader.errorString() << '\n';
    return 0;
}
