// SPDX-License-Identifier: MIT
#pragma once

#include "UsagePainter.h"

#include <QPixmap>
#include <QWidget>

#include <vector>

namespace refdialer
{

/// Bars of what was used, each of which can be pointed at with the mouse and chosen with the
/// mouse or the keyboard, and which a screen reader reads out. It is drawn here because the
/// charting libraries on offer are GPL, no longer developed, or not packaged for Qt 6.
class UsageChart : public QWidget
{
    Q_OBJECT

public:
    explicit UsageChart(QWidget *parent = nullptr);

    /// The current bar stays the current one where it is among them. The note stands in the
    /// place of bars.
    void setBars(const std::vector<usage::UsageBar> &bars, usage::BarUnit unit,
                 const QString &note);

    const std::vector<usage::UsageBar> &bars() const { return m_contents.bars; }
    /// -1 for none.
    int current() const { return m_contents.current; }
    void setCurrent(int bar);
    /// When, and what was moved then.
    QString textOf(int bar) const;
    /// The bar's whole height of the chart.
    QRect placeOf(int bar) const;
    /// What it shows, under this title.
    QPixmap picture(const QString &title) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void currentChanged(int bar);
    /// -1 once the mouse points at none.
    void pointedAt(int bar);

protected:
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int barAt(const QPoint &point) const;
    int barOf(const QDate &first) const;
    int usualBar() const;
    void pointAt(int bar);
    void tellCurrent();

    ChartContents m_contents;
};

} // namespace refdialer
