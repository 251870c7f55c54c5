// SPDX-License-Identifier: MIT
#pragma once

#include "usage/TextScanner.h"

#include <QWidget>

#include <cstdint>
#include <optional>

class QComboBox;
class QLineEdit;

namespace refdialer
{

/// A size to be written: a number, perhaps none, and its unit.
class SizeEdit : public QWidget
{
public:
    /// `meaningOfNone` is shown as long as there is no number.
    explicit SizeEdit(const QString &meaningOfNone, QWidget *parent = nullptr);

    void setBytes(std::optional<std::int64_t> bytes);
    /// Whether there is nothing.
    bool isEmpty() const;
    /// What is written; nothing if that is no size. The decimal point is that of the locale,
    /// or a full stop as everywhere in the program.
    std::optional<usage::WholeNumber> bytes() const;
    /// What the two are for.
    void setNames(const QString &number, const QString &unit);

private:
    QLineEdit *m_number;
    QComboBox *m_unit;
};

} // namespace refdialer
