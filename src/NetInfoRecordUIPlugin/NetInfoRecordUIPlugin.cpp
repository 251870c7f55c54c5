// SPDX-License-Identifier: MIT
#include "NetInfoRecordUIPlugin.h"

#include "CommonUtils.h"
#include "ConnectionHistoryDlg.h"
#include "IPluginContainer.h"
#include "Log.h"
#include "NetInfoRecordLogic.h"
#include "Startup.h"

#include <QByteArray>
#include <QSysInfo>

using Log::now;

int NET_INFO_RECORD_VERSION = 257;

namespace
{

const char sourcePath[] = "../../src/NetInfoRecordUIPlugin/NetInfoRecordUIPlugin";
const char buildTime[] = __TIME__;

// Not literals of the library's own memory, here and wherever a text goes to
// the host: a copy may outlive the library.
const QString pluginName = QLatin1String("NetInfoRecordUIPlugin");
// The lower-case letter is part of the identifier.
const QString classId = QLatin1String("27A315A2-D587-498a-9FC5-7CF2738679DF");

enum HostEvent : unsigned int {
    LanguageChanged = 1024,
    ConnectionStatus = 1536,
    SuppressNotice = 2384,
};

enum ConnectionStatusValue : unsigned int { Disconnected = 0, Connected = 1 };

// One for the whole module: a connection has been seen since the last summary.
bool s_bWasConnected = false;

} // namespace

/// The text that older loaders of the toolkit check before they resolve the
/// instance function.
extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data()
{
    static const QByteArray text = "pattern=QT_PLUGIN_VERIFICATION_DATA\n"
                                   "version=4.6.2\n"
                                   "debug=false\n"
                                   "buildkey=" +
                                   QSysInfo::buildAbi().toLatin1();
    return text.constData();
}

NetInfoRecordUIPlugin::NetInfoRecordUIPlugin()
{
    // This one line has no colon after the path; log readers know it so.
    Log::line("Start File: %s %s: %d: %s:", sourcePath, __func__, 48, buildTime);
    m_pLogic = NetInfoRecordLogic::Instance();
    m_pHistoryDlg = ConnectionHistoryDlg::Instance();
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 53, buildTime);
}

NetInfoRecordUIPlugin::~NetInfoRecordUIPlugin() = default;

bool NetInfoRecordUIPlugin::ShowWindow(QWidget *parent, QRect &rect)
{
    Log::line("Start File: %s: %s: %d: %s:", sourcePath, __func__, 71, buildTime);
    if (m_pHistoryDlg) {
        m_rcWindow = rect;
        m_pHistoryDlg->ShowWindow(parent, m_rcWindow);
    }
    m_bShown = true;
    Log::line("End File: %s: %s: %d: %s:", sourcePath, __func__, 79, buildTime);
    return true;
}

bool NetInfoRecordUIPlugin::Init()
{
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 114);
    if (m_pHistoryDlg)
        m_pHistoryDlg->Init();
    Log::line("End of %s: %s: %d: ", sourcePath, __func__, 121);
    return true;
}

int NetInfoRecordUIPlugin::DoModal()
{
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 173);
    ShowWindow(nullptr, m_rcWindow);
    Log::line("End of %s: %s: %d: ", sourcePath, __func__, 177);
    return 0;
}

void NetInfoRecordUIPlugin::Hide()
{
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 195);
    if (m_pHistoryDlg)
        m_pHistoryDlg->Hide();
    Log::line("End of %s: %s: %d: ", sourcePath, __func__, 202);
}

void NetInfoRecordUIPlugin::FitSize(QRect &rect)
{
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 219);
    if (m_pHistoryDlg) {
        m_rcWindow = rect;
        // The caller's own rectangle goes on, unlike in ShowWindow; that is meant.
        m_pHistoryDlg->FitSize(rect);
    }
    Log::line("End of %s: %s: %d: ", sourcePath, __func__, 225);
}

