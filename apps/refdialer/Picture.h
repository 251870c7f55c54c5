// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace refdialer
{

/// Draws the window, not yet shown, to a PNG file. Throws Failure (PictureNotWritten) if it
/// cannot be written; a file that was there before is then still there.
void savePicture(QWidget &window, const QString &file);

} // namespace refdialer
