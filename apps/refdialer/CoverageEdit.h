// SPDX-License-Identifier: MIT
#pragma once

#include "history/DataPlan.h"

#include <QWidget>

#include <optional>
#include <string>

class QComboBox;

namespace history
{
struct Overview;
}

namespace refdialer
{

/// What a plan is for, to be chosen: everything, or a profile or a SIM that the history knows
/// or that is written.
class CoverageEdit : public QWidget
{
    Q_OBJECT

public:
    explicit CoverageEdit(QWidget *parent = nullptr);

    void setCoverage(history::DataPlan::Covers covers, const std::string &covered);
    /// More to choose from; what has been chosen or written stays.
    void addNamesOf(const history::Overview &overview);

    history::DataPlan::Covers covers() const;
    /// The profile or SIM, empty for everything; nothing if none has been named.
    std::optional<std::string> covered() const;

private:
    void showNames();
    void addProfile(const std::string &name);
    void addSim(const std::string &number);

    QComboBox *m_covers;
    QComboBox *m_profile;
    QComboBox *m_sim;
};

} // namespace refdialer
