// SPDX-License-Identifier: MIT
#pragma once

class QDateEdit;

namespace refdialer
{

/// Lets a field show its day as its region does, with the whole year. Qt keeps to the region
/// that the program began in.
void showAsInRegion(QDateEdit &edit);

} // namespace refdialer
