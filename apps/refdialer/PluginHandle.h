// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QPointer>

#include <memory>

class INotify;
class IUIPlugin;
class QPluginLoader;
class QRect;
class QWidget;

namespace refdialer
{

/// The history plug-in, known by its interfaces only. It owns the plug-in's root
/// object; the library stays loaded until the program ends, as the plug-in asks.
class PluginHandle
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::PluginHandle)

public:
    /// The plug-in that came with this program.
    static QString defaultFile();

    /// Throws Failure (PluginNotLoaded) if the file is no such plug-in.
    static std::unique_ptr<PluginHandle> load(const QString &file);
    /// Takes over the root object of a plug-in; null, and the object remains the
    /// caller's, if it lacks one of the interfaces.
    static std::unique_ptr<PluginHandle> adopt(QObject *root);

    PluginHandle(const PluginHandle &) = delete;
    PluginHandle &operator=(const PluginHandle &) = delete;
    ~PluginHandle();

    QObject *root() const;
    QString classId() const;
    /// Whether the plug-in says, in what can be read before it is loaded, that it
    /// opens its statistics when it is asked to.
    bool hasStatistics() const { return m_hasStatistics; }

    /// Lets the plug-in build its contents; false if it cannot. Once only.
    bool start();
    // After end(), these reach the plug-in no more: its window is gone.
    void showIn(QWidget *area);
    void fitTo(const QRect &rect);
    void hide();
    void changeLanguage(const QString &language);
    void tellConnected();
    /// After the connection's record is finished; the plug-in loads the table anew.
    void tellDisconnected();
    /// Lets the plug-in load the table anew, without a summary.
    void reload();
    /// Opens the statistics; false if the plug-in has nothing to be asked by.
    bool showStatistics();
    /// Ends the plug-in, which must happen while its area is still there.
    void end();

private:
    PluginHandle(QObject *root, IUIPlugin *ui, INotify *events);
    static void checkMetadata(const QString &file, const QPluginLoader &loader);
    void tellConnection(unsigned int status);
    [[noreturn]] static void fail(const QString &problem);

    QPointer<QObject> m_root;
    IUIPlugin *m_ui;
    INotify *m_events;
    bool m_hasStatistics = false;
    bool m_isConnected = false; ///< as the plug-in was told last
    bool m_hasEnded = false;
};

} // namespace refdialer
