// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace refhost
{

/// Where the connections that the window shows come from.
struct HistorySource {
    QString file;
    bool isSample = false;
};

/// The line above the history: what the user is looking at.
class StateLine : public QLabel
{
    Q_OBJECT

public:
    explicit StateLine(HistorySource source, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showState();
    QString stateText() const;

    const HistorySource m_source;
};

} // namespace refhost
