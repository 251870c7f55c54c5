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
    Q_OBJECT

public:
    /// `meaningOfNone` is shown as long as there is no number.
    explicit SizeEdit(const QString &meaningOfNone, QWidget *parent = nullptr);

    void setBytes(std::optional<std::int64_t> bytes);
    /// Whether there is nothing.
    bool isEmpty() const;
    /// What is written; nothing if that is no size. The decimal point is that of the locale,
    /// or a full stop where that does not part thousands.
    std::optional<std::int64_t> bytes() const;
    /// Why it is no size, and how one is written, a sentence for the user; empty if it is one.
    QString problem() const;
    /// What the two are for.
    void setNames(const QString &number, const QString &unit);

private:
    QString number() const;
    std::optional<usage::WholeNumber> readBytes() const;

    QLineEdit *m_number;
    QComboBox *m_unit;
};

} // namespace refdialer
