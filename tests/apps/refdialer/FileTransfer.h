// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryWindow.h"

#include <QStringList>

#include <sys/resource.h>

class QFileDialog;

namespace refdialer
{
class TransferDialog;
}

/// Lets no file of this process grow beyond a size, as a full disk does, while this lives.
class FullDisk
{
public:
    explicit FullDisk(std::int64_t largestFile);
    ~FullDisk();
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_former = {};
};

/// A window whose user imports and exports files.
class FileTransfer
{
public:
    HistoryWindow history;

    QString folder() const { return m_files.path(); }
    QString path(const QString &name) const { return m_files.filePath(name); }
    /// Makes the file in that folder and returns its path.
    QString file(const QString &name, const QByteArray &contents) const;
    static QByteArray contentsOf(const QString &path);
    /// What is in that folder.
    QStringList filesThere() const;

    /// The dialog behind "Import…" or "Export…"; null if there is none.
    QFileDialog *openChooser(const QString &entry) const;
    /// Has the files chosen there, and the kind of file that begins so.
    void choose(const QString &entry, const QStringList &files, const QString &kind = {}) const;

    /// The dialog that shows what goes on; null if there is none.
    refdialer::TransferDialog *dialog() const;
    bool isDone() const;
    /// What it shows, in one line each.
    QString shownText() const;
    QString shownDetails() const;
    /// Presses the key in that dialog.
    void press(Qt::Key key) const;

    /// Answers the question that appears next with this button.
    void answer(const QString &buttonText);
    /// Of the question that was answered last.
    const QString &question() const { return m_question; }

    /// What is in the store, with the hours, without the keys.
    QByteArray contents() const { return contentsOfStore(history.storePath()); }
    static QByteArray contentsOfStore(const std::string &path);

private:
    QTemporaryDir m_files;
    QString m_question;
};
