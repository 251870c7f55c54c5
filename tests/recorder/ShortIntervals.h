// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/ConnectionRecorder.h"

/// Many times a second what a recorder does once: a test waits for it.
constexpr recorder::RecorderIntervals shortIntervals = {std::chrono::milliseconds(10),
                                                        std::chrono::milliseconds(20)};
