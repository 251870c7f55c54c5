// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace refdialer
{

/// A plain text for a tool tip, which breaks markup alone into lines.
QString toolTipOf(const QString &text);

/// One line of plain text, always as high as the font alone says. Where there is
/// too little room the text is shortened, and whole in the tool tip.
class ElidedLabel : public QLabel
{
public:
    explicit ElidedLabel(Qt::TextElideMode mode);

    /// Wide enough for the widest text so far, so that figures do not dance.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;

    const Qt::TextElideMode m_mode;
    mutable int m_widest = 0;
};

} // namespace refdialer
