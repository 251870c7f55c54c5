// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

namespace refdialer
{

/// The file's name as the system takes it.
std::string pathOf(const QString &file);

/// The file's name as a sentence shows it: what would act in the window, such as the end of a
/// line, is written out.
QString shownName(const QString &file);

/// Throws TransferFailure if the file is none to import from or export to: a pipe would be
/// waited for, and the history at `storePath` and what is kept beside it are no such files.
void checkIsOrdinary(const QString &file, const std::string &storePath);

} // namespace refdialer
