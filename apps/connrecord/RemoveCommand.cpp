// SPDX-License-Identifier: MIT
#include "RemoveCommand.h"

#include "Complaint.h"
#include "ConnectionText.h"
#include "OptionValue.h"
#include "Output.h"
#include "StoreResult.h"
#include "formats/JsonText.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <limits>

namespace connrecord
{

namespace
{

using Connections = std::vector<history::Connection>;
using Keys = std::vector<std::int64_t>;

Keys keysOf(const std::vector<std::string> &texts)
{
    Keys keys;
    keys.reserve(texts.size());
    for (const std::string &text : texts)
        keys.push_back(optionNumber("KEY", text, std::numeric_limits<std::int64_t>::max()));
    return keys;
}

Keys keysOf(const Connections &connections)
{
    Keys keys;
    keys.reserve(connections.size());
    for (const history::Connection &connection : connections)
        keys.push_back(connection.key);
    return keys;
}

void checkRequest(const RemoveRequest &request)
{
    if (request.keys.empty() && request.selection.isAll())
        throw Failure(ExitCode::Usage, "remove needs a KEY, or --from, --to, --profile, --sim or "
                                       "--limit to say what is to be removed.");
    if (!request.keys.empty() && !request.selection.isAll())
        throw Failure(ExitCode::Usage, "remove takes KEYs or a selection, not both.");
}

/// The connections with these keys, each of which has to be there.
Connections withKeys(const Connections &connections, Keys keys, const std::string &storePath)
{
    Connections found;
    std::copy_if(connections.begin(), connections.end(), std::back_inserter(found),
                 [&keys](const history::Connection &connection) {
                     return std::find(keys.begin(), keys.end(), connection.key) != keys.end();
                 });
    for (const history::Connection &connection : found)
        keys.erase(std::remove(keys.begin(), keys.end(), connection.key), keys.end());
    if (!keys.empty())
        throw Failure(ExitCode::Refused, "The history \"" + storePath +
                                             "\" has no record with the key " +
                                             std::to_string(keys.front()) +
                                             "; nothing was removed, list the records again.");
    return found;
}

Connections connectionsToRemove(const history::Store &store, const std::string &storePath,
                                const RemoveRequest &request)
{
    Connections connections = selectedFrom(store, request.selection);
    if (request.keys.empty())
        return connections;
    return withKeys(connections, keysOf(request.keys), storePath);
}

/// Standard output is for the result.
bool agreesToRemove(const Connections &connections)
{
    std::cerr << toTable(connections).constData() << "Remove "
              << (connections.size() == 1
                      ? "this connection"
                      : "these " + std::to_string(connections.size()) + " connections")
              << "? [y/N] " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "Y" || answer == "yes";
}

void removeAll(history::Store &store, const Keys &keys, bool tellsAsJson)
{
    valueOrFailure(store.remove(keys));
    if (tellsAsJson)
        Output().write(formats::jsonText({{"removed", keys}}));
}

} // namespace

void removeConnections(const CommonRequest &common, const RemoveRequest &request)
{
    checkRequest(request);
    auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    const bool asks = !request.isAgreed && ::isatty(STDIN_FILENO) != 0;
    if (!request.keys.empty() && !request.isRehearsal && !asks)
        return removeAll(store, keysOf(request.keys), common.json);

    const Connections connections = connectionsToRemove(store, common.storePath, request);
    if (request.isRehearsal)
        return showConnections(common, connections);
    if (asks && !connections.empty() && !agreesToRemove(connections))
        throw Failure(ExitCode::Refused, "Nothing was removed.");
    removeAll(store, keysOf(connections), common.json);
}

} // namespace connrecord
