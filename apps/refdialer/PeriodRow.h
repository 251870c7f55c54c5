// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QPushButton;

namespace refdialer
{

class ElidedLabel;

/// The name of a period between buttons that lead to its neighbours; Alt and an arrow key do
/// the same from anywhere in the parent.
class PeriodRow : public QWidget
{
    Q_OBJECT

public:
    explicit PeriodRow(QWidget *parent);

    void showPeriod(const QString &name, bool hasPrevious, bool hasNext);
    QString name() const;

signals:
    void previousWanted();
    void nextWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void addKey(const char *key, QPushButton *fromLeft, QPushButton *fromRight);
    void retranslate();

    QPushButton *m_previousButton;
    ElidedLabel *m_name;
    QPushButton *m_nextButton;
};

} // namespace refdialer
