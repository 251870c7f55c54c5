// SPDX-License-Identifier: MIT
#include "FileChooser.h"

#include <QFileDialog>
#include <QFileInfo>

namespace refdialer
{

namespace
{

/// The dialogs' texts; what else Qt's own dialog says comes in its languages only.
class FileChooser
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::FileChooser)

public:
    static QFileDialog *forImport(QWidget *parent);
    static QFileDialog *forExport(QWidget *parent);

    template <typename Format>
    static QString filterOf(const Format &format, const QString &patterns);

private:
    static QFileDialog *make(QWidget *parent, const QString &title);
    static void setTexts(QFileDialog &chooser, const QString &acceptText);
};

QFileDialog *FileChooser::make(QWidget *parent, const QString &title)
{
    auto *const chooser = new QFileDialog(parent, title);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    // Room for the kinds of files, some of which have long names.
    constexpr int charactersInLine = 100;
    constexpr int lines = 30;
    const QFontMetrics font = chooser->fontMetrics();
    chooser->resize(charactersInLine * font.averageCharWidth(), lines * font.lineSpacing());
    return chooser;
}

/// Last of all: a change of the mode brings Qt's own ones back.
void FileChooser::setTexts(QFileDialog &chooser, const QString &acceptText)
{
    chooser.setLabelText(QFileDialog::Accept, acceptText);
    chooser.setLabelText(QFileDialog::Reject, tr("&Cancel"));
    chooser.setLabelText(QFileDialog::LookIn, tr("Folder:"));
    chooser.setLabelText(QFileDialog::FileName, tr("File &name:"));
    chooser.setLabelText(QFileDialog::FileType, tr("Kind of file:"));
}

template <typename Format>
QString FileChooser::filterOf(const Format &format, const QString &patterns)
{
    return QStringLiteral("%1 (%2)").arg(QCoreApplication::translate("formats", format.title),
                                         patterns);
}

/// Compressed ones have one more suffix.
QString importPatterns(const formats::ImportFormat &format)
{
    const QString suffix = QString::fromLatin1(format.suffix);
    return suffix.isEmpty() ? QStringLiteral("*") : QStringLiteral("*.%1 *.%1.*").arg(suffix);
}

QString filterFor(const formats::ImportFormat &format)
{
    return FileChooser::filterOf(format, importPatterns(format));
}

QString filterFor(const formats::ExportFormat &format)
{
    return FileChooser::filterOf(format, QStringLiteral("*.%1").arg(format.suffix));
}

template <typename Formats>
QStringList filtersFor(const Formats &formats)
{
    QStringList filters;
    for (const auto &format : formats)
        filters.append(filterFor(format));
    return filters;
}

/// The format whose filter the chooser has; null if none has that one.
template <typename Formats>
auto chosenFormat(const Formats &formats, const QFileDialog &chooser) -> decltype(formats.data())
{
    for (const auto &format : formats) {
        if (filterFor(format) == chooser.selectedNameFilter())
            return &format;
    }
    return nullptr;
}

QFileDialog *FileChooser::forImport(QWidget *parent)
{
    QFileDialog *const chooser = make(parent, tr("Import"));
    chooser->setFileMode(QFileDialog::ExistingFiles);
    chooser->setNameFilters(
        QStringList{tr("All files, recognised by what they hold (%1)").arg(QLatin1Char('*'))} +
        filtersFor(formats::importFormats));
    setTexts(*chooser, tr("&Import"));
    return chooser;
}

QFileDialog *FileChooser::forExport(QWidget *parent)
{
    QFileDialog *const chooser = make(parent, tr("Export"));
    chooser->setAcceptMode(QFileDialog::AcceptSave);
    chooser->setNameFilters(filtersFor(formats::exportFormats));
    const auto completeNames = [chooser] {
        chooser->setDefaultSuffix(chosenFormat(formats::exportFormats, *chooser)->suffix);
    };
    QObject::connect(chooser, &QFileDialog::filterSelected, chooser, completeNames);
    completeNames();
    setTexts(*chooser, tr("&Export"));
    return chooser;
}

} // namespace

QFileDialog *makeImportChooser(QWidget *parent)
{
    return FileChooser::forImport(parent);
}

ImportChoice importChoiceIn(const QFileDialog &chooser)
{
    return {chooser.selectedFiles(), chosenFormat(formats::importFormats, chooser)};
}

QFileDialog *makeExportChooser(QWidget *parent)
{
    return FileChooser::forExport(parent);
}

ExportChoice exportChoiceIn(const QFileDialog &chooser)
{
    const QString file = chooser.selectedFiles().value(0);
    const std::string suffix = QFileInfo(file).suffix().toLower().toStdString();
    for (const formats::ExportFormat &format : formats::exportFormats) {
        if (suffix == format.suffix)
            return {file, &format};
    }
    return {file, chosenFormat(formats::exportFormats, chooser)};
}

} // namespace refdialer
