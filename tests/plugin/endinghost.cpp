// SPDX-License-Identifier: MIT
// An ordinary host that ends in the way named on its command line, after the file of
// the plug-in. It says on standard error when its own end begins.
#include "IUIPlugin.h"

#include <QApplication>
#include <QPluginLoader>
#include <QTimer>
#include <QWidget>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

namespace
{

void sayThatTheEndBegins()
{
    std::fputs("the host ends\n", stderr);
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::_Exit(EXIT_FAILURE);
}

QObject *historyWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("ConnectionHistoryDlg"))
            return window;
    }
    return nullptr;
}

/// The window of a host, with the plug-in in it and, where the plug-in has them, the
/// statistics on top.
class Window : public QWidget
{
public:
    explicit Window(QObject *root)
        : m_plugin(qobject_cast<IUIPlugin *>(root))
    {
        require(m_plugin, "this is no plug-in");
        QRect area = rect();
        m_plugin->Init();
        m_plugin->ShowWindow(this, area);
        show();
        QMetaObject::invokeMethod(historyWindow(), "OnAccumulateClicked");
    }
    ~Window() override { endPlugin(); }

    /// Forgets the plug-in, and never calls OnDestroy.
    void forgetPlugin() { m_plugin = nullptr; }

    void endPlugin()
    {
        if (m_plugin)
            m_plugin->OnDestroy();
        m_plugin = nullptr;
    }

private:
    IUIPlugin *m_plugin;
};

/// What every host does; `whileRunning` is a slot that its event loop runs.
int run(QPluginLoader &loader, const std::function<void(Window &)> &whileRunning)
{
    require(loader.load(), qPrintable(loader.errorString()));
    int status = EXIT_SUCCESS;
    {
        Window window(loader.instance());
        QTimer::singleShot(0, &window, [&] {
            whileRunning(window);
            QApplication::quit();
        });
        status = QApplication::exec();
    }
    sayThatTheEndBegins();
    return status;
}

void runOn(Window & /*window*/) {}

int returnFromMain(int argc, char **argv)
{
    QApplication app(argc, argv);
    QPluginLoader loader(argv[1]);
    return run(loader, runOn);
}

int exitInASlotAfterOnDestroy(int argc, char **argv)
{
    QApplication app(argc, argv);
    QPluginLoader loader(argv[1]);
    return run(loader, [](Window &window) {
        window.endPlugin();
        sayThatTheEndBegins();
        std::exit(EXIT_SUCCESS);
    });
}

int exitInASlotWithoutOnDestroy(int argc, char **argv)
{
    QApplication app(argc, argv);
    QPluginLoader loader(argv[1]);
    return run(loader, [](Window & /*window*/) {
        sayThatTheEndBegins();
        std::exit(EXIT_SUCCESS);
    });
}

/// Without an event loop: after one, Qt 6.4 itself crashes at the end of a static
/// application without a display.
int useAStaticApplication(int argc, char **argv)
{
    static QApplication app(argc, argv);
    QPluginLoader loader(argv[1]);
    {
        const Window window(loader.instance());
    }
    sayThatTheEndBegins();
    return EXIT_SUCCESS;
}

int neverDeleteTheApplication(int argc, char **argv)
{
    static const QApplication *const app = new QApplication(argc, argv);
    require(app, "there is no application");
    QPluginLoader loader(argv[1]);
    return run(loader, runOn);
}

int loadBeforeTheApplication(int argc, char **argv)
{
    QPluginLoader loader(argv[1]);
    require(loader.load(), qPrintable(loader.errorString()));
    QApplication app(argc, argv);
    return run(loader, runOn);
}

/// The plug-in's own end comes after main() too.
int useAStaticWindow(int argc, char **argv)
{
    static QApplication app(argc, argv);
    static std::unique_ptr<Window> window;
    QPluginLoader loader(argv[1]);
    window = std::make_unique<Window>(loader.instance());
    sayThatTheEndBegins();
    return EXIT_SUCCESS;
}

int unloadTheLibrary(int argc, char **argv)
{
    QApplication app(argc, argv);
    QPluginLoader loader(argv[1]);
    loader.setLoadHints({});
    const int status = run(loader, runOn);
    require(loader.unload(), qPrintable(loader.errorString()));
    return status;
}

/// What the plug-in has shown stays there, and has its code.
int unloadTheLibraryUnderTheWindow(int argc, char **argv)
{
    QApplication app(argc, argv);
    QPluginLoader loader(argv[1]);
    loader.setLoadHints({});
    {
        Window window(loader.instance());
        window.forgetPlugin();
        require(loader.unload(), qPrintable(loader.errorString()));
        window.grab();
        QApplication::processEvents();
        QMetaObject::invokeMethod(historyWindow(), "OnAccumulateClicked");
    }
    sayThatTheEndBegins();
    return EXIT_SUCCESS;
}

int closeTheLibrary(int argc, char **argv)
{
    QApplication app(argc, argv);
    void *const library = dlopen(argv[1], RTLD_NOW);
    require(library, "the library cannot be opened");
    const auto createRoot = reinterpret_cast<QObject *(*)()>(dlsym(library, "qt_plugin_instance"));
    require(createRoot, "the library has no root object");
    {
        const std::unique_ptr<QObject> root(createRoot());
        const Window window(root.get());
    }
    sayThatTheEndBegins();
    dlclose(library);
    return EXIT_SUCCESS;
}

const struct {
    const char *name;
    int (*run)(int argc, char **argv);
} endings[] = {
    {"return", returnFromMain},
    {"exit-after-OnDestroy", exitInASlotAfterOnDestroy},
    {"exit-without-OnDestroy", exitInASlotWithoutOnDestroy},
    {"static-application", useAStaticApplication},
    {"undeleted-application", neverDeleteTheApplication},
    {"load-before-application", loadBeforeTheApplication},
    {"static-window", useAStaticWindow},
    {"unload", unloadTheLibrary},
    {"unload-without-OnDestroy", unloadTheLibraryUnderTheWindow},
    {"dlclose", closeTheLibrary},
};

} // namespace

int main(int argc, char *argv[])
{
    for (const auto &ending : endings) {
        if (argc == 3 && qstrcmp(argv[2], ending.name) == 0)
            return ending.run(argc, argv);
    }
    std::fputs("usage: endinghost PLUGIN ENDING\n", stderr);
    return EXIT_FAILURE;
}