bool NetInfoRecordUIPlugin::ChangeLang(const QString &language)
{
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 244);
    if (language.isEmpty()) {
        Log::line("Empty String %s: %s: %d: ", sourcePath, __func__, 248);
        return false;
    }
    // The exit line repeats the entry wording: log readers rely on it.
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 252);
    return true;
}

unsigned int NetInfoRecordUIPlugin::Notify(unsigned int event, unsigned int param1, unsigned int)
{
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 273);
    if (!m_pHistoryDlg)
        return 0;
    switch (event) {
    case ConnectionStatus:
        onConnectionReceived(param1);
        break;
    case SuppressNotice:
        m_bSuppressNotice = true;
        break;
    case LanguageChanged:
        m_pHistoryDlg->uiSetText();
        break;
    default:
        break;
    }
    // The exit line repeats the entry wording: log readers rely on it.
    Log::line("Start of %s: %s: %d: ", sourcePath, __func__, 313);
    return 0;
}

void NetInfoRecordUIPlugin::onConnectionReceived(unsigned int status)
{
    if (Log::isMissing(m_pLogic, sourcePath, __func__, 335) ||
        Log::isMissing(m_pHistoryDlg, sourcePath, __func__, 336) || !hasDialupService())
        return;
    if (status == Connected)
        s_bWasConnected = true;
    Log::line("Status after connection: %s %s %d", sourcePath, __func__, status);
    if (status != Disconnected || !s_bWasConnected || m_bSuppressNotice)
        return;

    s_bWasConnected = false;
    const QString setting =
        CommonUtils::GetSettings(pluginName, QLatin1String("WhetherShowNotesbox"));
    QWidget *window = nullptr;
    const bool isSummaryWanted = setting.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
    if (isSummaryWanted)
        window = CommonUtils::GetMainWindow();
    if (!m_pHistoryDlg)
        return; // the host has ended the window meanwhile
    if (isSummaryWanted)
        m_pHistoryDlg->ShowDialogOfLastConnectedRecord(window);
    m_pHistoryDlg->reload();
}

/// Whether the host has loaded a dial-up plug-in that gives the dial-up service;
/// nothing of that service is called.
bool NetInfoRecordUIPlugin::hasDialupService() const
{
    const char function[] = "onConnectionReceived";
    IPluginContainer *container = Startup::GetPluginContainer();
    if (Log::isMissing(container, sourcePath, function, 346))
        return false;
    QObject *dialup =
        container->GetPlugin(QLatin1String("92804312-432E-401F-96BB-1C20D852815D"), 16401);
    if (Log::isMissing(dialup, sourcePath, function, 348))
        return false;
    const void *service = dialup->qt_metacast("com.quorin.skylarkdialer.plugin.IDialupUIService");
    return !Log::isMissing(service, sourcePath, function, 350);
}

void NetInfoRecordUIPlugin::OnDestroy()
{
    Log::line("Start: %s %s: %d: %s:", sourcePath, __func__, 487, now);
    ConnectionHistoryDlg::Destroy();
    NetInfoRecordLogic::Destroy();
    Log::line("End: %s %s: %d: %s:", sourcePath, __func__, 490, now);
}

void NetInfoRecordUIPlugin::UnSDKRegisterEvent()
{
    Log::line("%s: %s called", sourcePath, __func__);
    Log::line("%s: %s exit", sourcePath, __func__);
}

void NetInfoRecordUIPlugin::Release() {}

int NetInfoRecordUIPlugin::GetLastError()
{
    return 0;
}

int NetInfoRecordUIPlugin::GetPluginType()
{
    return 0;
}

QString NetInfoRecordUIPlugin::GetCLSID()
{
    return classId;
}

int NetInfoRecordUIPlugin::GetVersion()
{
    return NET_INFO_RECORD_VERSION;
}

QString NetInfoRecordUIPlugin::GetPluginName()
{
    return pluginName;
}

bool NetInfoRecordUIPlugin::IsAllowRelease()
{
    return false;
}

bool NetInfoRecordUIPlugin::IsReady()
{
    return m_bReady;
}

int NetInfoRecordUIPlugin::QueryInterface(int, QObject **)
{
    return 0;
}
