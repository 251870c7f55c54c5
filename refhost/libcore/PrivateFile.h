// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace refhost
{

/// Makes the file and its folders, as far as they are not there, and keeps the folder
/// to its owner whatever the umask. A folder that is a link stays as it is. What cannot be
/// made shows when the file is written.
void preparePrivateFile(const QString &path);

} // namespace refhost
