// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>

namespace history
{

/// The visitor, what it throws being kept: a Result has no place for that of others.
template <typename Shown>
std::function<void(const Shown &)> keeping(std::exception_ptr &thrown,
                                           const std::function<void(const Shown &)> &visitor)
{
    if (!visitor)
        return {};
    return [&thrown, &visitor](const Shown &connection) {
        try {
            visitor(connection);
        } catch (...) {
            thrown = std::current_exception();
            throw;
        }
    };
}

} // namespace history
