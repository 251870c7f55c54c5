// SPDX-License-Identifier: MIT
#include "UserDecision.h"

#include "refhost/libcore/Host.h"

#include <QApplication>

namespace refdialer
{

bool isUserDeciding()
{
    return refhost::isQuestionOpen() || QApplication::activePopupWidget() ||
           QApplication::mouseButtons() != Qt::NoButton;
}

} // namespace refdialer
