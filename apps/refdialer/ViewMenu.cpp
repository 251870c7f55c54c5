// SPDX-License-Identifier: MIT
#include "ViewMenu.h"

#include "SortMenu.h"

#include <QActionGroup>
#include <QEvent>

namespace refdialer
{

ViewMenu::ViewMenu(bool hasStatistics, QWidget *parent)
    : QMenu(parent)
{
    addPages();
    addSeparator();
    m_sortMenu = new SortMenu(this);
    addMenu(m_sortMenu);
    connect(m_sortMenu, &SortMenu::orderChosen, this, &ViewMenu::orderChosen);
    m_searchAction = addAction(QString());
    m_searchAction->setShortcut(QKeySequence::Find);
    connect(m_searchAction, &QAction::triggered, this, &ViewMenu::searchWanted);
    m_refreshAction = addAction(QString());
    m_refreshAction->setShortcut(QKeySequence(Qt::Key_F5));
    connect(m_refreshAction, &QAction::triggered, this, &ViewMenu::refreshWanted);
    addSeparator();
    setToolTipsVisible(true);
    m_statisticsAction = addAction(QString());
    m_statisticsAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+T")));
    m_statisticsAction->setEnabled(hasStatistics);
    connect(m_statisticsAction, &QAction::triggered, this, &ViewMenu::statisticsWanted);
    retranslate();
}

void ViewMenu::addPages()
{
    auto *const group = new QActionGroup(this);
    for (const char *const key : {"Ctrl+1", "Ctrl+2"}) {
        const int page = int(m_pageActions.size());
        QAction *const action = addAction(QString());
        action->setCheckable(true);
        action->setShortcut(QKeySequence(QLatin1String(key)));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, page] { emit pageChosen(page); });
        m_pageActions.push_back(action);
    }
    setPage(0);
}

void ViewMenu::setPage(int page)
{
    m_pageActions[std::size_t(page)]->setChecked(true);
}

const HistoryOrder &ViewMenu::order() const
{
    return m_sortMenu->order();
}

void ViewMenu::chooseOrder(const HistoryOrder &order)
{
    m_sortMenu->choose(order);
}

void ViewMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMenu::changeEvent(event);
}

void ViewMenu::retranslate()
{
    setTitle(tr("&View"));
    m_pageActions[0]->setText(tr("&History"));
    m_pageActions[1]->setText(tr("&Usage"));
    m_searchAction->setText(tr("&Find"));
    m_refreshAction->setText(tr("&Refresh"));
    m_statisticsAction->setText(tr("S&tatistics…"));
    if (!m_statisticsAction->isEnabled()) {
        const QString reason = tr("The history plug-in in use has no statistics. Start refdialer "
                                  "with one that has them: --plugin FILE.");
        m_statisticsAction->setToolTip(reason);
        m_statisticsAction->setStatusTip(reason);
    }
}

} // namespace refdialer
