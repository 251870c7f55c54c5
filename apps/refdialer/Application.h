// SPDX-License-Identifier: MIT
#pragma once

#include "LineState.h"
#include "Options.h"
#include "SingleInstance.h"
#include "StateLine.h"
#include "TrueValues.h"
#include "refhost/libcore/PluginContainer.h"

#include <QCoreApplication>

#include <future>
#include <memory>

namespace refdialer
{

class DemoStore;
class PluginHandle;
class Recording;
class ServicePlugin;

/// One run of the program, from its options to its end. The members stand in
/// the order in which they are needed: what was made last goes first.
class Application
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::Application)

public:
    explicit Application(Options options);
    ~Application();

    /// Shows the history until the user ends the program, or draws the picture
    /// asked for. Throws Failure.
    void run();

private:
    void chooseStore();
    /// Whether no other window shows the same history; one that does comes forward.
    bool isFirst();
    void checkStore() const;
    void loadDialupService();
    /// Whether this run is the user's own window, and not one for a moment or to try it out.
    bool isOwnWindow() const;
    void startRecording();
    void startRecorder();
    void restartRecorder();
    void checkPlans();
    void startPlugin();
    void showWindow();

    const Options m_options;
    std::unique_ptr<DemoStore> m_demoStore;
    HistorySource m_source;
    SingleInstance m_instance;
    refhost::PluginContainer m_container;
    LineState m_state;
    std::unique_ptr<ServicePlugin> m_dialupService;
    std::unique_ptr<Recording> m_recording;
    std::future<TrueValues> m_trueValues; ///< until the window has them
    std::unique_ptr<PluginHandle> m_plugin;
};

} // namespace refdialer
