// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QPushButton;

namespace refdialer
{

class ElidedLabel;

/// Offers to make a data plan, until the user does not want to be offered that any more.
class PlanOffer : public QWidget
{
    Q_OBJECT

public:
    explicit PlanOffer(QWidget *parent = nullptr);

    /// Whether the user has not said that; in this run or an earlier one.
    bool isWelcome() const { return m_isWelcome; }

signals:
    void accepted();
    /// It is not welcome any more.
    void declined();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void decline();

    bool m_isWelcome;
    ElidedLabel *m_text;
    QPushButton *m_accept;
    QPushButton *m_decline;
};

} // namespace refdialer
