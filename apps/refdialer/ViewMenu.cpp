// SPDX-License-Identifier: MIT
#include "ViewMenu.h"

#include "SortMenu.h"

#include <QEvent>

namespace refdialer
{

ViewMenu::ViewMenu(bool hasStatistics, QWidget *parent)
    : QMenu(parent)
{
    m_historyAction = addAction(QString());
    m_historyAction->setCheckable(true);
    m_historyAction->setChecked(true);
    connect(m_historyAction, &QAction::toggled, this, &ViewMenu::historyToggled);
    auto *const sortMenu = new SortMenu(this);
    addMenu(sortMenu);
    connect(sortMenu, &SortMenu::orderChosen, this, &ViewMenu::orderChosen);
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

void ViewMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMenu::changeEvent(event);
}

void ViewMenu::retranslate()
{
    setTitle(tr("&View"));
    m_historyAction->setText(tr("&History"));
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
