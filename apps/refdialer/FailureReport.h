// SPDX-License-Identifier: MIT
#pragma once

namespace refdialer
{

struct Failure;

/// Tells the user what went wrong, on standard error.
void reportInTerminal(const Failure &failure);

/// The same in a message box; returns when the user has closed it.
void reportInWindow(const Failure &failure);

} // namespace refdialer
