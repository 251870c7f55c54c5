// SPDX-License-Identifier: MIT
#pragma once

#include "usage/UsageBars.h"

#include <QAbstractTableModel>
#include <QLocale>

#include <vector>

namespace refdialer
{

/// Bars as a table: one row each with when, each part and the total.
class UsageModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Bars of the same days or months change in their rows.
    void setBars(const std::vector<usage::UsageBar> &bars, usage::BarUnit unit);
    /// Days and months are written as there.
    void setLocale(const QLocale &locale);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The whole table with the exact bytes, its columns apart by tabulators.
    QString text() const;

private:
    std::int64_t bytes(int row, int column) const;

    std::vector<usage::UsageBar> m_bars;
    usage::BarUnit m_unit = usage::BarUnit::Day;
    QLocale m_locale;
};

} // namespace refdialer
