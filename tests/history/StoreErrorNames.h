// SPDX-License-Identifier: MIT
#pragma once

#include "history/Result.h"

/// The kind's name, for messages between processes and in failed checks.
inline const char *nameOf(history::StoreError::Kind kind)
{
    using Kind = history::StoreError::Kind;
    switch (kind) {
    case Kind::CannotOpen:
        return "CannotOpen";
    case Kind::NotAStore:
        return "NotAStore";
    case Kind::NewerStore:
        return "NewerStore";
    case Kind::Damaged:
        return "Damaged";
    case Kind::Locked:
        return "Locked";
    case Kind::WriteFailed:
        return "WriteFailed";
    case Kind::BadRecord:
        return "BadRecord";
    case Kind::NoSuchRecord:
        return "NoSuchRecord";
    }
    return "unknown";
}
