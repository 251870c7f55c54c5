// SPDX-License-Identifier: MIT
#include "HistoryWindow.h"

#include "MemorySdk.h"
#include "ScriptedHost.h"

#include <QApplication>

using scripted::Host;

HistoryWindow::HistoryWindow(int records)
{
    MemorySdk::setRecords(MemorySdk::samples(records));
    Host::instance().reset();
    Host::instance().container = &m_container;
    Host::instance().answer = [](const scripted::MessageBox &) { return 1024; };
    m_plugin = std::make_unique<NetInfoRecordUIPlugin>();
}

HistoryWindow::~HistoryWindow()
{
    m_plugin->OnDestroy();
    Host::instance().reset();
    MemorySdk::setRecords({});
}

void HistoryWindow::show()
{
    m_area.resize(760, 400);
    QRect rect(QPoint(0, 0), m_area.size());
    m_plugin->ShowWindow(&m_area, rect);
    m_area.show();
    QApplication::processEvents();
}

void HistoryWindow::reload()
{
    const unsigned int connectionStatus = 1536;
    m_plugin->Notify(connectionStatus, 1, 0);
    m_plugin->Notify(connectionStatus, 0, 0);
}
