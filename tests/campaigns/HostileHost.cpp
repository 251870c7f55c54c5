// SPDX-License-Identifier: MIT
#include "HostileHost.h"

#include <QApplication>
#include <QLoggingCategory>

#include <vector>

using scripted::Host;

namespace
{

constexpr int deepest = 2;
constexpr int longestTrace = 60;

} // namespace

HostileHost::HostileHost(std::uint64_t seed)
    : m_random(seed)
    , m_plugin(std::make_unique<LoadedPlugin>())
{
    Host &host = Host::instance();
    host.reset();
    host.container = &m_container;
    setSetting("true");
    host.answer = [this](const scripted::MessageBox &box) { return answer(box); };
    host.removeStatus = [this](int index) {
        const int status = m_sdk.remove(index);
        publishRecords();
        return status;
    };
    host.handedOut = [this] { m_sdk.handOut(); };
    host.settingAsked = [this] { doWhileSettingIsAsked(); };
    replaceRoot();
}

HostileHost::~HostileHost()
{
    m_plugin.reset();
    delete m_area;
    delete m_mainWindow;
    Host::instance().reset();
    QLoggingCategory::setFilterRules(QString());
}

const std::vector<HostileHost::Action> &HostileHost::actions()
{
    static const std::vector<Action> all = {
        {"load the library anew", 1, &HostileHost::loadAnew},
        {"replace the root object", 1, &HostileHost::replaceRoot},
        {"start over", 8, &HostileHost::startOver},
        {"Init", 6, &HostileHost::init},
        {"ShowWindow", 8, &HostileHost::showWindow},
        {"DoModal", 1, &HostileHost::doModal},
        {"FitSize", 4, &HostileHost::fitSize},
        {"Hide", 2, &HostileHost::hide},
        {"ChangeLang", 2, &HostileHost::changeLanguage},
        {"event 1024", 3, &HostileHost::applyTexts},
        {"event 2384", 1, &HostileHost::suppressSummaries},
        {"event 1536", 14, &HostileHost::notifyStatus},
        {"an unknown event", 1, &HostileHost::notifyUnknown},
        {"OnDestroy", 1, &HostileHost::end},
        {"OnDestroy twice", 1, &HostileHost::endTwice},
        {"destroy the area", 1, &HostileHost::destroyArea},
        {"destroy the main window", 1, &HostileHost::destroyMainWindow},
        {"destroy the container", 1, &HostileHost::destroyContainer},
        {"sort the rows", 3, &HostileHost::sortRows},
        {"hide a row", 2, &HostileHost::hideRow},
        {"handle events", 4, &HostileHost::handleEvents},
        {"paint", 1, &HostileHost::paint},
        {"select", 20, &HostileHost::select},
        {"delete what is selected", 12, &HostileHost::deleteSelected},
        {"delete all", 3, &HostileHost::deleteAll},
        {"press Delete", 4, &HostileHost::pressDelete},
        {"open the menu", 12, &HostileHost::openMenu},
        {"click the summary away", 3, &HostileHost::clickSummary},
        {"close the summary", 1, &HostileHost::closeSummary},
        {"ask for the statistics", 4, &HostileHost::clickStatistics},
        {"choose in the statistics", 4, &HostileHost::chooseInStatistics},
        {"click the statistics away", 1, &HostileHost::clickStatisticsAway},
        {"close the statistics", 1, &HostileHost::closeStatistics},
        {"destroy the statistics", 1, &HostileHost::destroyStatistics},
        {"record a connection", 20, &HostileHost::recordConnection},
        {"remove a record elsewhere", 3, &HostileHost::removeElsewhere},
        {"change the answers", 6, &HostileHost::changeAnswers},
        {"change the windows", 3, &HostileHost::changeWindows},
    };
    return all;
}

const HostileHost::Action &HostileHost::anyAction()
{
    int sum = 0;
    for (const Action &action : actions())
        sum += action.weight;
    int rest = m_random.below(sum);
    const Action *chosen = actions().data();
    while (rest >= chosen->weight)
        rest -= (chosen++)->weight;
    return *chosen;
}

void HostileHost::step()
{
    Host::instance().calls.clear();
    Host::instance().translated.clear();
    Host::instance().messageBoxes.clear();
    run(anyAction());
}

void HostileHost::run(const Action &action)
{
    ++m_steps;
    m_trace.append(QString(2 * m_depth, QLatin1Char(' ')) + QLatin1String(action.name));
    if (m_trace.size() > longestTrace)
        m_trace.removeFirst();
    (this->*action.run)();
    compare();
}

/// Goes on while the plug-in waits for an answer.
void HostileHost::runSomeWithin()
{
    if (m_depth == deepest)
        return;
    ++m_depth;
    for (int rest = m_random.below(4); rest > 0 && m_complaint.isEmpty(); --rest)
        run(anyAction());
    --m_depth;
}

/// Whatever is open, and even from within the plug-in's own code.
void HostileHost::loadAnew()
{
    m_plugin->unload();
    replaceRoot();
}

void HostileHost::replaceRoot()
{
    delete m_plugin->root();
    m_plugin->root();
    m_expected.replaceRoot();
    m_lastRect = QRect();
}

