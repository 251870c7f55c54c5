// SPDX-License-Identifier: MIT
#pragma once

/// How often this process has asked a disk to write down a file's contents.
long syncsSoFar();
