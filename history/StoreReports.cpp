// SPDX-License-Identifier: MIT
#include "StoreReports.h"

#include "StoreDatabase.h"

namespace history
{

namespace
{

template <typename Operation>
auto read(const std::string &path, Operation operation)
{
    return attempt(path, [&] {
        StoreDatabase database(path, StoreDatabase::IfMissing::ReadAsEmpty);
        return database.read(operation);
    });
}

} // namespace

Result<std::vector<ConnectionSum>> connectionSums(const std::string &storePath)
{
    return read(storePath, [](StoreTables &tables) { return tables.sums(); });
}

Result<GivenKeys> givenKeys(const std::string &storePath)
{
    return read(storePath, [](StoreTables &tables) { return tables.givenKeys(); });
}

} // namespace history
