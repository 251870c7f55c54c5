// SPDX-License-Identifier: MIT
#pragma once

namespace refhost
{

/// What the four functions of KoraStatistics.h answer. Every call that answers
/// anything but KoraOk writes the reason, one line beginning "refhost.sdk: ",
/// to standard error. They may be called from any thread, one call at a time is
/// worked off; indices mean places in the list handed out last, to whichever thread.
enum KoraStatus : int {
    KoraOk = 0,
    KoraBadArgument = 1,  ///< a null pointer where a place for the answer is needed
    KoraNoSuchRecord = 2, ///< no list yet, an index past it, a record removed already,
                          ///< an empty history
    KoraCannotOpen = 3,   ///< no permission, no folder, read-only disk, no memory
    KoraNotAStore = 4,    ///< the file is something else; it was left untouched
    KoraNewerStore = 5,   ///< written by a newer version; it was left untouched
    KoraDamaged = 6,      ///< the file is a store, but its contents are broken
    KoraLocked = 7,       ///< another process kept the store locked for too long
    KoraWriteFailed = 8,  ///< disk full or read-only; nothing was removed
};

} // namespace refhost
