// SPDX-License-Identifier: MIT
#pragma once

#include "apps/refdialer/StateLine.h"

#include <QLabel>
#include <QStringList>

/// What the rows above the history show, one in a line, their columns apart.
inline QString shownText(const refdialer::StateLine &line)
{
    QStringList rows;
    for (const QLabel *const label : line.findChildren<QLabel *>()) {
        if (label->isHidden())
            continue;
        // Each row begins with a label of its own in the first column.
        const bool isFirst = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        rows.append((isFirst ? "\n" : " | ") + label->text());
    }
    return rows.join(QString()).mid(1);
}
