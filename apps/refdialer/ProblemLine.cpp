// SPDX-License-Identifier: MIT
#include "ProblemLine.h"

#include "LineState.h"

#include <QStyle>

namespace refdialer
{

ProblemLine::ProblemLine(const LineState &state, QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    setContentsMargins(margin, 0, margin, margin);
    // A long path in it must not keep the window from becoming narrower.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    const auto show = [this, &state] {
        setText(state.problem());
        setVisible(!state.problem().isEmpty());
    };
    connect(&state, &LineState::changed, this, show);
    show();
}

} // namespace refdialer
