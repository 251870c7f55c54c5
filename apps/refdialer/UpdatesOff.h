// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace refdialer
{

/// Keeps a widget from drawing itself while this lives.
class UpdatesOff
{
public:
    explicit UpdatesOff(QWidget &widget)
        : m_widget(widget)
        // Of its own: what a parent has switched off for a while is that one's to switch on.
        , m_wereOff(widget.testAttribute(Qt::WA_ForceUpdatesDisabled))
    {
        m_widget.setUpdatesEnabled(false);
    }
    ~UpdatesOff() { m_widget.setUpdatesEnabled(!m_wereOff); }
    Q_DISABLE_COPY(UpdatesOff)

private:
    QWidget &m_widget;
    const bool m_wereOff;
};

} // namespace refdialer
