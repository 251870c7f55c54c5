// SPDX-License-Identifier: MIT
#include "DialupService.h"

namespace refhost
{

DialupService::~DialupService() = default;

} // namespace refhost
