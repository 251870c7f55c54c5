// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <optional>
#include <vector>

namespace refdialer
{

/// The percentages to warn at, to be written as a list, perhaps an empty one.
class PercentagesEdit : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    void setPercentages(const std::vector<int> &percentages);
    /// In the order in which they are written, parted by spaces or the commas of any script;
    /// nothing if anything else is there.
    std::optional<std::vector<int>> percentages() const;
};

} // namespace refdialer
