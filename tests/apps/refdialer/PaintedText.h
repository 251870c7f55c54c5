// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>

#include <vector>

class QWidget;

/// A text that a widget draws by itself, where it stands and the part of that which is seen.
struct PaintedText {
    QString text;
    QRectF place;
    QRectF seen;
};

/// Those of the widget without the widgets in it. One that another one is drawn over is not seen.
std::vector<PaintedText> paintedTexts(const QWidget &widget);
