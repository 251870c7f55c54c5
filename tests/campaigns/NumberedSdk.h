// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QVector>

/// The records of a statistics SDK by their keys, numbered as a caller sees them:
/// an index is a place in the list handed out last, and means the first record
/// from there on that still exists.
struct NumberedSdk {
    QVector<int> keys;   ///< in the SDK's order
    QVector<int> listed; ///< handed out last
    QSet<int> stuck;     ///< these the SDK cannot remove

    void handOut() { listed = keys; }
    /// The status: 0 for success.
    int remove(int index)
    {
        for (int place = qMax(index, 0); index >= 0 && place < listed.size(); ++place) {
            if (!keys.contains(listed[place]))
                continue;
            return stuck.contains(listed[place]) || !keys.removeOne(listed[place]) ? 6 : 0;
        }
        return 8;
    }
};
