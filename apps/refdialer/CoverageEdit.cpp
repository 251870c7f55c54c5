// SPDX-License-Identifier: MIT
#include "CoverageEdit.h"

#include "history/Store.h"
#include "modem/DataPort.h"

#include <QComboBox>
#include <QLineEdit>
#include <QVBoxLayout>

namespace refdialer
{

using Covers = history::DataPlan::Covers;

namespace
{

QComboBox *newNames(const QString &accessibleName)
{
    auto *const box = new QComboBox;
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // which would take "1234" for "12345"
    box->setAccessibleName(accessibleName);
    return box;
}

/// Unless it is there already; what is shown in the box stays.
void addName(QComboBox &box, const std::string &name, const QString &text)
{
    const QString data = QString::fromStdString(name);
    if (box.findData(data) >= 0)
        return;
    const bool isChosen = box.currentIndex() >= 0;
    const QString written = box.currentText();
    box.addItem(text, data);
    if (isChosen)
        return;
    // A box takes its first entry by itself.
    box.setCurrentIndex(-1);
    box.setEditText(written);
}

void choose(QComboBox &box, const std::string &name)
{
    box.setCurrentIndex(box.findData(QString::fromStdString(name)));
}

/// What is written, or what the chosen entry stands for, which alone tells two apart that are
/// shown alike; nothing if there is neither.
std::optional<QString> nameIn(const QComboBox &box)
{
    const bool isChosen = box.currentIndex() >= 0 && !box.lineEdit()->isModified();
    const int entry =
        isChosen ? box.currentIndex()
                 : box.findText(box.currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (entry >= 0)
        return box.itemData(entry).toString();
    const QString written = box.currentText().trimmed();
    return written.isEmpty() ? std::nullopt : std::optional(written);
}

} // namespace

CoverageEdit::CoverageEdit(QWidget *parent)
    : QWidget(parent)
    , m_covers(new QComboBox)
    , m_profile(newNames(tr("Profile (APN)")))
    , m_sim(newNames(tr("Number of the SIM, or its end")))
{
    // In the order of Covers.
    m_covers->addItems({tr("All connections"), tr("One profile (APN)"), tr("One SIM")});
    m_covers->setAccessibleName(tr("Connections that the plan is for"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *const each : {m_covers, m_profile, m_sim})
        layout->addWidget(each);
    setFocusProxy(m_covers);
    connect(m_covers, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CoverageEdit::showNames);
    showNames();
}

void CoverageEdit::setCoverage(Covers covers, const std::string &covered)
{
    m_covers->setCurrentIndex(static_cast<int>(covers));
    if (covers == Covers::Profile) {
        addProfile(covered);
        choose(*m_profile, covered);
    } else if (covers == Covers::Sim) {
        addSim(covered);
        choose(*m_sim, covered);
    }
}

void CoverageEdit::addNamesOf(const history::Overview &overview)
{
    for (const std::string &profile : overview.profiles)
        addProfile(profile);
    if (overview.hasConnectionsWithoutSim)
        addSim(std::string());
    for (const std::string &sim : overview.sims)
        addSim(sim);
}

void CoverageEdit::addProfile(const std::string &name)
{
    addName(*m_profile, name, name.empty() ? tr("Without a name") : QString::fromStdString(name));
}

/// As everywhere, a number is shown by its end only.
void CoverageEdit::addSim(const std::string &number)
{
    const QString whole = QString::fromStdString(number);
    const QString shown = modem::shownPartOfSim(whole);
    addName(*m_sim, number,
            number.empty() ? tr("Without a SIM number")
                           : (shown == whole ? whole : QStringLiteral("…%1").arg(shown)));
}

Covers CoverageEdit::covers() const
{
    return static_cast<Covers>(m_covers->currentIndex());
}

std::optional<std::string> CoverageEdit::covered() const
{
    switch (covers()) {
    case Covers::Everything:
        return std::string();
    case Covers::Profile:
        if (const auto name = nameIn(*m_profile))
            return name->toStdString();
        return std::nullopt;
    case Covers::Sim:
        if (auto number = nameIn(*m_sim))
            return number->remove(QLatin1Char(' ')).toStdString();
        return std::nullopt;
    }
    return std::nullopt;
}

void CoverageEdit::showNames()
{
    m_profile->setVisible(covers() == Covers::Profile);
    m_sim->setVisible(covers() == Covers::Sim);
}

} // namespace refdialer
