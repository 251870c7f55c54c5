// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace refhost
{

class LineState;
struct ConnectionState;

/// Where the connections that the window shows come from.
struct HistorySource {
    QString file;
    bool isSample = false;
};

/// The line above the history: the connections that last, or what the user is
/// looking at where none are watched.
class StateLine : public QLabel
{
    Q_OBJECT

public:
    /// The state must outlive the line.
    StateLine(HistorySource source, const LineState &state, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showState();
    QString stateText() const;
    QString connectionText(const ConnectionState &connection) const;
    QString sourceText() const;

    const HistorySource m_source;
    const LineState &m_state;
};

} // namespace refhost
