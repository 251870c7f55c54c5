// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace refdialer
{

/// Opens the manual, and says what program this is.
class HelpMenu : public QMenu
{
    Q_OBJECT

public:
    /// The parent stands in the window that the menu is of.
    explicit HelpMenu(QWidget *parent);

    /// Where the manual is installed.
    static QString manualFile();

protected:
    void changeEvent(QEvent *event) override;

private:
    void openManual();
    void showAbout();
    void retranslate();

    QAction *m_manualAction;
    QAction *m_aboutAction;
    QAction *m_aboutQtAction;
};

} // namespace refdialer
