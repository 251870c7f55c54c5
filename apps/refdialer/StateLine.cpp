// SPDX-License-Identifier: MIT
#include "StateLine.h"

#include "ElidedLabel.h"
#include "LineState.h"
#include "usage/SizeText.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLocale>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace refdialer
{

namespace
{

/// Name, beginning, sent and received.
constexpr int columnCount = 4;

} // namespace

StateLine::StateLine(HistorySource source, const LineState &state, QWidget *parent)
    : QWidget(parent)
    , m_source(std::move(source))
    , m_state(state)
    , m_layout(new QGridLayout(this))
{
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    m_layout->setContentsMargins(margin, margin, margin, 0);
    m_layout->setHorizontalSpacing(2 * margin);
    m_layout->setVerticalSpacing(0);
    m_layout->setColumnStretch(0, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(&m_state, &LineState::changed, this, &StateLine::showState);
    showState();
}

void StateLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        showState();
    QWidget::changeEvent(event);
}

void StateLine::addRow()
{
    Row labels;
    for (int column = 0; column < columnCount; ++column) {
        // A path is best known by both of its ends.
        auto *const label = new ElidedLabel(column == 0 ? Qt::ElideMiddle : Qt::ElideRight);
        // The figures get their room first.
        if (column == 0)
            label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        else
            label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        m_layout->addWidget(label, int(m_rows.size()), column);
        labels.push_back(label);
    }
    m_rows.push_back(labels);
}

void StateLine::showState()
{
    const std::vector<QStringList> texts = rowTexts();
    while (m_rows.size() < texts.size())
        addRow();
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        for (int column = 0; column < columnCount; ++column) {
            const QString text = row < texts.size() ? texts[row].value(column) : QString();
            m_rows[row][std::size_t(column)]->setText(text);
            m_rows[row][std::size_t(column)]->setVisible(!text.isEmpty());
        }
    }
    setToolTip(toolTipOf(sourceText()));
}

/// The texts of each row's columns, of which the last ones may be left out.
std::vector<QStringList> StateLine::rowTexts() const
{
    std::vector<QStringList> rows;
    if (!m_state.isWatched())
        return {QStringList(sourceText())};
    for (const recorder::ConnectionState &connection : m_state.connections())
        rows.push_back(textsFor(connection));
    if (rows.empty())
        rows.push_back(QStringList(tr("Not connected")));
    return rows;
}

QStringList StateLine::textsFor(const recorder::ConnectionState &connection) const
{
    return {
        nameOf(connection),
        tr("connected since %1")
            .arg(locale().toString(connection.since.toLocalTime(), QLocale::ShortFormat)),
        tr("Sent: %1 (%2)")
            .arg(usage::sizeText(connection.uploadedBytes), usage::rateText(connection.uploadRate)),
        tr("Received: %1 (%2)")
            .arg(usage::sizeText(connection.downloadedBytes),
                 usage::rateText(connection.downloadRate))};
}

/// The profile, with the interface where that alone does not tell which one is meant.
QString StateLine::nameOf(const recorder::ConnectionState &connection) const
{
    const QList<recorder::ConnectionState> all = m_state.connections();
    const auto sharing = std::count_if(all.begin(), all.end(),
                                       [&connection](const recorder::ConnectionState &other) {
                                           return other.profile == connection.profile;
                                       });
    return sharing > 1 ? QStringLiteral("%1 (%2)").arg(connection.profile, connection.interfaceName)
                       : connection.profile;
}

QString StateLine::sourceText() const
{
    if (m_source.isSample)
        return tr("Sample history. Changes are gone when the window closes.");
    const QString file = QDir::toNativeSeparators(m_source.file);
    return QFileInfo::exists(m_source.file) ? tr("History in %1").arg(file)
                                            : tr("No connections recorded yet in %1").arg(file);
}

} // namespace refdialer
