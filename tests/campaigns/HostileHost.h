// SPDX-License-Identifier: MIT
#pragma once

#include "Campaign.h"
#include "DialupContainer.h"
#include "ExpectedHistory.h"
#include "LoadedPlugin.h"
#include "ScriptedHost.h"

#include <QDebug>
#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <algorithm>
#include <memory>
#include <vector>

class QMenu;

/// A host without manners: it does to the loaded plug-in whatever a host can do,
/// in any order, and does it from inside the plug-in's questions and menus too.
/// After every step it compares what is there with what should be.
class HostileHost
{
public:
    explicit HostileHost(std::uint64_t seed);
    ~HostileHost();
    HostileHost(const HostileHost &) = delete;
    HostileHost &operator=(const HostileHost &) = delete;

    void step();
    /// What differs from what should be; empty while nothing does.
    QString complaint() const { return m_complaint; }
    /// The last steps, the innermost last.
    QStringList trace() const { return m_trace; }

    int steps() const { return m_steps; }
    int questions() const { return m_questions; }
    int menus() const { return m_menus; }
    int summaries() const { return m_summaries; }
    /// How often the statistics were shown, and how often they had bytes to show.
    int statisticsShown() const { return m_statistics; }
    int statisticsWithBytes() const { return m_countedBytes; }

private:
    struct Action {
        const char *name;
        int weight;
        void (HostileHost::*run)();
    };
    static const std::vector<Action> &actions();
    const Action &anyAction();
    void run(const Action &action);
    void runSomeWithin();

    // What the host asks of the plug-in.
    void loadAnew();
    void replaceRoot();
    void startOver();
    void init();
    void showWindow();
    void doModal();
    void fitSize();
    void hide();
    void changeLanguage();
    void applyTexts();
    void suppressSummaries();
    void notifyStatus();
    void notifyUnknown();
    void end();
    void endTwice();
    void callOnDestroy();
    void doWhileSettingIsAsked();

    // What the host does to its own windows, and to the plug-in's.
    void destroyArea();
    void destroyMainWindow();
    void destroyContainer();
    void sortRows();
    void hideRow();
    void handleEvents();
    void paint();

    // What the user does.
    void select();
    void deleteSelected();
    void deleteAll();
    void pressDelete();
    void openMenu();
    void whileMenuIsOpen();
    void pressInMenu(QMenu &menu);
    void clickSummary();
    void closeSummary();

    // What the user does with the statistics, where the plug-in has them.
    void clickStatistics();
    void chooseInStatistics();
    void clickStatisticsAway();
    void closeStatistics();
    void destroyStatistics();

    // What happens meanwhile, and how things stand from now on.
    void recordConnection();
    void removeElsewhere();
    void changeAnswers();
    void changeWindows();

    int answer(const scripted::MessageBox &box);
    void noteParent(QWidget *parent);
    void destroy(QPointer<QWidget> &widget);
    void invokeSlot(const char *slot);
    void publishRecords();
    void setSetting(const char *value);
    QRect anyRect();

    void compare();
    template <typename Value>
    static bool areEqual(const Value &a, const Value &b)
    {
        return a == b;
    }
    /// Qt compares empty lists through null pointers, which is undefined.
    static bool areEqual(const QVector<int> &a, const QVector<int> &b)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }
    template <typename Value>
    void expect(const char *what, const Value &is, const Value &shouldBe);
    QTableWidget *table() const;
    QWidget *summary() const;
    static QWidget *statistics();
    void compareStatistics(int monthsAgo);
    QString statisticsValue(const char *label) const;
    QVector<int> rowsOnScreen() const;
    QVector<int> selectedKeys() const;

    campaign::Random m_random;
    scripted::DialupContainer m_container;
    ExpectedHistory m_expected;
    NumberedSdk m_sdk;
    QHash<int, _KORA_ST_CONNRECORD> m_records;
    QHash<int, _KORA_ST_CONNRECORD> m_everRecorded;
    int m_lastKey = 0;
    std::unique_ptr<LoadedPlugin> m_plugin;
    QPointer<QWidget> m_area;
    QPointer<QWidget> m_mainWindow;
    QRect m_lastRect;
    int m_depth = 0;
    int m_steps = 0;
    int m_questions = 0;
    int m_menus = 0;
    int m_summaries = 0;
    int m_settings = 0;
    int m_statistics = 0;
    int m_countedBytes = 0;
    QString m_complaint;
    QStringList m_trace;
};

template <typename Value>
void HostileHost::expect(const char *what, const Value &is, const Value &shouldBe)
{
    if (areEqual(is, shouldBe) || !m_complaint.isEmpty())
        return;
    QDebug(&m_complaint) << "Step" << m_steps << what << "is" << is << "and should be" << shouldBe;
}
