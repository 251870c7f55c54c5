// SPDX-License-Identifier: MIT
#include "MachineId.h"

#include <systemd/sd-id128.h>

#include <array>
#include <system_error>

namespace common
{

namespace
{

/// Of these programs, for ever: with another one, each machine would be another one.
constexpr sd_id128_t applicationId = {{0xff, 0x67, 0x79, 0x24, 0xd3, 0x6b, 0x4e, 0xc7, 0x9d, 0x56,
                                       0x11, 0xb3, 0x4d, 0x02, 0xc7, 0x9e}};

} // namespace

std::string machineId()
{
    sd_id128_t id = {};
    const int result = sd_id128_get_machine_app_specific(applicationId, &id);
    if (result < 0)
        throw std::system_error(-result, std::generic_category());
    std::array<char, SD_ID128_STRING_MAX> text = {};
    return sd_id128_to_string(id, text.data());
}

} // namespace common
