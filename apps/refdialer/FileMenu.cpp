// SPDX-License-Identifier: MIT
#include "FileMenu.h"

#include "FileChooser.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace refdialer
{

FileMenu::FileMenu(const QString &storeFile, QWidget *window)
    : QMenu(window)
    , m_window(window)
    , m_storePath(storeFile.toStdString())
{
    const auto add = [this](const QKeySequence &key, auto chosen) {
        QAction *const action = addAction(QString());
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, chosen);
        return action;
    };
    m_importAction = add(QKeySequence::Open, &FileMenu::importFiles);
    // Not that of saving under another name: what is shown stays in its file.
    m_exportAction = add(QKeySequence(QStringLiteral("Ctrl+E")), &FileMenu::exportFile);
    addSeparator();
    m_settingsAction = add(QKeySequence(QStringLiteral("Ctrl+,")), &FileMenu::settingsChosen);
    addSeparator();
    m_quitAction = add(QKeySequence::Quit, &FileMenu::quitChosen);
    retranslate();
}

FileMenu::~FileMenu() = default;

bool FileMenu::mayClose()
{
    if (m_transfer && !qApp->isSavingSession() && !askForEnd())
        return false;
    m_transfer.reset();
    delete m_dialog;
    return true;
}

void FileMenu::importFiles()
{
    if (isBusy())
        return;
    QFileDialog *const chooser = makeImportChooser(m_window);
    connect(chooser, &QDialog::accepted, this,
            [this, chooser] { importFrom(importChoiceIn(*chooser)); });
    chooser->open();
}

void FileMenu::exportFile()
{
    if (isBusy())
        return;
    QFileDialog *const chooser = makeExportChooser(m_window);
    connect(chooser, &QDialog::accepted, this,
            [this, chooser] { exportTo(exportChoiceIn(*chooser)); });
    chooser->open();
}

void FileMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMenu::changeEvent(event);
}

void FileMenu::retranslate()
{
    setTitle(tr("&File"));
    m_importAction->setText(tr("&Import…"));
    m_exportAction->setText(tr("&Export…"));
    m_settingsAction->setText(tr("&Settings…"));
    m_quitAction->setText(tr("&Quit"));
}

/// One at a time: whoever wants another one is shown the one there is.
bool FileMenu::isBusy()
{
    if (m_transfer && m_dialog) {
        m_dialog->raise();
        m_dialog->activateWindow();
    }
    return m_transfer != nullptr;
}

void FileMenu::importFrom(const ImportChoice &choice)
{
    start(TransferKind::Import, ImportWork(m_storePath, choice));
}

void FileMenu::exportTo(const ExportChoice &choice)
{
    start(TransferKind::Export, ExportWork(m_storePath, choice));
}

void FileMenu::start(TransferKind kind, Transfer::Work work)
{
    delete m_dialog;
    m_transfer = std::make_unique<Transfer>(std::move(work));
    m_dialog = new TransferDialog(kind, m_window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_transfer.get(), &Transfer::progressed, m_dialog, &TransferDialog::showState);
    connect(m_transfer.get(), &Transfer::finished, this, &FileMenu::finish);
    connect(m_dialog, &TransferDialog::cancelled, m_transfer.get(), &Transfer::cancel);
    m_dialog->show();
    m_transfer->start();
}

void FileMenu::finish(const TransferResult &result)
{
    // It is the one that tells this.
    m_transfer.release()->deleteLater();
    if (m_dialog)
        m_dialog->showResult(result);
}

bool FileMenu::askForEnd()
{
    QMessageBox box(QMessageBox::Question, m_dialog->windowTitle(),
                    tr("Connections are being imported or exported."), QMessageBox::NoButton,
                    m_window);
    box.setInformativeText(tr("If the window closes now, that is cancelled: nothing is imported, "
                              "and the file to export to stays as it is."));
    QPushButton *const end = box.addButton(tr("&Close the window"), QMessageBox::DestructiveRole);
    QPushButton *const stay = box.addButton(tr("&Wait"), QMessageBox::RejectRole);
    box.setDefaultButton(stay);
    box.setEscapeButton(stay);
    box.exec();
    return box.clickedButton() == end;
}

} // namespace refdialer
