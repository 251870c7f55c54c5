// SPDX-License-Identifier: MIT
#include "HelpMenu.h"

#include "MessageBox.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QUrl>

namespace refdialer
{

HelpMenu::HelpMenu(QWidget *parent)
    : QMenu(parent)
    , m_manualAction(addAction(QString()))
    , m_aboutAction(addAction(QString()))
    , m_aboutQtAction(addAction(QString()))
{
    m_manualAction->setShortcut(QKeySequence(Qt::Key_F1));
    connect(m_manualAction, &QAction::triggered, this, &HelpMenu::openManual);
    insertSeparator(m_aboutAction);
    connect(m_aboutAction, &QAction::triggered, this, &HelpMenu::showAbout);
    connect(m_aboutQtAction, &QAction::triggered, qApp, &QApplication::aboutQt);
    retranslate();
}

QString HelpMenu::manualFile()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/" NETINFORECORD_DATADIR_FROM_BINDIR "/manual.html"));
}

void HelpMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMenu::changeEvent(event);
}

void HelpMenu::openManual()
{
    const QString file = manualFile();
    if (QFile::exists(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        return;
    MessageBox(QMessageBox::Information, tr("Manual"),
               tr("The manual %1 cannot be opened here. \"man refdialer\" shows it in a terminal.")
                   .arg(QDir::toNativeSeparators(file)),
               parentWidget()->window())
        .exec();
}

void HelpMenu::showAbout()
{
    const QString version = QCoreApplication::applicationName() + QLatin1Char(' ') +
                            QCoreApplication::applicationVersion();
    const QStringList paragraphs = {
        version, tr("The history of mobile-broadband connections."),
        tr("Licence: MIT. You may use, change and pass on this program; there is no warranty."),
        tr("It uses Qt %1 and libmnl (LGPL), SQLite (public domain), SQLiteCpp and JSON for "
           "Modern C++ (MIT), libarchive (BSD), zlib (zlib licence) and UTF8-CPP (Boost licence).")
            .arg(QString::fromLatin1(qVersion()))};
    MessageBox box(QMessageBox::NoIcon, tr("About refdialer"),
                   paragraphs.join(QLatin1String("\n\n")), parentWidget()->window());
    constexpr int iconSize = 64;
    box.setIconPixmap(box.windowIcon().pixmap(iconSize));
    box.exec();
}

void HelpMenu::retranslate()
{
    setTitle(tr("&Help"));
    m_manualAction->setText(tr("&Manual"));
    m_aboutAction->setText(tr("&About refdialer"));
    m_aboutQtAction->setText(tr("About &Qt"));
}

} // namespace refdialer
