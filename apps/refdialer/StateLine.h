// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

namespace recorder
{
struct ConnectionState;
}

namespace refdialer
{

class LineState;

/// Where the connections that the window shows come from.
struct HistorySource {
    QString file;
    bool isSample = false;
};

/// The lines above the history: one for each connection that lasts, or one that says
/// what the user is looking at. Each has a fixed height, so that what stands below
/// does not move while figures change.
class StateLine : public QWidget
{
    Q_OBJECT

public:
    /// The state must outlive the line.
    StateLine(HistorySource source, const LineState &state, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    using Row = std::vector<QLabel *>;

    void addRow();
    void showState();
    std::vector<QStringList> rowTexts() const;
    QStringList textsFor(const recorder::ConnectionState &connection) const;
    QString nameOf(const recorder::ConnectionState &connection) const;
    QString sourceText() const;

    const HistorySource m_source;
    const LineState &m_state;
    QGridLayout *m_layout;
    std::vector<Row> m_rows; ///< some may be hidden
};

} // namespace refdialer