/// Without a table there is little that a step can do.
void HostileHost::startOver()
{
    if (m_expected.hasTable())
        return;
    end();
    replaceRoot();
    changeWindows();
    init();
    showWindow();
}

void HostileHost::init()
{
    m_expected.init();
    m_plugin->ui()->Init();
}

QRect HostileHost::anyRect()
{
    const QRect rects[] = {QRect(),
                           QRect(0, 0, 0, 0),
                           QRect(10, 20, 500, 300),
                           QRect(0, 0, 760, 400),
                           QRect(QPoint(50, 50), QPoint(-20, -30)),
                           QRect(-100, -200, 90, 1),
                           QRect(3, 3, 1, 700)};
    return m_random.oneOf(rects);
}

void HostileHost::noteParent(QWidget *parent)
{
    if (!m_expected.hasTable())
        return;
    QWidget *const container = table()->parentWidget();
    expect("the container's parent", container->parentWidget(), parent);
    // A smaller one grows to what the layout needs.
    if (parent && m_lastRect.width() >= 500 && m_lastRect.height() >= 300)
        expect("the container's place", container->geometry(), m_lastRect);
}

void HostileHost::showWindow()
{
    QWidget *const parents[] = {nullptr, m_mainWindow, m_area, m_area, m_area};
    QWidget *const parent = m_random.oneOf(parents);
    QRect rect = anyRect();
    if (m_expected.hasWindow())
        m_lastRect = rect;
    expect("ShowWindow", m_plugin->ui()->ShowWindow(parent, rect), true);
    noteParent(parent);
}

void HostileHost::doModal()
{
    expect("DoModal", m_plugin->ui()->DoModal(), 0);
    noteParent(nullptr);
}

void HostileHost::fitSize()
{
    QRect rect = anyRect();
    if (m_expected.hasWindow())
        m_lastRect = rect;
    m_plugin->ui()->FitSize(rect);
    if (m_expected.hasTable())
        noteParent(table()->parentWidget()->parentWidget());
}

void HostileHost::hide()
{
    m_plugin->ui()->Hide();
    if (m_expected.hasTable())
        expect("the container is hidden", table()->parentWidget()->isHidden(), true);
}

void HostileHost::changeLanguage()
{
    const bool isEmpty = m_random.once(3);
    const QString language = isEmpty ? QString() : QStringLiteral("de");
    expect("ChangeLang", m_plugin->ui()->ChangeLang(language), !isEmpty);
    Host::instance().textPrefix = QString::number(m_random.below(100)) + QLatin1Char(':');
    m_expected.answers.textPrefix = Host::instance().textPrefix;
}

void HostileHost::applyTexts()
{
    m_expected.applyTexts();
    m_plugin->notify()->Notify(1024, 0, 0);
}

void HostileHost::suppressSummaries()
{
    m_expected.suppressSummaries();
    m_plugin->notify()->Notify(2384, 0, 0);
    // It lasts as long as the root object; without a new one now and then the
    // rest of the campaign would see no reload.
    if (m_random.once(2))
        replaceRoot();
}

void HostileHost::notifyStatus()
{
    const unsigned int statuses[] = {0, 0, 0, 1, 1, 1, 2, 0xffffffffU};
    const unsigned int status = m_random.oneOf(statuses);
    const int summaries = m_expected.summaries();
    const bool isToAsk = m_expected.connectionStatus(status);
    const auto asked = m_settings;
    expect("Notify", m_plugin->notify()->Notify(1536, status, 7), 0U);
    expect("Notify asks for the setting", m_settings - asked, isToAsk ? 1 : 0);
    m_summaries += m_expected.summaries() - summaries;
}

/// What a host may do in the middle of the plug-in's work, but not to its root object.
void HostileHost::doWhileSettingIsAsked()
{
    ++m_settings;
    void (HostileHost::*const events[])() = {
        &HostileHost::callOnDestroy,     &HostileHost::destroyArea,
        &HostileHost::destroyMainWindow, &HostileHost::destroyContainer,
        &HostileHost::closeSummary,      &HostileHost::destroyStatistics,
        &HostileHost::recordConnection,  &HostileHost::removeElsewhere,
        &HostileHost::changeAnswers,     &HostileHost::clickStatistics};
    if (m_random.once(3))
        (this->*m_random.oneOf(events))();
    m_expected.endConnection();
}

void HostileHost::notifyUnknown()
{
    const unsigned int events[] = {0, 1, 1025, 1537, 2383, 0xffffffffU};
    expect("Notify", m_plugin->notify()->Notify(m_random.oneOf(events), 1, 1), 0U);
}

void HostileHost::callOnDestroy()
{
    m_expected.end();
    static_cast<IDestroyEvent *>(m_plugin->ui())->OnDestroy();
}

void HostileHost::end()
{
    callOnDestroy();
    // What comes next finds no window, until the host asks for a new root.
    if (m_random.once(2))
        replaceRoot();
}

void HostileHost::endTwice()
{
    static_cast<IDestroyEvent *>(m_plugin->ui())->OnDestroy();
    end();
}
