// SPDX-License-Identifier: MIT
// The smallest host: loads the plug-in from the file named on the command line and
// gives it the whole window. With --once it prints what the plug-in shows and ends.
#include "IUIPlugin.h"

#include <QApplication>
#include <QFileInfo>
#include <QPluginLoader>
#include <QTableWidget>
#include <QTextStream>

class Window : public QWidget
{
public:
    explicit Window(IUIPlugin *plugin)
        : m_plugin(plugin)
    {
        resize(800, 300);
        QRect area = rect();
        m_plugin->Init();
        m_plugin->ShowWindow(this, area);
    }
    // The plug-in ends first, while the area that it lives in is still there.
    ~Window() override { m_plugin->OnDestroy(); }

protected:
    void resizeEvent(QResizeEvent * /*event*/) override
    {
        QRect area = rect();
        m_plugin->FitSize(area);
    }

private:
    IUIPlugin *m_plugin;
};

static void printRows(QWidget &window)
{
    QTextStream out(stdout);
    for (const QTableWidget *table : window.findChildren<QTableWidget *>())
        for (int row = 0; row < table->rowCount(); ++row)
            out << "row: " << table->item(row, 0)->text() << '\n';
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QString file = QFileInfo(app.arguments().value(1)).absoluteFilePath();
    QPluginLoader loader(file);
    auto *plugin = qobject_cast<IUIPlugin *>(loader.instance());
    if (!plugin) {
        QTextStream(stderr) << file << " is no plug-in that can be loaded: " << loader.errorString()
                            << '\n';
        return 1;
    }
    Window window(plugin);
    window.show();
    if (!app.arguments().contains("--once"))
        return app.exec();
    window.grab();
    printRows(window);
    return 0;
}
