// SPDX-License-Identifier: MIT
#pragma once

#include "Transfer.h"

#include <QDialog>

#include <optional>

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace refdialer
{

/// Whether connections come into the history or leave it.
enum class TransferKind { Import, Export };

/// Shows how far an import or an export is, and then what has come of it. The window goes on
/// working beside it.
class TransferDialog : public QDialog
{
    Q_OBJECT

public:
    TransferDialog(TransferKind kind, QWidget *parent = nullptr);

    void showState(const TransferState &state);
    void showResult(const TransferResult &result);
    /// Closes while the work lasts ask for its end instead.
    void reject() override;

signals:
    void cancelled();

protected:
    void changeEvent(QEvent *event) override;

private:
    bool isImport() const { return m_kind == TransferKind::Import; }
    void showDetails(const QString &details);
    QString failureText() const;
    void retranslate();

    const TransferKind m_kind;
    std::optional<TransferResult> m_result;
    QLabel *m_text;
    QProgressBar *m_bar;
    QPlainTextEdit *m_details; ///< shown only when there are some
    QPushButton *m_button;     ///< not Qt's own, whose text comes in its languages only
};

} // namespace refdialer
