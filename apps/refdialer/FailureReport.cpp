// SPDX-License-Identifier: MIT
#include "FailureReport.h"

#include "CommonUtils.h"
#include "Failure.h"

#include <cstdio>

namespace refdialer
{

void reportInTerminal(const Failure &failure)
{
    std::fprintf(stderr, "refdialer: %s\n", failure.message.toLocal8Bit().constData());
}

void reportInWindow(const Failure &failure)
{
    CommonUtils::ShowMessage(QMessageBox::Critical, nullptr, QStringLiteral("refdialer"),
                             failure.message, QStringLiteral("IDS_OK"), {}, {}, true,
                             Qt::WindowCloseButtonHint, nullptr, {}, true);
}

} // namespace refdialer
