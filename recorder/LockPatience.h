// SPDX-License-Identifier: MIT
#pragma once

#include "history/Result.h"

#include <cstdint>
#include <optional>

namespace recorder
{

/// A store is locked for moments by every program that writes into it, which is worth
/// telling only where it lasts.
class LockPatience
{
public:
    /// Whether this error, met at that time on the clock that never jumps, is to be told.
    bool isWorthTelling(const history::StoreError &error, std::int64_t milliseconds)
    {
        if (error.kind != history::StoreError::Kind::Locked)
            return true;
        m_lockedSince = m_lockedSince.value_or(milliseconds);
        return milliseconds - *m_lockedSince >= patience;
    }
    /// It could be written.
    void renew() { m_lockedSince.reset(); }

private:
    static constexpr std::int64_t patience = 5000; ///< as its sentence says

    std::optional<std::int64_t> m_lockedSince;
};

} // namespace recorder
