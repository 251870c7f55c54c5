// SPDX-License-Identifier: MIT
#pragma once

/// How many things a test takes to see that many of them are no burden: fewer under the
/// sanitizers, which make each some ten times as slow.
constexpr int many(int count)
{
#ifdef SANITIZED
    return count / 10;
#else
    return count;
#endif
}
