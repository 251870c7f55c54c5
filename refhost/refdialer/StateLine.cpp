// SPDX-License-Identifier: MIT
#include "StateLine.h"

#include "LineState.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLocale>
#include <QStyle>

#include <utility>

namespace refhost
{

StateLine::StateLine(HistorySource source, const LineState &state, QWidget *parent)
    : QLabel(parent)
    , m_source(std::move(source))
    , m_state(state)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    setContentsMargins(margin, margin, margin, 0);
    // A long path must not keep the window from becoming narrower.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    connect(&m_state, &LineState::changed, this, &StateLine::showState);
    showState();
}

void StateLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        showState();
    QLabel::changeEvent(event);
}

void StateLine::showState()
{
    QStringList lines{stateText()};
    if (!m_state.problem().isEmpty())
        lines.append(m_state.problem());
    setText(lines.join(QLatin1Char('\n')));
    setToolTip(sourceText());
}

QString StateLine::stateText() const
{
    if (!m_state.isWatched())
        return sourceText();
    QStringList lines;
    for (const ConnectionState &connection : m_state.connections())
        lines.append(connectionText(connection));
    return lines.isEmpty() ? tr("Not connected") : lines.join(QLatin1Char('\n'));
}

QString StateLine::connectionText(const ConnectionState &connection) const
{
    // The units of the history below, where 1 KB is 1024 bytes and has a capital K.
    const auto size = [this](qint64 bytes) {
        return locale()
            .formattedDataSize(bytes, 2, QLocale::DataSizeTraditionalFormat)
            .replace(QLatin1String("kB"), QLatin1String("KB"));
    };
    return tr("%1, connected since %2. Sent: %3 (%4 per second), received: %5 (%6 per second)")
        .arg(connection.profile,
             locale().toString(connection.since.toLocalTime(), QLocale::ShortFormat),
             size(connection.uploadedBytes), size(connection.uploadRate),
             size(connection.downloadedBytes), size(connection.downloadRate));
}

QString StateLine::sourceText() const
{
    if (m_source.isSample)
        return tr("Sample history. Changes are gone when the window closes.");
    const QString file = QDir::toNativeSeparators(m_source.file);
    return QFileInfo::exists(m_source.file) ? tr("History in %1").arg(file)
                                            : tr("No connections recorded yet in %1").arg(file);
}

} // namespace refhost
