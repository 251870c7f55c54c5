// SPDX-License-Identifier: MIT
#pragma once

namespace refdialer
{

/// Whether the user is about to decide on what the history shows, which must stay the same
/// then: a menu or a question is open, or a button of the mouse is down.
bool isUserDeciding();

} // namespace refdialer
