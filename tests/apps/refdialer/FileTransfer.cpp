// SPDX-License-Identifier: MIT
#include "FileTransfer.h"

#include "MenuEntry.h"
#include "apps/refdialer/TransferDialog.h"
#include "tests/formats/Documents.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <csignal>

FullDisk::FullDisk(std::int64_t largestFile)
{
    // The signal would end the process.
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_former);
    const rlimit limit = {static_cast<rlim_t>(largestFile), m_former.rlim_max};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        qFatal("files cannot be kept small");
}

FullDisk::~FullDisk()
{
    setrlimit(RLIMIT_FSIZE, &m_former);
}

QString FileTransfer::file(const QString &name, const QByteArray &contents) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    return file.fileName();
}

QByteArray FileTransfer::contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

QStringList FileTransfer::filesThere() const
{
    return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

QFileDialog *FileTransfer::openChooser(const QString &entry) const
{
    menuEntry(history.window(), {"File", entry})->trigger();
    return history.window().findChild<QFileDialog *>();
}

void FileTransfer::choose(const QString &entry, const QStringList &files, const QString &kind) const
{
    QFileDialog *const chooser = openChooser(entry);
    QVERIFY(chooser);
    for (const QString &filter : chooser->nameFilters()) {
        if (!kind.isEmpty() && filter.startsWith(kind)) {
            chooser->selectNameFilter(filter);
            emit chooser->filterSelected(filter);
        }
    }
    // It remembers that of an earlier test, which is gone.
    chooser->setDirectory(folder());
    chooser->findChild<QLineEdit *>("fileNameEdit")->setText('"' + files.join("\" \"") + '"');
    const auto accept = chooser->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                                         : QDialogButtonBox::Open;
    auto *const buttons = chooser->findChild<QDialogButtonBox *>("buttonBox");
    QTest::mouseClick(buttons->button(accept), Qt::LeftButton);
}

refdialer::TransferDialog *FileTransfer::dialog() const
{
    return history.window().findChild<refdialer::TransferDialog *>();
}

bool FileTransfer::isDone() const
{
    return dialog() && dialog()->findChild<QPushButton *>()->text() == "&Close";
}

QString FileTransfer::shownText() const
{
    return dialog()->findChild<QLabel *>()->text().replace('\n', " | ");
}

QString FileTransfer::shownDetails() const
{
    const auto *const details = dialog()->findChild<QPlainTextEdit *>();
    return details->isVisible() ? details->toPlainText() : QString();
}

void FileTransfer::press(Qt::Key key) const
{
    QTest::keyClick(dialog(), key);
}

void FileTransfer::answer(const QString &buttonText)
{
    m_question.clear();
    auto *const timer = new QTimer(&history.window());
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, buttonText] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        timer->deleteLater();
        m_question = box->text();
        for (QAbstractButton *const button : box->buttons()) {
            if (button->text() == buttonText)
                button->click();
        }
    });
    timer->start(0);
}

QByteArray FileTransfer::contentsOfStore(const std::string &path)
{
    const auto store = history::Store::openForReading(path);
    std::vector<history::Connection> connections;
    history::ConnectionSelection all;
    all.withHours = true;
    const auto visited = store.value().visit(all, [&](const history::Connection &connection) {
        connections.push_back(connection);
        connections.back().key = 0;
    });
    return visited ? formats::toJsonText(connections) : QByteArray();
}
