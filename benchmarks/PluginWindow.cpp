// SPDX-License-Identifier: MIT
#include "PluginWindow.h"

#include "MemorySdk.h"
#include "ScriptedHost.h"

#include <QApplication>

using scripted::Host;

PluginWindow::PluginWindow(int records)
{
    MemorySdk::setRecords(MemorySdk::samples(records));
    Host::instance().reset();
    Host::instance().container = &m_container;
    Host::instance().answer = [](const scripted::MessageBox &) { return 1024; };
    m_plugin = std::make_unique<NetInfoRecordUIPlugin>();
}

PluginWindow::~PluginWindow()
{
    m_plugin->OnDestroy();
    Host::instance().reset();
    MemorySdk::setRecords({});
}

void PluginWindow::show()
{
    m_area.resize(760, 400);
    QRect rect(QPoint(0, 0), m_area.size());
    m_plugin->ShowWindow(&m_area, rect);
    m_area.show();
    QApplication::processEvents();
}

void PluginWindow::reload()
{
    const unsigned int connectionStatus = 1536;
    m_plugin->Notify(connectionStatus, 1, 0);
    m_plugin->Notify(connectionStatus, 0, 0);
}
