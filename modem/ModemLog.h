// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace modem
{

/// What happens on the bus.
Q_DECLARE_LOGGING_CATEGORY(log)

} // namespace modem
