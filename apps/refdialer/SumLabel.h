// SPDX-License-Identifier: MIT
#pragma once

#include "ElidedLabel.h"

namespace refdialer
{

class HistoryArea;

/// What the selected connections, or else all that are listed, have taken together.
class SumLabel : public ElidedLabel
{
    Q_OBJECT

public:
    /// The area must live longer.
    explicit SumLabel(const HistoryArea &area);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showSum();

    const HistoryArea &m_area;
};

} // namespace refdialer
