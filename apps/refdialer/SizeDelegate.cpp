// SPDX-License-Identifier: MIT
#include "SizeDelegate.h"

#include <QAbstractItemView>
#include <QStyle>

namespace refdialer
{

void SizeDelegate::showSizesIn(QAbstractItemView &view, int first, int end)
{
    auto *const sizes = new SizeDelegate(&view);
    for (int column = first; column < end; ++column)
        view.setItemDelegateForColumn(column, sizes);
}

void SizeDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // Where the text stands is the table's direction's to say.
    option->displayAlignment =
        QStyle::visualAlignment(option->direction, option->displayAlignment) | Qt::AlignAbsolute;
    option->direction = Qt::LeftToRight;
}

} // namespace refdialer
