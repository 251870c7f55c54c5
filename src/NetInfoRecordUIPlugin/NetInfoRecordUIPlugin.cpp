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

int NET_INFO_RECORD_VERSION = 257;

namespace
{

const char pluginBuildTime[] = __TIME__;

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

// The exit line repeats the entry's wording: log readers rely on it.
constexpr Log::Form startOfTwice{Log::startOf.entry, Log::startOf.entry, Log::Details::Place};

// One for the whole module: a connection has been seen since the last summary.
bool s_bWasConnected = false;

} // namespace

/// The text that older loaders of Qt check before they resolve the instance function.
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
    const Log::Operation log(Log::startFile, Log::netInfoRecordUIPlugin, __func__, pluginBuildTime);
    log.entry(48);
    m_pLogic = NetInfoRecordLogic::Instance();
    m_pHistoryDlg = ConnectionHistoryDlg::Instance();
    log.exit(53);
}

NetInfoRecordUIPlugin::~NetInfoRecordUIPlugin() = default;

bool NetInfoRecordUIPlugin::ShowWindow(QWidget *parent, QRect &rect)
{
    const Log::Operation log(Log::startFileColon, Log::netInfoRecordUIPlugin, __func__,
                             pluginBuildTime);
    log.entry(71);
    if (m_pHistoryDlg) {
        m_rcWindow = rect;
        m_pHistoryDlg->ShowWindow(parent, m_rcWindow);
    }
    m_bShown = true;
    log.exit(79);
    return true;
}

bool NetInfoRecordUIPlugin::Init()
{
    const Log::Operation log(Log::startOf, Log::netInfoRecordUIPlugin, __func__);
    log.entry(114);
    if (m_pHistoryDlg)
        m_pHistoryDlg->Init();
    log.exit(121);
    return true;
}

int NetInfoRecordUIPlugin::DoModal()
{
    const Log::Operation log(Log::startOf, Log::netInfoRecordUIPlugin, __func__);
    log.entry(173);
    ShowWindow(nullptr, m_rcWindow);
    log.exit(177);
    return 0;
}

void NetInfoRecordUIPlugin::Hide()
{
    const Log::Operation log(Log::startOf, Log::netInfoRecordUIPlugin, __func__);
    log.entry(195);
    if (m_pHistoryDlg)
        m_pHistoryDlg->Hide();
    log.exit(202);
}

void NetInfoRecordUIPlugin::FitSize(QRect &rect)
{
    const Log::Operation log(Log::startOf, Log::netInfoRecordUIPlugin, __func__);
    log.entry(219);
    if (m_pHistoryDlg) {
        m_rcWindow = rect;
        // The caller's own rectangle is handed on, unlike in ShowWindow; that is meant.
        m_pHistoryDlg->FitSize(rect);
    }
    log.exit(225);
}

bool NetInfoRecordUIPlugin::ChangeLang(const QString &language)
{
    const Log::Operation log(startOfTwice, Log::netInfoRecordUIPlugin, __func__);
    log.entry(244);
    if (language.isEmpty()) {
        log.line("Empty String %s: %s: %d: ", 248);
        return false;
    }
    log.exit(252);
    return true;
}

unsigned int NetInfoRecordUIPlugin::Notify(unsigned int event, unsigned int param1, unsigned int)
{
    const Log::Operation log(startOfTwice, Log::netInfoRecordUIPlugin, __func__);
    log.entry(273);
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
    log.exit(313);
    return 0;
}

void NetInfoRecordUIPlugin::onConnectionReceived(unsigned int status)
{
    const Log::Place log(Log::netInfoRecordUIPlugin, __func__);
    if (log.isAnyMissing({m_pLogic, m_pHistoryDlg}, 335) || !hasDialupService())
        return;
    if (status == Connected)
        s_bWasConnected = true;
    Log::line("Status after connection: %s %s %d", log.path, log.function, status);
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
    const Log::Place log(Log::netInfoRecordUIPlugin, "onConnectionReceived");
    IPluginContainer *container = Startup::GetPluginContainer();
    if (log.isMissing(container, 346))
        return false;
    QObject *dialup =
        container->GetPlugin(QLatin1String("92804312-432E-401F-96BB-1C20D852815D"), 16401);
    if (log.isMissing(dialup, 348))
        return false;
    const void *service = dialup->qt_metacast("com.quorin.skylarkdialer.plugin.IDialupUIService");
    return !log.isMissing(service, 350);
}

void NetInfoRecordUIPlugin::OnDestroy()
{
    const Log::Operation log(Log::start, Log::netInfoRecordUIPlugin, __func__);
    log.entry(487);
    ConnectionHistoryDlg::Destroy();
    NetInfoRecordLogic::Destroy();
    log.exit(490);
}

void NetInfoRecordUIPlugin::UnSDKRegisterEvent()
{
    Log::line("%s: %s called", Log::netInfoRecordUIPlugin, __func__);
    Log::line("%s: %s exit", Log::netInfoRecordUIPlugin, __func__);
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
