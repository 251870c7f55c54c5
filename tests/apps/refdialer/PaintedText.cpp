// SPDX-License-Identifier: MIT
#include "PaintedText.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace
{

/// Notes texts and draws nothing.
class TextEngine : public QPaintEngine
{
public:
    TextEngine()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState & /*state*/) override {}
    void drawPixmap(const QRectF & /*place*/, const QPixmap & /*pixmap*/,
                    const QRectF & /*part*/) override
    {
    }
    void drawPolygon(const QPointF * /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override
    {
    }
    void drawPath(const QPainterPath & /*path*/) override {}
    void drawRects(const QRectF * /*rects*/, int /*count*/) override {}
    void drawLines(const QLineF * /*lines*/, int /*count*/) override {}
    void drawTextItem(const QPointF &start, const QTextItem &item) override
    {
        // The height of a letter, whatever its font has above and below.
        const QRectF place(start.x(), start.y() - item.ascent() / 2, item.width(),
                           item.ascent() / 2);
        const QRectF drawn = painter()->transform().mapRect(place);
        texts.push_back({item.text(), drawn,
                         painter()->hasClipping() ? drawn & painter()->clipBoundingRect() : drawn});
    }

    std::vector<PaintedText> texts;
};

class TextDevice : public QPaintDevice
{
public:
    explicit TextDevice(const QWidget &widget)
        : m_widget(widget)
    {
    }

    QPaintEngine *paintEngine() const override { return &m_engine; }
    const std::vector<PaintedText> &texts() const { return m_engine.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_widget.width();
        case PdmHeight:
            return m_widget.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_widget.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_widget.logicalDpiY();
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const QWidget &m_widget;
    mutable TextEngine m_engine;
};

} // namespace

std::vector<PaintedText> paintedTexts(const QWidget &widget)
{
    TextDevice device(widget);
    const_cast<QWidget &>(widget).render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    std::vector<PaintedText> texts = device.texts();
    const QRectF whole = widget.rect();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts[i].seen &= whole;
        for (std::size_t later = i + 1; later < texts.size(); ++later) {
            if (texts[i].place.intersects(texts[later].place))
                texts[i].seen = QRectF();
        }
    }
    return texts;
}
