// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace refdialer
{

/// Shows sizes with the unit behind the number, as everywhere, also in a table that is read from
/// right to left.
class SizeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// In the columns from `first` up to `end`, which is outside.
    static void showSizesIn(QAbstractItemView &view, int first, int end);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    using QStyledItemDelegate::QStyledItemDelegate;
};

} // namespace refdialer
