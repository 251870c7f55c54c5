// SPDX-License-Identifier: MIT
#include "formats/ApnTracker.h"
#include "tests/Many.h"

#include <QString>
#include <QTest>

using namespace formats;

namespace
{

const std::string none;

} // namespace

/// Process ids: one modem is dialled by pppd 100, another by pppd 200.
class ApnTrackerTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_tracker = ApnTracker(); }

    void knowsNoApnWithoutAWord();
    void takesTheApnOfTheChatBefore();
    void keepsTheApnWhenTheRedialShowsNoChat();
    void takesTheNewApnOfARedial();
    void takesEachChatOnce();
    void takesTheNearestChatAboveTheProcess();
    void takesTheLastChatWhenProcessIdsHaveWrapped();
    void recognisesItsApnAmongRedialsOfTwoModems();
    void prefersTheWordOfPppdItself();
    void leavesOtherModemsTheirChatsWhenPppdNamesTheApn();
    void passesOverAChatThatFailed();
    void dropsTheChatOfAScriptThatFailed();
    void leavesAnotherModemsChatWhenItsOwnScriptFailed();
    void leavesAnotherModemsChatWhenItsOwnChatFailed();
    void passesOverChatsFromBeforeItsLastConnection();
    void forgetsAProcessThatHasEnded();
    void takesTheLastWordOfOneChat();
    void takesTheChatOfAScriptThatSharesItsProcessId();
    void staysFastWithManyChatsThatNobodyClaims();

private:
    std::string connect(std::int64_t pppd)
    {
        m_tracker.connects(pppd);
        return m_tracker.apnOf(pppd);
    }

    ApnTracker m_tracker;
};

void ApnTrackerTest::knowsNoApnWithoutAWord()
{
    QCOMPARE(m_tracker.apnOf(100), none);
    QCOMPARE(connect(100), none);
}

void ApnTrackerTest::takesTheApnOfTheChatBefore()
{
    m_tracker.chatSends(101, "a");
    QCOMPARE(connect(100), std::string("a"));
}

void ApnTrackerTest::keepsTheApnWhenTheRedialShowsNoChat()
{
    m_tracker.chatSends(101, "a");
    connect(100);
    m_tracker.disconnects(100);
    QCOMPARE(connect(100), std::string("a"));
}

void ApnTrackerTest::takesTheNewApnOfARedial()
{
    m_tracker.chatSends(101, "a");
    connect(100);
    m_tracker.disconnects(100);
    m_tracker.chatSends(120, "b");
    QCOMPARE(connect(100), std::string("b"));
}

void ApnTrackerTest::takesEachChatOnce()
{
    m_tracker.chatSends(101, "a");
    connect(100);
    QCOMPARE(connect(90), none);
}

void ApnTrackerTest::takesTheNearestChatAboveTheProcess()
{
    m_tracker.chatSends(201, "b");
    m_tracker.chatSends(101, "a");
    QCOMPARE(connect(200), std::string("b"));
    QCOMPARE(connect(100), std::string("a"));

    init();
    m_tracker.chatSends(101, "a");
    m_tracker.chatSends(201, "b");
    QCOMPARE(connect(100), std::string("a"));
    QCOMPARE(connect(200), std::string("b"));
}

void ApnTrackerTest::takesTheLastChatWhenProcessIdsHaveWrapped()
{
    m_tracker.chatSends(7, "old");
    m_tracker.chatSends(5, "new");
    QCOMPARE(connect(32000), std::string("new"));
}

void ApnTrackerTest::recognisesItsApnAmongRedialsOfTwoModems()
{
    m_tracker.chatSends(101, "a");
    m_tracker.chatSends(201, "b");
    connect(100);
    connect(200);
    m_tracker.disconnects(100);
    m_tracker.disconnects(200);
    m_tracker.chatSends(301, "b");
    m_tracker.chatSends(302, "a");
    QCOMPARE(connect(100), std::string("a"));
    QCOMPARE(connect(200), std::string("b"));
}

