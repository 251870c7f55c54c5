// SPDX-License-Identifier: MIT
#include "HistoryPage.h"

#include "HistoryArea.h"

#include <QVBoxLayout>

namespace refdialer
{

HistoryPage::HistoryPage(PluginHandle &plugin, const QString &storeFile, QWidget *parent)
    : QWidget(parent)
    , m_area(new HistoryArea(plugin, storeFile))
{
    auto *const layout = new QVBoxLayout(this);
    // The history brings margins of its own.
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_area, 1);
}

} // namespace refdialer
