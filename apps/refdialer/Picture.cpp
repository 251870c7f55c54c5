// SPDX-License-Identifier: MIT
#include "Picture.h"

#include "Failure.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QSaveFile>
#include <QWidget>

namespace refdialer
{

void savePicture(QWidget &window, const QString &file)
{
    QSaveFile output(file);
    if (output.open(QIODevice::WriteOnly) && window.grab().save(&output, "PNG") && output.commit())
        return;
    throw Failure{ExitCode::PictureNotWritten,
                  QCoreApplication::translate("refdialer::Picture",
                                              "The picture %1 cannot be written: %2. Name a file "
                                              "in a folder that you may write to.")
                      .arg(file, output.errorString())};
}

} // namespace refdialer
