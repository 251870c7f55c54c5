// SPDX-License-Identifier: MIT
// What the user does in a hostile host, and how it compares what it sees.
#include "HostileHost.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace
{

template <typename Widget>
Widget *firstWidget(bool (*isWanted)(const QWidget &))
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *candidate = qobject_cast<Widget *>(widget);
        if (candidate && isWanted(*candidate))
            return candidate;
    }
    return nullptr;
}

} // namespace

/// Wherever it is: the plug-in may not have been placed anywhere yet.
QTableWidget *HostileHost::table() const
{
    return firstWidget<QTableWidget>([](const QWidget &) { return true; });
}

QWidget *HostileHost::summary() const
{
    return firstWidget<QWidget>([](const QWidget &widget) {
        return widget.windowTitle().endsWith(QLatin1String("IDS_TITLE_SINGLE"));
    });
}

QVector<int> HostileHost::rowsOnScreen() const
{
    QVector<int> keys;
    for (int row = 0; table() && row < table()->rowCount(); ++row) {
        const QTableWidgetItem *const item = table()->item(row, 0);
        keys.append(item ? item->text().toInt() : -1);
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

QVector<int> HostileHost::selectedKeys() const
{
    QVector<int> keys;
    for (int row = 0; table() && row < table()->rowCount(); ++row) {
        const QTableWidgetItem *const item = table()->item(row, 0);
        if (item && item->isSelected() && !table()->isRowHidden(row))
            keys.append(item->text().toInt());
    }
    return keys;
}

void HostileHost::select()
{
    if (!m_expected.hasTable() || table()->columnCount() == 0)
        return;
    QItemSelection selection;
    const QAbstractItemModel &model = *table()->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (m_random.once(3))
            selection.select(model.index(row, 0), model.index(row, model.columnCount() - 1));
    }
    table()->selectionModel()->select(selection, m_random.once(4)
                                                     ? QItemSelectionModel::Toggle
                                                     : QItemSelectionModel::ClearAndSelect);
}

void HostileHost::invokeSlot(const char *slot)
{
    if (QObject *window = m_plugin->historyWindow())
        QMetaObject::invokeMethod(window, slot);
}

void HostileHost::deleteSelected()
{
    const int asked = m_questions;
    const bool isToAsk = m_expected.hasTable() && !selectedKeys().isEmpty();
    invokeSlot("onDelete");
    expect("onDelete asks", m_questions > asked, isToAsk);
}

void HostileHost::deleteAll()
{
    const int asked = m_questions;
    const bool isToAsk = m_expected.hasTable();
    invokeSlot("onDeleteAll");
    expect("onDeleteAll asks", m_questions > asked, isToAsk);
}

void HostileHost::pressDelete()
{
    if (!m_expected.hasTable() || !table()->isVisible())
        return;
    table()->window()->activateWindow();
    QCoreApplication::processEvents();
    if (m_expected.hasTable())
        QTest::keyClick(table(), Qt::Key_Delete);
}

void HostileHost::openMenu()
{
    if (!m_expected.hasTable())
        return;
    QPoint place(m_random.between(-5, 800), m_random.between(-5, 500));
    if (table()->rowCount() > 0 && !m_random.once(4))
        place =
            table()->visualItemRect(table()->item(m_random.below(table()->rowCount()), 1)).center();
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { whileMenuIsOpen(); });
    timer.start(0);
    QMetaObject::invokeMethod(m_plugin->historyWindow(), "showTableContextMenu",
                              Q_ARG(QPoint, place));
}

void HostileHost::whileMenuIsOpen()
{
    const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu)
        return;
    ++m_menus;
    runSomeWithin();
    if (menu && menu->isVisible())
        pressInMenu(*menu);
    if (menu)
        menu->close();
}

void HostileHost::pressInMenu(QMenu &menu)
{
    const Qt::Key keys[] = {Qt::Key_D, Qt::Key_A, Qt::Key_Delete, Qt::Key_Escape, Qt::Key_X};
    const int choice = m_random.below(9);
    if (choice < 5) {
        QTest::keyClick(&menu, keys[choice]);
        return;
    }
    const QPoint place = menu.actionGeometry(menu.actions().at(choice % 2)).center();
    // Through the screen or straight to the menu.
    if (choice < 7)
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    else
        QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, place);
}

void HostileHost::clickSummary()
{
    if (!summary())
        return;
    m_expected.closeSummary();
    if (m_random.once(2))
        invokeSlot("onClickOkButton");
    else
        summary()->findChild<QPushButton *>()->click();
}

/// As the user does with the frame's own button: it stays the plug-in's.
void HostileHost::closeSummary()
{
    if (summary())
        summary()->close();
}

void HostileHost::compare()
{
    expect("a history window", m_plugin->historyWindow() != nullptr, m_expected.hasWindow());
    expect("a table", table() != nullptr, m_expected.hasTable());
    expect("a summary", summary() != nullptr, m_expected.hasSummary());
    expect("statistics", statistics() != nullptr, m_expected.hasStatistics());
    expect("the rows", rowsOnScreen(), m_expected.rows());
    expect("the SDK's records", m_sdk.keys, m_expected.sdk.keys);
    expect("arrays not given back", scripted::Host::instance().openArrays, 0);
    const QTableWidgetItem *const header = table() ? table()->horizontalHeaderItem(0) : nullptr;
    const QString prefix = m_expected.headerPrefix();
    if (m_expected.hasTable() && !prefix.isNull())
        expect("the first header", header ? header->text() : QString(),
               QString(prefix + QLatin1String("IDS_LIST_APN")));
}