void ApnTrackerTest::prefersTheWordOfPppdItself()
{
    m_tracker.pppdNames(100, "own");
    m_tracker.chatSends(101, "other");
    QCOMPARE(connect(100), std::string("own"));
    m_tracker.disconnects(100);
    QCOMPARE(connect(100), std::string("own"));
}

void ApnTrackerTest::leavesOtherModemsTheirChatsWhenPppdNamesTheApn()
{
    m_tracker.pppdNames(100, "own");
    m_tracker.chatSends(101, "own");
    m_tracker.chatSends(201, "b");
    connect(100);
    // Its own chat is claimed, so that the other modem cannot take it.
    QCOMPARE(connect(90), std::string("b"));
}

void ApnTrackerTest::passesOverAChatThatFailed()
{
    m_tracker.chatSends(101, "a");
    m_tracker.chatFails(101);
    QCOMPARE(connect(100), none);
}

void ApnTrackerTest::dropsTheChatOfAScriptThatFailed()
{
    m_tracker.chatSends(101, "a");
    m_tracker.scriptFails(100);
    QCOMPARE(connect(90), none);
}

void ApnTrackerTest::leavesAnotherModemsChatWhenItsOwnScriptFailed()
{
    m_tracker.chatSends(201, "b");
    connect(200);
    m_tracker.disconnects(200);
    m_tracker.chatSends(301, "a");
    m_tracker.scriptFails(200); // its own chat had not come to the APN
    QCOMPARE(connect(100), std::string("a"));
}

void ApnTrackerTest::leavesAnotherModemsChatWhenItsOwnChatFailed()
{
    m_tracker.chatSends(205, "a"); // of pppd 100, which has dialled for a while
    m_tracker.chatSends(206, "b");
    m_tracker.chatFails(206);
    m_tracker.scriptFails(200);
    QCOMPARE(connect(100), std::string("a"));

    init();
    m_tracker.chatSends(205, "a");
    m_tracker.chatFails(206); // before it came to the APN
    m_tracker.scriptFails(200);
    QCOMPARE(connect(100), std::string("a"));
}

void ApnTrackerTest::passesOverChatsFromBeforeItsLastConnection()
{
    m_tracker.chatSends(101, "a");
    m_tracker.chatSends(150, "stale"); // of a dialler that has gone without a word
    connect(100);
    m_tracker.disconnects(100);
    QCOMPARE(connect(100), std::string("a"));
}

void ApnTrackerTest::forgetsAProcessThatHasEnded()
{
    m_tracker.chatSends(101, "a");
    connect(100);
    m_tracker.exits(100);
    QCOMPARE(connect(100), none);
}

void ApnTrackerTest::takesTheLastWordOfOneChat()
{
    m_tracker.chatSends(101, "first");
    m_tracker.chatSends(101, "second");
    QCOMPARE(connect(100), std::string("second"));
    QCOMPARE(connect(90), none);
}

void ApnTrackerTest::takesTheChatOfAScriptThatSharesItsProcessId()
{
    m_tracker.chatSends(434, "a");
    m_tracker.chatSends(500, "b");
    QCOMPARE(connect(434), std::string("a"));
    QCOMPARE(connect(500), std::string("b"));
}

void ApnTrackerTest::staysFastWithManyChatsThatNobodyClaims()
{
    // Looking through all of them each time would take many minutes.
    for (int i = 0; i < many(100000); ++i) {
        m_tracker.chatSends(1000 + i, "stale");
        m_tracker.connects(2000000 + i);
        m_tracker.chatSends(1000000 + i, "stale");
    }
    m_tracker.chatSends(5000001, "a");
    QCOMPARE(connect(5000000), std::string("a"));
}

QTEST_GUILESS_MAIN(ApnTrackerTest)

#include "tst_apntracker.moc"
