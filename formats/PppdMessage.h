// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace formats
{

/// What a message of pppd, or of the chat program that it dials with, says
/// about connections.
struct PppdMessage {
    enum class Kind {
        Connect,      ///< the line is up; text is the interface
        LocalAddress, ///< the network is up
        ConnectTime,  ///< the line is down again; seconds
        ByteCounts,   ///< follows ConnectTime; sent and received
        Ending,       ///< why the line goes down; text, as the store keeps it
        ScriptFailed, ///< the dialling failed
        Exit,         ///< the process ends
        PppdApn,      ///< pppd's own word for its APN; text
        ChatApn,      ///< chat tells the modem the APN; text
        ChatFailed,   ///< chat gives up
    };

    Kind kind;
    std::string text;
    /// Numbers that the store cannot keep are -1.
    std::int64_t seconds = 0;
    std::int64_t sent = 0;
    std::int64_t received = 0;
};

/// Whether it tells of a connection as such, not only of its dialling.
bool isOfConnection(const PppdMessage &message);

/// Nothing if the message says nothing of the kind. Texts come out as clean UTF-8.
std::optional<PppdMessage> parsePppdMessage(std::string_view message);

} // namespace formats
