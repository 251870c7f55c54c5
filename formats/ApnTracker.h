// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace formats
{

/// Finds out which APN each pppd process of a log connects with. A log names
/// the APN under the chat program's own process id, without saying which pppd
/// it dials for, and several modems may dial at once. To be told what happens
/// in the order of the log.
class ApnTracker
{
public:
    /// pppd itself names its APN; that outweighs every chat.
    void pppdNames(std::int64_t pppd, const std::string &apn);
    void chatSends(std::int64_t chat, const std::string &apn);
    void chatFails(std::int64_t chat);
    /// The chat that pppd had started has failed: its APN is nobody's.
    void scriptFails(std::int64_t pppd);
    /// pppd has a line; one chat's APN, if there is one, is its from now on.
    void connects(std::int64_t pppd);
    /// pppd's connection is over; what chat has said until now is not for its next.
    void disconnects(std::int64_t pppd);
    /// The process is over, its id may be another one's next.
    void exits(std::int64_t pppd);

    /// Empty if none is known.
    std::string apnOf(std::int64_t pppd) const;

private:
    /// A chat that no connection has claimed yet.
    struct Chat {
        std::int64_t pid;
        std::string apn;
        std::int64_t turn;
        bool hasFailed;
    };
    struct Dialler {
        std::string apn;
        bool isNamedByItself = false;
        std::int64_t lastTurn = 0;
    };
    using Chats = std::vector<Chat>;

    Chats::iterator find(std::int64_t chat);
    void put(Chat chat);
    Chats::iterator best(std::int64_t pppd, bool failed);
    bool mayBeOf(std::int64_t pppd, const Dialler &dialler, const Chat &chat) const;

    std::unordered_map<std::int64_t, Dialler> m_diallers;
    Chats m_chats;
    std::int64_t m_turn = 0;
};

} // namespace formats
