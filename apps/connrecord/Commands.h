// SPDX-License-Identifier: MIT
#pragma once

#include "Selection.h"
#include "history/Store.h"

#include <optional>
#include <string>
#include <vector>

namespace connrecord
{

/// The commands of the program, with their arguments as the user wrote them.
/// Each one writes its result to standard output and throws Failure if it
/// cannot do what is asked; the store is then as it was, unless it is the
/// result alone that could not be written.

struct CommonRequest {
    std::string storePath;
    bool json = false;
};

struct AddRequest {
    std::string profile;
    std::string start;
    std::string end;
    std::string uploadedBytes;
    std::string downloadedBytes;
    std::optional<std::string> connectedSeconds; ///< end minus start without it
    std::string interfaceName;
};

void listConnections(const CommonRequest &common, const SelectionRequest &selection);
/// As a table, or as JSON.
void showConnections(const CommonRequest &common,
                     const std::vector<history::Connection> &connections);
void addConnection(const CommonRequest &common, const AddRequest &request);

} // namespace connrecord
