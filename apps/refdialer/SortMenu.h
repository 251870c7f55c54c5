// SPDX-License-Identifier: MIT
#pragma once

#include "HistorySort.h"

#include <QMenu>

#include <vector>

class QActionGroup;

namespace refdialer
{

/// The orders to choose from. A column begins with the direction that is wanted
/// mostly: the newest, the largest or the first in the alphabet on top.
class SortMenu : public QMenu
{
    Q_OBJECT

public:
    explicit SortMenu(QWidget *parent = nullptr);

    const HistoryOrder &order() const { return m_order; }
    /// As if the user had chosen it.
    void choose(const HistoryOrder &order);

signals:
    /// The user wants the rows sorted, maybe in the same order again.
    void orderChosen(const refdialer::HistoryOrder &order);

protected:
    void changeEvent(QEvent *event) override;

private:
    QAction *addChoice(QActionGroup *group, bool isChosen);
    void retranslate();
    void showChoice();
    void chooseColumn(HistoryColumn column);
    void chooseDirection(Qt::SortOrder direction);

    HistoryOrder m_order;
    std::vector<QAction *> m_columnActions;
    QAction *m_ascendingAction;
    QAction *m_descendingAction;
};

} // namespace refdialer
