// SPDX-License-Identifier: MIT
#pragma once

#include "HistorySort.h"

#include <QMenu>

namespace refdialer
{

class SortMenu;

/// What is shown of the history, and how.
class ViewMenu : public QMenu
{
    Q_OBJECT

public:
    /// Without statistics their entry is grey and says why.
    explicit ViewMenu(bool hasStatistics, QWidget *parent = nullptr);

signals:
    void historyToggled(bool isVisible);
    void orderChosen(const refdialer::HistoryOrder &order);
    void refreshWanted();
    void statisticsWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QAction *m_historyAction;
    QAction *m_refreshAction;
    QAction *m_statisticsAction;
};

} // namespace refdialer
