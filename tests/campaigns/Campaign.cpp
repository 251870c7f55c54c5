// SPDX-License-Identifier: MIT
#include "Campaign.h"

#include <QtGlobal>

namespace campaign
{

int count(int shortForm)
{
    bool isNumber = false;
    const int asked = qEnvironmentVariable("NETINFORECORD_COUNT").toInt(&isNumber);
    return isNumber ? asked : shortForm;
}

std::uint64_t seed(std::uint64_t usual)
{
    bool isNumber = false;
    const quint64 asked = qEnvironmentVariable("NETINFORECORD_SEED").toULongLong(&isNumber);
    const std::uint64_t seed = isNumber ? asked : usual;
    qInfo("NETINFORECORD_SEED=%llu", static_cast<unsigned long long>(seed));
    return seed;
}

} // namespace campaign
