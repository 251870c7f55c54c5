// SPDX-License-Identifier: MIT
#pragma once

#include "HistorySort.h"

#include <QMenu>

#include <vector>

namespace refdialer
{

class SortMenu;

/// Which page of the window is shown, and how.
class ViewMenu : public QMenu
{
    Q_OBJECT

public:
    /// Without statistics their entry is grey and says why.
    explicit ViewMenu(bool hasStatistics, QWidget *parent = nullptr);

    /// In the order of the window's pages.
    void setPage(int page);
    const HistoryOrder &order() const;
    /// As if the user had chosen it.
    void chooseOrder(const HistoryOrder &order);

signals:
    void pageChosen(int page);
    void orderChosen(const refdialer::HistoryOrder &order);
    void searchWanted();
    void refreshWanted();
    void statisticsWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void addPages();
    void retranslate();

    std::vector<QAction *> m_pageActions;
    SortMenu *m_sortMenu;
    QAction *m_searchAction;
    QAction *m_refreshAction;
    QAction *m_statisticsAction;
};

} // namespace refdialer
