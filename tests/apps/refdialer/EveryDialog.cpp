// SPDX-License-Identifier: MIT
#include "EveryWindow.h"
#include "apps/refdialer/BackgroundUnit.h"
#include "apps/refdialer/ClosingChoice.h"
#include "apps/refdialer/FileChooser.h"
#include "apps/refdialer/FileMenu.h"
#include "apps/refdialer/HelpMenu.h"
#include "apps/refdialer/SettingsDialog.h"
#include "apps/refdialer/SummaryChoice.h"
#include "apps/refdialer/TransferDialog.h"

#include <QAction>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QTableWidget>
#include <QTest>

using refdialer::BackgroundUnit;
using refdialer::TransferKind;
using refdialer::TransferResult;

namespace
{

void lookAtTheSettings(HistoryWindow &history, const Look &look)
{
    BackgroundUnit background{QDBusConnection(QString())};
    refdialer::SettingsDialog dialog(&background, &history.window());
    dialog.show();
    look("settings", dialog);
    using Outcome = BackgroundUnit::Outcome;
    for (const Outcome outcome : {Outcome::On, Outcome::Off, Outcome::NoManager,
                                  Outcome::NotInstalled, Outcome::NotStarted, Outcome::Refused}) {
        emit background.done(outcome, profileForEveryWindow);
        settle();
        look("settings of the background", dialog);
    }
    dialog.findChild<QLineEdit *>()->setText(QStringLiteral("wwan/0"));
    QTest::keyClick(dialog.findChild<QLineEdit *>(), Qt::Key_Return);
    settle();
    look("settings with a wrong name", dialog);
}

void lookAtTheSettingsOfASample(HistoryWindow &history, const Look &look)
{
    refdialer::SettingsDialog dialog(nullptr, &history.window());
    dialog.show();
    look("settings of a sample", dialog);
}

void lookAtTheClosingQuestion(HistoryWindow &history, const Look &look)
{
    lookAtModal("closing", look, [&history] { refdialer::chooseClosing(&history.window()); });
}

void lookAtTheDeletions(HistoryWindow &history, const Look &look)
{
    history.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&history.window()));
    history.table().setFocus();
    history.clickRow(0);
    lookAtModal("deletion", look, [&history] { history.pressKey(Qt::Key_Delete); });
    // It stays after lookAtEveryPage() has closed it.
    const auto *const menu = history.table().findChild<QMenu *>();
    QVERIFY(menu);
    lookAtModal("deletion of all", look, [menu] { menu->actions().constLast()->trigger(); });
}

void lookAtTheSummary(HistoryWindow &history, const Look &look)
{
    // The plug-in's contract has its size in pixels, which do for such a font.
    constexpr int highestFont = 15;
    if (history.window().fontMetrics().height() > highestFont)
        return;
    QVERIFY(refdialer::storeSummaryChoice(true));
    history.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&history.window()));
    lookAtModal("summary", look, [&history] {
        history.state().begin(lastingConnection(1));
        history.state().end(1);
    });
}

void lookAtTheHelp(HistoryWindow &history, const Look &look)
{
    const QList<QAction *> entries = history.window().findChild<refdialer::HelpMenu *>()->actions();
    lookAtModal("about", look, [&entries] { entries.at(entries.size() - 2)->trigger(); });
    // Nothing opens it, wherever the test runs.
    QObject nobody;
    QDesktopServices::setUrlHandler("file", &nobody, "open");
    lookAtModal("no manual", look, [&entries] { entries.constFirst()->trigger(); });
    QDesktopServices::unsetUrlHandler("file");
}

void lookAtTheChoosers(HistoryWindow &history, const Look &look)
{
    for (QFileDialog *const chooser : {refdialer::makeExportChooser(&history.window()),
                                       refdialer::makeImportChooser(&history.window())}) {
        // The one that is drawn here; the system's own cuts what it likes.
        chooser->setOption(QFileDialog::DontUseNativeDialog);
        // Whatever folder the test runs in.
        chooser->setDirectory(QDir::rootPath());
        chooser->show();
        settle();
        look("chooser", *chooser);
        chooser->close();
        delete chooser;
    }
}

void lookAtTheStatistics(HistoryWindow &history, const Look &look)
{
    if (history.plugin().hasStatistics())
        lookAtModal("statistics", look, [&history] { QVERIFY(history.plugin().showStatistics()); });
}

void lookAtProgress(refdialer::TransferDialog &dialog, const Look &look)
{
    const std::atomic<bool> isCancelled = false;
    refdialer::TransferProgress progress(isCancelled, [&](const refdialer::TransferState &state) {
        dialog.showState(state);
        settle();
        look("transfer", dialog);
    });
    const QString self = QCoreApplication::applicationFilePath();
    progress.beginReading(self.toStdString(), formats::InputFile(self.toStdString()));
    progress.beginStoring(1000000);
    progress.beginListing();
    progress.beginWriting(1000000);
}

void lookAtTheTransfers(HistoryWindow &history, const Look &look)
{
    for (const TransferKind kind : {TransferKind::Import, TransferKind::Export}) {
        refdialer::TransferDialog dialog(kind, &history.window());
        dialog.show();
        lookAtProgress(dialog, look);
        dialog.reject();
        settle();
        look("cancelled transfer", dialog);
        dialog.showResult({TransferResult::Kind::Failed, {}, profileForEveryWindow});
        settle();
        look("failed transfer", dialog);
    }
}

/// The window is asked to close before it has heard that the file is written.
void lookAtTheQuestionWhileExporting(HistoryWindow &history, const Look &look)
{
    auto &menu = *history.window().findChild<refdialer::FileMenu *>();
    menu.exportFile();
    auto *const chooser = history.window().findChild<QFileDialog *>();
    const QFileInfo store(QString::fromStdString(history.storePath()));
    chooser->setDirectory(store.absolutePath());
    chooser->findChild<QLineEdit *>("fileNameEdit")->setText(QStringLiteral("exported.csv"));
    QMetaObject::invokeMethod(chooser, "accept", Qt::DirectConnection);
    lookAtModal("closing while exporting", look, [&menu] { menu.mayClose(); });
    const auto *const dialog = history.window().findChild<refdialer::TransferDialog *>();
    QTRY_VERIFY(dialog->findChild<QProgressBar *>()->isHidden());
    QVERIFY(menu.mayClose());
}

} // namespace

void lookAtEveryDialog(HistoryWindow &history, const Look &look)
{
    lookAtTheSettings(history, look);
    lookAtTheSettingsOfASample(history, look);
    lookAtTheClosingQuestion(history, look);
    lookAtTheDeletions(history, look);
    lookAtTheSummary(history, look);
    lookAtTheHelp(history, look);
    lookAtTheChoosers(history, look);
    lookAtTheStatistics(history, look);
    lookAtTheTransfers(history, look);
    lookAtTheQuestionWhileExporting(history, look);
}
