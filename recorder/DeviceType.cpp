// SPDX-License-Identifier: MIT
#include "DeviceType.h"

#include <fstream>

namespace recorder
{

std::string deviceTypeIn(const std::string &folder, int index, const std::string &name)
{
    const std::string typeKey = "DEVTYPE=";
    const std::string ownIndex = "IFINDEX=" + std::to_string(index);
    std::string type;
    bool isSame = false;
    std::ifstream properties(folder + '/' + name + "/uevent");
    for (std::string line; std::getline(properties, line);) {
        if (line.rfind(typeKey, 0) == 0)
            type = line.substr(typeKey.size());
        isSame |= line == ownIndex;
    }
    return isSame ? type : std::string();
}

} // namespace recorder
