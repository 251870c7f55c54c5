// SPDX-License-Identifier: MIT
#pragma once

#include "HistorySort.h"

#include <QByteArray>
#include <QSize>

class QWidget;

namespace refdialer
{

/// How the user has set up the window, from one run to the next.
struct WindowView {
    QByteArray geometry; ///< as QWidget::saveGeometry() gives it; empty if there is none
    int page = 0;        ///< from the left
    HistoryOrder order;
};

/// Of a window that has not been set up: wide enough for the line of a plan and the columns of
/// the history.
QSize usualSizeOf(const QWidget &window);

/// As it was stored last; what is not there, or makes no sense, is as at first.
WindowView storedWindowView();

/// False if it cannot be written.
bool storeWindowView(const WindowView &view);

} // namespace refdialer
