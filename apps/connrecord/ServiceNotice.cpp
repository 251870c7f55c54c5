// SPDX-License-Identifier: MIT
#include "ServiceNotice.h"

#include <systemd/sd-daemon.h>

namespace connrecord
{

namespace
{

constexpr int keepEnvironment = 0;

} // namespace

void tellReady()
{
    sd_notify(keepEnvironment, "READY=1");
}

void tellStatus(const std::string &sentence)
{
    sd_notify(keepEnvironment, ("STATUS=" + sentence).c_str());
}

void tellStopping()
{
    // What it did until now is shown no longer.
    sd_notify(keepEnvironment, "STOPPING=1\nSTATUS=");
}

} // namespace connrecord
