// SPDX-License-Identifier: MIT
#include "Store.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace history
{

namespace
{

std::string environmentValue(const char *name)
{
    const char *const value = std::getenv(name);
    return value ? value : "";
}

std::filesystem::path homeFolder()
{
    const std::string home = environmentValue("HOME");
    if (!home.empty())
        return home;
    const passwd *const user = getpwuid(getuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

std::filesystem::path dataFolder()
{
    const std::filesystem::path folder = environmentValue("XDG_DATA_HOME");
    // A relative path there is to be ignored, as the base directory rules have it.
    return folder.is_absolute() ? folder : homeFolder() / ".local" / "share";
}

} // namespace

std::string Store::defaultPath()
{
    const std::string named = environmentValue("NETINFO_STORE");
    return named.empty() ? (dataFolder() / "refdialer" / "connections.db").string() : named;
}

} // namespace history
