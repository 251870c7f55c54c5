// SPDX-License-Identifier: MIT
#pragma once

#include "INotify.h"
#include "IUIPlugin.h"

#include <QObject>
#include <QPointer>
#include <QRect>

class ConnectionHistoryDlg;
class NetInfoRecordLogic;

/// Version word that GetVersion returns; exported and writable by the host.
extern "C" Q_DECL_EXPORT int NET_INFO_RECORD_VERSION;

/// The plug-in's root object: it creates record store and history window and
/// forwards the host's requests and events to them. GUI thread only.
class NetInfoRecordUIPlugin : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IUIPlugin_iid FILE "NetInfoRecordUIPlugin.json")
    Q_INTERFACES(IUIPlugin : IBasePlugin INotify)

public:
    NetInfoRecordUIPlugin();
    /// Leaves the window and the store alone; OnDestroy ends them.
    ~NetInfoRecordUIPlugin() override;

    void Release() override;
    int GetLastError() override;
    void OnDestroy() override;
    void UnSDKRegisterEvent() override;
    bool Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    bool IsAllowRelease() override;
    int QueryInterface(int id, QObject **object) override;
    bool ShowWindow(QWidget *parent, QRect &rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect &rect) override;
    bool IsReady() override;
    bool ChangeLang(const QString &language) override;
    unsigned int Notify(unsigned int event, unsigned int param1, unsigned int param2) override;

private:
    void onConnectionReceived(unsigned int status);
    bool hasDialupService() const;

    QPointer<ConnectionHistoryDlg> m_pHistoryDlg;
    bool m_bReady = false; // never becomes true; that is meant
    QRect m_rcWindow;
    NetInfoRecordLogic *m_pLogic = nullptr; // ends together with the window
    bool m_bFlag1 = false;                  // kept for its place
    bool m_bShown = false;
    bool m_bSuppressNotice = false;
};
