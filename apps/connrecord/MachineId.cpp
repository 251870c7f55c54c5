// SPDX-License-Identifier: MIT
#include "MachineId.h"

#include <systemd/sd-id128.h>

#include <array>
#include <system_error>

namespace connrecord
{

namespace
{

/// Of this program, for ever: with another one, each machine would be another one.
constexpr sd_id128_t applicationId =
    SD_ID128_MAKE(ff, 67, 79, 24, d3, 6b, 4e, c7, 9d, 56, 11, b3, 4d, 02, c7, 9e);

} // namespace

std::string machineId()
{
    sd_id128_t id = SD_ID128_NULL;
    const int result = sd_id128_get_machine_app_specific(applicationId, &id);
    if (result < 0)
        throw std::system_error(-result, std::generic_category());
    std::array<char, SD_ID128_STRING_MAX> text = {};
    return sd_id128_to_string(id, text.data());
}

} // namespace connrecord
