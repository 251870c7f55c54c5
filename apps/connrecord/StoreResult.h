// SPDX-License-Identifier: MIT
#pragma once

#include "Failure.h"
#include "history/Store.h"

#include <utility>

namespace connrecord
{

/// The exit code that tells a program what kind of error the store has met.
inline ExitCode exitCodeOf(const history::StoreError &error)
{
    const bool isRefused = error.kind == history::StoreError::Kind::BadRecord ||
                           error.kind == history::StoreError::Kind::NoSuchRecord;
    return isRefused ? ExitCode::Refused : ExitCode::Store;
}

/// What the store gives, or its error as a Failure.
template <typename T>
T valueOrFailure(history::Result<T> result)
{
    if (!result)
        throw Failure(exitCodeOf(result.error()), result.error().message);
    return std::move(result.value());
}

} // namespace connrecord
