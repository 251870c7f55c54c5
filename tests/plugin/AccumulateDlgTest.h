// SPDX-License-Identifier: MIT
#pragma once

#include "AccumulateDlg.h"
#include "NetInfoRecordLogic.h"

#include <QDialog>
#include <QObject>
#include <QStringList>

#include <memory>

/// What the tests of the statistics dialog share: a fresh dialog and store for each test,
/// a parent for the frame, and a clock of the test's own.
class AccumulateDlgTest : public QObject
{
    Q_OBJECT

protected:
    static QDateTime noonOfToday();
    static AccumulateDialogRecord row(const QString &name, const QString &stamp, int base);

    static AccumulateDlg *dlg() { return AccumulateDlg::Instance(); }
    static QVector<AccumulateDialogRecord> &rows()
    {
        return NetInfoRecordLogic::Instance()->m_accumulateRecords;
    }
    QDialog *frame() const { return m_parent->findChild<QDialog *>(); }
    static QStringList profiles();
    static QStringList shown();
    static void chooseMonth(int index);
    static void chooseProfile(int index);

    static QDate today;
    std::unique_ptr<QWidget> m_parent;

private Q_SLOTS:
    void init();
    void cleanup();
};
