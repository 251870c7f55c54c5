// SPDX-License-Identifier: MIT
#pragma once

#include "history/Connection.h"

#include <memory>
#include <string>

namespace formats
{

/// A connection, finished or not, on its way into an object.
struct Exported {
    const history::ConnectionBase &connection;
    const history::Connection *finished;
    const history::OpenConnection *running;
    const std::string *machine; ///< null in a document of one machine
};

/// Writes connections as objects, whose members are on a line each or all on one.
class JsonObject
{
public:
    enum class Layout { Indented, Compact };

    explicit JsonObject(Layout layout);
    ~JsonObject();
    JsonObject(const JsonObject &) = delete;
    JsonObject &operator=(const JsonObject &) = delete;

    /// The members, behind the brace.
    void add(const Exported &exported, std::string &text) const;

private:
    class Members;
    const std::unique_ptr<const Members> m_members;
};

} // namespace formats
