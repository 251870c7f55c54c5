// SPDX-License-Identifier: MIT
#pragma once

#include "TransferDialog.h"

#include <QMenu>
#include <QPointer>

#include <memory>

namespace refdialer
{

struct ExportChoice;
struct ImportChoice;

/// Imports into the history, exports from it, and what else is of the whole program.
class FileMenu : public QMenu
{
    Q_OBJECT

public:
    /// For the history in this file.
    FileMenu(const QString &storeFile, QWidget *window);
    /// Cancels what has not been done yet.
    ~FileMenu() override;

    /// False if the user wants to wait for an import or an export; else that is cancelled.
    bool mayClose();

public slots:
    /// Asks which files, and imports them.
    void importFiles();
    void exportFile();

signals:
    void settingsChosen();
    void quitChosen();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    bool isBusy();
    void importFrom(const ImportChoice &choice);
    void exportTo(const ExportChoice &choice);
    void start(TransferKind kind, Transfer::Work work);
    void finish(const TransferResult &result);
    bool askForEnd();

    QWidget *const m_window;
    const std::string m_storePath;
    std::unique_ptr<Transfer> m_transfer; ///< null while nothing is imported or exported
    QPointer<TransferDialog> m_dialog;    ///< of the last one, as long as it is open
    QAction *m_importAction;
    QAction *m_exportAction;
    QAction *m_settingsAction;
    QAction *m_quitAction;
};

} // namespace refdialer
