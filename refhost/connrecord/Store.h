// SPDX-License-Identifier: MIT
#pragma once

#include "Failure.h"
#include "StatisticsStore.h"

#include <utility>

namespace refhost
{

/// The exit code that tells a program what kind of error the store has met.
inline ExitCode exitCodeOf(const StoreError &error)
{
    const bool isRefused = error.kind == StoreError::Kind::BadRecord ||
                           error.kind == StoreError::Kind::NoSuchRecord ||
                           error.kind == StoreError::Kind::SumTooLarge;
    return isRefused ? ExitCode::Refused : ExitCode::Store;
}

/// What the store gives, or its error as a Failure.
template <typename T>
T valueOrFailure(Result<T> result)
{
    if (!result)
        throw Failure(exitCodeOf(result.error()), result.error().message);
    return std::move(result.value());
}

} // namespace refhost
