// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace refdialer
{

/// What becomes of the recording when the window closes while a connection lasts.
enum class ClosingChoice { RecordInBackground, StopRecording, StayOpen };

/// Asks the user, unless the answer of an earlier time is to hold.
ClosingChoice chooseClosing(QWidget *window);

/// It is to be asked again the next time.
void forgetClosingChoice();

} // namespace refdialer
