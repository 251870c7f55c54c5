// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace refdialer
{

class LineState;

/// Says why connections are not recorded as they should be, as long as that is so. It stands
/// below the history, which therefore stays in its place.
class ProblemLine : public QLabel
{
public:
    /// The state must outlive the line.
    explicit ProblemLine(const LineState &state, QWidget *parent = nullptr);
};

} // namespace refdialer
