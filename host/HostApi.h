// SPDX-License-Identifier: MIT
#pragma once

/// Marks what a host's libraries give to the plug-in, so that both sides may
/// be compiled with hidden symbols.
#define HOST_API __attribute__((visibility("default")))
