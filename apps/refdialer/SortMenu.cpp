// SPDX-License-Identifier: MIT
#include "SortMenu.h"

#include <QActionGroup>
#include <QEvent>

namespace refdialer
{

namespace
{

// As the menu lists them.
constexpr HistoryColumn listedColumns[] = {HistoryColumn::Start,    HistoryColumn::End,
                                           HistoryColumn::Profile,  HistoryColumn::ConnectedTime,
                                           HistoryColumn::Uploaded, HistoryColumn::Downloaded};

} // namespace

SortMenu::SortMenu(QWidget *parent)
    : QMenu(parent)
{
    auto *const columnGroup = new QActionGroup(this);
    for (const HistoryColumn column : listedColumns) {
        QAction *const action = addChoice(columnGroup, column == m_order.column);
        connect(action, &QAction::triggered, this, [this, column] { chooseColumn(column); });
        m_columnActions.push_back(action);
    }
    addSeparator();
    auto *const directionGroup = new QActionGroup(this);
    m_ascendingAction = addChoice(directionGroup, m_order.direction == Qt::AscendingOrder);
    m_descendingAction = addChoice(directionGroup, m_order.direction == Qt::DescendingOrder);
    connect(m_ascendingAction, &QAction::triggered, this,
            [this] { chooseDirection(Qt::AscendingOrder); });
    connect(m_descendingAction, &QAction::triggered, this,
            [this] { chooseDirection(Qt::DescendingOrder); });
    retranslate();
}

void SortMenu::choose(const HistoryOrder &order)
{
    m_order = order;
    showChoice();
    emit orderChosen(m_order);
}

void SortMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMenu::changeEvent(event);
}

QAction *SortMenu::addChoice(QActionGroup *group, bool isChosen)
{
    QAction *const action = addAction(QString());
    action->setCheckable(true);
    action->setChecked(isChosen);
    group->addAction(action);
    return action;
}

void SortMenu::retranslate()
{
    setTitle(tr("&Sort by"));
    const QString texts[] = {tr("&Start"),    tr("&End"),      tr("&Profile"),
                             tr("D&uration"), tr("Up&loaded"), tr("&Downloaded")};
    for (std::size_t i = 0; i < m_columnActions.size(); ++i)
        m_columnActions[i]->setText(texts[i]);
    m_ascendingAction->setText(tr("&Ascending"));
    m_descendingAction->setText(tr("Descendin&g"));
}

void SortMenu::showChoice()
{
    for (std::size_t i = 0; i < m_columnActions.size(); ++i)
        m_columnActions[i]->setChecked(listedColumns[i] == m_order.column);
    m_ascendingAction->setChecked(m_order.direction == Qt::AscendingOrder);
    m_descendingAction->setChecked(m_order.direction == Qt::DescendingOrder);
}

void SortMenu::chooseColumn(HistoryColumn column)
{
    HistoryOrder order{column, m_order.direction};
    if (column != m_order.column)
        order.direction =
            column == HistoryColumn::Profile ? Qt::AscendingOrder : Qt::DescendingOrder;
    choose(order);
}

void SortMenu::chooseDirection(Qt::SortOrder direction)
{
    choose({m_order.column, direction});
}

} // namespace refdialer
