// SPDX-License-Identifier: MIT
#include "EveryWindow.h"
#include "apps/common/StoreErrorText.h"
#include "apps/refdialer/Failure.h"
#include "apps/refdialer/FailureReport.h"
#include "apps/refdialer/HistoryNotice.h"
#include "apps/refdialer/ImportWork.h"
#include "apps/refdialer/PlanDialog.h"
#include "apps/refdialer/PlanWatch.h"
#include "apps/refdialer/RecordingSettings.h"
#include "apps/refdialer/SettingsDialog.h"
#include "apps/refdialer/TransferDialog.h"
#include "apps/refdialer/ViewMenu.h"
#include "history/StoreFailure.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <sqlite3.h>

#include <atomic>

using history::DataPlan;
using history::Store;

namespace
{

void lookAtAServiceThatDoesNotStart(HistoryWindow &history, const Look &look)
{
    auto *const notice = history.window().findChild<refdialer::HistoryNotice *>();
    lookAtModal("no service", look, [notice] { emit notice->backgroundWanted(); });
}

void lookAtSettingsThatAreNotStored(HistoryWindow &history, const Look &look)
{
    refdialer::SettingsDialog dialog(nullptr, &history.window());
    dialog.show();
    emit dialog.findChild<refdialer::RecordingSettings *>()->stored(false);
    settle();
    look("settings that are not stored", dialog);
}

/// Presses the button that does what is asked about.
void confirm(const QMessageBox &question)
{
    for (QAbstractButton *const button : question.buttons()) {
        if (question.buttonRole(button) == QMessageBox::DestructiveRole)
            button->click();
    }
}

/// Of a plan in a history in whose place something else comes.
void lookAtARemovalThatFails(HistoryWindow &history, const Look &look)
{
    const QString path = QString::fromStdString(history.storePath()) + "-other";
    DataPlan plan;
    plan.name = profileForEveryWindow.toStdString();
    QVERIFY(Store::openOrCreate(path.toStdString()).value().setPlan(plan));
    refdialer::PlanWatch plans(path);
    plans.finish();
    refdialer::PlanDialog dialog(plans, &history.window());
    QVERIFY(QFile::rename(path, path + "-away"));
    QVERIFY(QDir().mkdir(path));
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(dialog.findChild<QTreeWidget *>(), Qt::Key_Delete);
    lookAtModal("failed removal", look, [&dialog] { confirm(*dialog.findChild<QMessageBox *>()); });
}

void lookAtAFailedStart(const Look &look)
{
    try {
        refdialer::PluginHandle::load(QStringLiteral("/a.so"));
    } catch (const refdialer::Failure &failure) {
        lookAtModal("failed start", look, [&failure] { refdialer::reportInWindow(failure); });
    }
}

/// Whatever is wrong with it.
void lookAtAHistoryOfNoUse(const HistoryWindow &history, const Look &look)
{
    const std::string path = history.storePath();
    for (const int code :
         {SQLITE_BUSY, SQLITE_FULL, SQLITE_CANTOPEN, SQLITE_NOMEM, SQLITE_CORRUPT}) {
        const auto error =
            history::sqliteFailure(path, history::Access::Opening, code, 0, sqlite3_errstr(code));
        const refdialer::Failure failure{refdialer::ExitCode::StoreNotUsable,
                                         common::storeErrorText(error.error())};
        lookAtModal("history of no use", look, [&failure] { refdialer::reportInWindow(failure); });
    }
}

/// What an import says in the end that can use little or nothing of the file.
QString complaintOf(const HistoryWindow &history, const QString &path)
{
    const std::atomic<bool> isCancelled = false;
    refdialer::TransferProgress progress(isCancelled, [](const refdialer::TransferState &) {});
    const refdialer::ImportWork work(history.storePath(), {{path}, nullptr});
    try {
        return work(progress).details;
    } catch (const refdialer::TransferFailure &failure) {
        return failure.sentence;
    }
}

void lookAtImportsOfLittleUse(HistoryWindow &history, const Look &look)
{
    const QTemporaryDir folder;
    const QByteArray header = QByteArray::fromStdString(formats::csvHeader());
    for (const QByteArray &contents :
         {header + "\ninternet,soon", QByteArray("[{\"profile\": 7}]"),
          QByteArray("{\"connected_seconds\":7,}"), QByteArray("\x1f\x8b"), QByteArray("log"),
          QByteArray("May 31 10:00:00 gw pppd[7]: Connect: ppp0 <--> /dev/ttyUSB0")}) {
        QFile file(folder.filePath(profileForEveryWindow));
        QVERIFY(file.open(QFile::WriteOnly) && file.write(contents) == contents.size());
        file.close();
        refdialer::TransferDialog dialog(refdialer::TransferKind::Import, &history.window());
        dialog.show();
        dialog.showResult(
            {refdialer::TransferResult::Kind::Failed, {}, complaintOf(history, file.fileName())});
        settle();
        look("import of little use", dialog);
    }
}

/// One that has ended can be asked for nothing.
void lookAtAPluginThatTellsNoStatistics(HistoryWindow &history, const Look &look)
{
    history.plugin().end();
    auto *const menu = history.window().findChild<refdialer::ViewMenu *>();
    lookAtModal("no statistics", look, [menu] { emit menu->statisticsWanted(); });
}

} // namespace

void lookAtEveryMessage(HistoryWindow &history, const Look &look)
{
    lookAtAServiceThatDoesNotStart(history, look);
    lookAtSettingsThatAreNotStored(history, look);
    lookAtARemovalThatFails(history, look);
    lookAtAFailedStart(look);
    lookAtAHistoryOfNoUse(history, look);
    lookAtImportsOfLittleUse(history, look);
    lookAtAPluginThatTellsNoStatistics(history, look);
}
