// SPDX-License-Identifier: MIT
#pragma once

#include "ExportWork.h"
#include "ImportWork.h"

class QFileDialog;
class QWidget;

namespace refdialer
{

/// A dialog, not shown yet, that asks for files to import; deleted when it is closed.
QFileDialog *makeImportChooser(QWidget *parent);
/// What has been chosen there.
ImportChoice importChoiceIn(const QFileDialog &chooser);

/// The same for the file to export to. The suffix of its name tells the format, one without
/// gets that of the format chosen.
QFileDialog *makeExportChooser(QWidget *parent);
ExportChoice exportChoiceIn(const QFileDialog &chooser);

} // namespace refdialer
