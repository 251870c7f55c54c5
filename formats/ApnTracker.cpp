// SPDX-License-Identifier: MIT
#include "ApnTracker.h"

#include <algorithm>
#include <tuple>

namespace formats
{

namespace
{

/// More modems than this do not dial at once; what is older is left over from
/// dialling that failed without a word.
constexpr std::size_t mostUnclaimedChats = 64;

} // namespace

void ApnTracker::pppdNames(std::int64_t pppd, const std::string &apn)
{
    Dialler &dialler = m_diallers[pppd];
    dialler.apn = apn;
    dialler.isNamedByItself = true;
}

void ApnTracker::chatSends(std::int64_t chat, const std::string &apn)
{
    put({chat, apn, ++m_turn, false});
}

void ApnTracker::chatFails(std::int64_t chat)
{
    const auto known = find(chat);
    put({chat, known == m_chats.end() ? std::string() : known->apn, ++m_turn, true});
}

void ApnTracker::scriptFails(std::int64_t pppd)
{
    auto chat = best(pppd, true);
    if (chat == m_chats.end()) {
        chat = best(pppd, false);
        // Rather leave a chat that failed than take another modem's away.
        if (chat != m_chats.end() && !mayBeOf(pppd, m_diallers[pppd], *chat))
            chat = m_chats.end();
    }
    if (chat != m_chats.end())
        m_chats.erase(chat);
    disconnects(pppd);
}

void ApnTracker::connects(std::int64_t pppd)
{
    Dialler &dialler = m_diallers[pppd];
    const auto chat = best(pppd, false);
    const bool isClaimed =
        chat != m_chats.end() && (!dialler.isNamedByItself || chat->apn == dialler.apn);
    if (isClaimed) {
        dialler.apn = chat->apn;
        m_chats.erase(chat);
    }
    disconnects(pppd);
}

void ApnTracker::disconnects(std::int64_t pppd)
{
    m_diallers[pppd].lastTurn = ++m_turn;
}

void ApnTracker::exits(std::int64_t pppd)
{
    m_diallers.erase(pppd);
}

std::string ApnTracker::apnOf(std::int64_t pppd) const
{
    const auto dialler = m_diallers.find(pppd);
    return dialler == m_diallers.end() ? std::string() : dialler->second.apn;
}

ApnTracker::Chats::iterator ApnTracker::find(std::int64_t chat)
{
    return std::find_if(m_chats.begin(), m_chats.end(),
                        [chat](const Chat &known) { return known.pid == chat; });
}

void ApnTracker::put(Chat chat)
{
    const auto earlier = find(chat.pid);
    if (earlier != m_chats.end())
        m_chats.erase(earlier);
    else if (m_chats.size() == mostUnclaimedChats)
        m_chats.erase(m_chats.begin());
    m_chats.push_back(std::move(chat));
}

ApnTracker::Chats::iterator ApnTracker::best(std::int64_t pppd, bool failed)
{
    const Dialler &dialler = m_diallers[pppd];
    // The lower the better: the APN of before, then the nearest process id above
    // pppd's (a script's chat may share its id), then the most recent.
    const auto rank = [&](const Chat &chat) {
        const bool isAbove = chat.pid >= pppd;
        return std::make_tuple(dialler.apn.empty() || chat.apn != dialler.apn, !isAbove,
                               isAbove ? chat.pid : 0, -chat.turn);
    };
    auto found = m_chats.end();
    for (auto chat = m_chats.begin(); chat != m_chats.end(); ++chat) {
        const bool isCandidate = chat->hasFailed == failed && chat->turn > dialler.lastTurn;
        if (isCandidate && (found == m_chats.end() || rank(*chat) < rank(*found)))
            found = chat;
    }
    return found;
}

bool ApnTracker::mayBeOf(std::int64_t pppd, const Dialler &dialler, const Chat &chat) const
{
    return dialler.apn.empty() ? chat.pid >= pppd : chat.apn == dialler.apn;
}

} // namespace formats
